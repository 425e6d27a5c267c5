// Sheet.h - a schedule as a table of texts and numbers, in a language and its units.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/schedule/Columns.h"
#include "teskarlt/schedule/Language.h"
#include "teskarlt/schedule/Schedule.h"

namespace teskarlt::schedule {

enum class CellKind {
  Text,
  Number,      // digits with a point, as far as they are shown
  FeetInches,  // a length with its marks
};

struct Cell {
  std::string text;  // UTF-8 in one line; empty where nothing is known
  CellKind kind = CellKind::Text;

  bool operator==(const Cell& other) const = default;
};

struct Heading {
  std::string text;       // with the unit
  bool isNumber = false;  // the cells below are lengths or numbers
};

struct Sheet {
  std::string title;
  const Language* language = &ENGLISH;
  std::vector<Heading> headings;
  std::vector<std::vector<Cell>> rows;
  std::vector<Cell> totals;  // empty: none
};

// In what a schedule is written.
struct SheetStyle {
  const Language* language = &ENGLISH;
  LengthStyle lengths = LengthStyle::Metres;
  bool hasTotals = true;
};

using Columns = std::span<const Column* const>;

// Sizes are in tenths of a millimetre, heights and distances in millimetres though written in metres, areas
// to 0.01 m2 and angles to 0.1 degrees; where the drawing's unit is not known, all lengths are as they are.
Sheet SheetOf(const Schedule& schedule, Columns columns, const SheetStyle& style);

// The value of a row in a column.
Cell CellOf(const ScheduleRow& row, const Column& column, const SheetStyle& style, bool hasUnit);

// The heading of a column, with the unit.
std::string HeadingOf(const Column& column, const SheetStyle& style, bool hasUnit);

// The cell with the decimal mark.
std::string Shown(const Cell& cell, char decimalMark);

}  // namespace teskarlt::schedule
