// Comparison.cpp - what came, went and changed between two schedules.
#include "teskarlt/schedule/Comparison.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>

#include <fmt/format.h>

#include "teskarlt/terminal/Messages.h"

namespace teskarlt::schedule {

namespace {

// The columns whose values are shown otherwise.
std::vector<const Column*> ChangedColumns(const ScheduleRow& before, const ScheduleRow& after,
                                          Columns columns, bool hasUnit) {
  std::vector<const Column*> changed;
  for (const Column* column : columns) {
    if (CellOf(before, *column, {}, hasUnit) != CellOf(after, *column, {}, hasUnit))
      changed.push_back(column);
  }
  return changed;
}

// What rows that are the same have in common.
std::string KeyOf(const ScheduleRow& row, SameBy by, bool hasUnit) {
  if (by == SameBy::Mark) return row.mark;
  std::string key = row.isRead ? "" : "damaged";
  for (const Column& column : COLUMNS) {
    if (column.isOfType) key += "\n" + CellOf(row, column, {}, hasUnit).text;
  }
  return key;
}

// "Cloudworks CW 78x140 780 x 1400", as far as it is known.
std::string TypeWords(const ScheduleRow& row, const SheetStyle& style, bool hasUnit) {
  const auto shown = [&](const char* column) {
    return Shown(CellOf(row, *FindColumn(column), style, hasUnit), style.language->decimalMark);
  };
  std::string words;
  for (const char* const column : {"maker", "key"}) {
    const std::string text = shown(column);
    if (!text.empty()) words += text + " ";
  }
  return row.width && row.length ? words + shown("width") + " x " + shown("length") : OneLine(words);
}

}  // namespace

Comparison Compare(const Schedule& before, const Schedule& after, Columns columns, SameBy by) {
  std::multimap<std::string, const ScheduleRow*> old;
  for (const ScheduleRow& row : before.rows)
    old.emplace(KeyOf(row, by, before.hasUnit), &row);
  Comparison comparison;
  for (const ScheduleRow& row : after.rows) {
    const std::string key = KeyOf(row, by, after.hasUnit);
    const auto found = old.lower_bound(key);
    if (found == old.end() || found->first != key) {
      comparison.came.push_back(&row);
      continue;
    }
    std::vector<const Column*> changed = ChangedColumns(*found->second, row, columns, after.hasUnit);
    if (!changed.empty()) comparison.changed.push_back({found->second, &row, std::move(changed)});
    old.erase(found);
  }
  for (const auto& [key, row] : old)
    comparison.went.push_back(row);
  std::sort(comparison.went.begin(), comparison.went.end());  // as they stand in their schedule
  return comparison;
}

Sheet SheetOf(const Comparison& comparison, const Schedule& before, const Schedule& after,
              const SheetStyle& style) {
  const Language& language = *style.language;
  Sheet sheet{fmt::format("{} {} - {}", language["comparison"], OneLine(before.file), OneLine(after.file)),
              &language,
              {},
              {},
              {}};
  for (const char* const key : {"mark", "change", "value", "before", "after"})
    sheet.headings.push_back({language[key]});
  const auto addRow = [&](const ScheduleRow& row, const char* change, bool isNow) {
    const Cell type{TypeWords(row, style, after.hasUnit)};
    sheet.rows.push_back(
        {{OneLine(row.mark)}, {language[change]}, {}, isNow ? Cell{} : type, isNow ? type : Cell{}});
  };
  for (const ScheduleRow* const row : comparison.came)
    addRow(*row, "came", true);
  for (const ScheduleRow* const row : comparison.went)
    addRow(*row, "went", false);
  for (const ChangedRow& changed : comparison.changed) {
    for (const Column* const column : changed.columns) {
      sheet.rows.push_back({{OneLine(changed.after->mark)},
                            {language["changed"]},
                            {HeadingOf(*column, style, after.hasUnit)},
                            CellOf(*changed.before, *column, style, after.hasUnit),
                            CellOf(*changed.after, *column, style, after.hasUnit)});
    }
  }
  return sheet;
}

}  // namespace teskarlt::schedule
