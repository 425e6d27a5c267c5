// Schedules.h - small schedules for the tests.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "teskarlt/schedule/Columns.h"
#include "teskarlt/schedule/Schedule.h"
#include "teskarlt/schedule/Sheet.h"

namespace teskarlt::schedule {

// A window of 0.78 m x 1.4 m with a frame of 0.1 m, centre-pivot, on roof R1 at 35 degrees: its glass is
// 0.58 m x 1.2 m = 0.696 m2, its frame 1.092 m2 - 0.696 m2 = 0.396 m2.
inline ScheduleRow Window(const std::string& mark) {
  ScheduleRow row{.mark = mark};
  row.width = 0.78;
  row.length = 1.4;
  row.frameWidth = 0.1;
  row.frameDepth = 0.08;
  row.openingCode = "D";
  row.pitch = 35.0;
  row.roof = "R1";
  row.compass = "S";
  row.sill = 3.2;
  row.glassArea = 0.696;
  row.frameArea = 0.396;
  return row;
}

inline Schedule ScheduleOf(std::vector<ScheduleRow> rows) {
  return {"house.dxf", true, std::move(rows)};
}

// The columns of those names, each of which there is.
inline std::vector<const Column*> ColumnsOf(std::initializer_list<const char*> names) {
  std::vector<const Column*> columns;
  columns.reserve(names.size());
  for (const char* const name : names)
    columns.push_back(FindColumn(name));
  return columns;
}

// The texts of one row.
inline std::vector<std::string> TextsOf(const std::vector<Cell>& cells) {
  std::vector<std::string> texts;
  texts.reserve(cells.size());
  for (const Cell& cell : cells)
    texts.push_back(cell.text);
  return texts;
}

// A sheet with the column Name and one cell in it.
inline Sheet SheetWith(const Cell& cell) {
  Sheet sheet;
  sheet.title = "Windows";
  sheet.headings = {{"Name", cell.kind != CellKind::Text}};
  sheet.rows = {{cell}};
  return sheet;
}

}  // namespace teskarlt::schedule
