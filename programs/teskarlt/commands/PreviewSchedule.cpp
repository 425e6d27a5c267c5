// PreviewSchedule.cpp - what previews show of a drawing's schedule.
#include "teskarlt/commands/PreviewSchedule.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "teskarlt/drawing/UnitProposal.h"
#include "teskarlt/schedule/Columns.h"
#include "teskarlt/schedule/Csv.h"
#include "teskarlt/schedule/Html.h"
#include "teskarlt/schedule/ScheduleJson.h"
#include "teskarlt/schedule/Sheet.h"
#include "teskarlt/windows/ReadSchedule.h"

namespace teskarlt {

namespace {

using schedule::Column;

// Each row is one window.
constexpr std::string_view QUANTITY = "quantity";

std::vector<const Column*> ColumnsWhere(bool (*isWanted)(const Column&)) {
  std::vector<const Column*> columns;
  columns.reserve(std::size(schedule::COLUMNS));
  for (const Column& column : schedule::COLUMNS)
    if (isWanted(column)) columns.push_back(&column);
  return columns;
}

// Windows as schedules list them: by their numbers, those that share one in the order of the file.
std::vector<preview::SceneWindow*> ByNumber(preview::Scene& scene) {
  std::vector<preview::SceneWindow*> windows;
  windows.reserve(scene.windows.size());
  for (preview::SceneWindow& window : scene.windows)
    windows.push_back(&window);
  std::stable_sort(windows.begin(), windows.end(),
                   [](const auto* a, const auto* b) { return a->number < b->number; });
  return windows;
}

}  // namespace

schedule::Schedule DescribeWindows(const dxf::Document& drawing, const AskedUnit& units,
                                   preview::Scene& scene) {
  const DrawingUnit* const known = KnownUnit(drawing, units);
  const DrawingUnit& unit = known == nullptr ? UNSTATED : *known;
  schedule::Schedule schedule = ReadSchedule(drawing, unit, ToleranceToLookWith(drawing, unit));
  const std::vector<const Column*> columns =
      ColumnsWhere([](const Column& column) { return column.name != QUANTITY; });
  const std::vector<preview::SceneWindow*> windows = ByNumber(scene);
  for (std::size_t i = 0; i < std::min(windows.size(), schedule.rows.size()); ++i) {
    const schedule::ScheduleRow& row = schedule.rows[i];
    windows[i]->name = row.mark;
    windows[i]->values = JsonOf(row, columns, schedule::ENGLISH).Text();
  }
  return schedule;
}

preview::PageSchedule PageScheduleOf(schedule::Schedule schedule) {
  schedule::Sort(schedule::Order::Mark, schedule);
  preview::PageSchedule page;
  page.windows.reserve(schedule.rows.size());
  for (const schedule::ScheduleRow& row : schedule.rows)
    page.windows.push_back(static_cast<std::int32_t>(row.number.value_or(0)));
  std::vector<const Column*> columns = ColumnsWhere([](const Column& column) { return column.isUsual; });
  page.csv = schedule::Csv(SheetOf(schedule, columns, {}), {.hasByteOrderMark = true});
  std::erase_if(columns,
                [&](const Column* column) { return column->name == QUANTITY || !IsTold(*column, schedule); });
  page.table = schedule::HtmlTable(SheetOf(schedule, columns, {}));
  return page;
}

}  // namespace teskarlt
