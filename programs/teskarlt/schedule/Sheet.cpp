// Sheet.cpp - a schedule as a table of texts and numbers.
#include "teskarlt/schedule/Sheet.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include <fmt/format.h>

#include "teskarlt/terminal/Messages.h"

namespace teskarlt::schedule {

namespace {

constexpr double MILLIMETRES = 1000.0;  // a metre
constexpr int SIZE_DIGITS = 1;          // behind the point
constexpr int HEIGHT_DIGITS = 3;
constexpr int AREA_DIGITS = 2;
constexpr int ANGLE_DIGITS = 1;

bool IsLength(ColumnKind kind) {
  return kind == ColumnKind::Size || kind == ColumnKind::Height;
}

bool IsInFeet(const SheetStyle& style, bool hasUnit) {
  return hasUnit && style.lengths == LengthStyle::FeetAndInches;
}

// With so many digits behind the point; what rounds to 0 has no sign.
std::string Digits(double value, int digits) {
  const double scale = std::pow(10.0, digits);
  return fmt::format("{:.{}f}", std::round(value * scale) / scale + 0.0, digits);
}

// A whole number of millimetres has no point.
std::string SizeDigits(double metres) {
  std::string text = Digits(metres * MILLIMETRES, SIZE_DIGITS);
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  return text;
}

Cell LengthCell(double length, ColumnKind kind, const SheetStyle& style, bool hasUnit) {
  if (IsInFeet(style, hasUnit)) return {FeetInchesText(length), CellKind::FeetInches};
  if (kind == ColumnKind::Size && hasUnit) return {SizeDigits(length), CellKind::Number};
  return {Digits(length, HEIGHT_DIGITS), CellKind::Number};
}

Cell NumberCell(double value, ColumnKind kind, const SheetStyle& style, bool hasUnit) {
  if (IsLength(kind)) return LengthCell(value, kind, style, hasUnit);
  if (kind == ColumnKind::Count) return {Digits(value, 0), CellKind::Number};
  if (kind == ColumnKind::Angle) return {Digits(value, ANGLE_DIGITS), CellKind::Number};
  const double area = IsInFeet(style, hasUnit) ? value / (METRES_PER_FOOT * METRES_PER_FOOT) : value;
  return {Digits(area, AREA_DIGITS), CellKind::Number};
}

std::string UnitText(ColumnKind kind, const SheetStyle& style, bool hasUnit) {
  if (kind == ColumnKind::Angle) return "°";
  if (!hasUnit) return {};
  const bool isInFeet = IsInFeet(style, hasUnit);
  if (IsLength(kind)) return isInFeet ? "ft-in" : kind == ColumnKind::Size ? "mm" : "m";
  if (kind == ColumnKind::Area) return isInFeet ? "sq ft" : "m²";
  return {};
}

// The sums, and their name in the first column where that has none.
std::vector<Cell> TotalsOf(const Schedule& schedule, Columns columns, const SheetStyle& style) {
  std::vector<Cell> cells;
  cells.reserve(columns.size());
  for (const Column* column : columns) {
    const auto total = column->isTotalled ? TotalOf(*column, schedule) : std::nullopt;
    cells.push_back(total ? NumberCell(*total, column->kind, style, schedule.hasUnit) : Cell{});
  }
  if (!cells.empty() && cells.front().text.empty()) cells.front().text = (*style.language)["total"];
  return cells;
}

}  // namespace

Cell CellOf(const ScheduleRow& row, const Column& column, const SheetStyle& style, bool hasUnit) {
  if (column.number != nullptr) {
    const std::optional<double>& value = row.*column.number;
    return value ? NumberCell(*value, column.kind, style, hasUnit) : Cell{};
  }
  const std::string& text = row.*column.text;
  if (column.kind == ColumnKind::Opening)
    return {row.isRead ? OneLine(OpeningWords(text, *style.language)) : ""};
  if (column.kind == ColumnKind::Compass) return {CompassWords(text, *style.language)};
  return {OneLine(text)};
}

std::string HeadingOf(const Column& column, const SheetStyle& style, bool hasUnit) {
  const std::string unit = UnitText(column.kind, style, hasUnit);
  return (*style.language)[column.name] + (unit.empty() ? "" : " " + unit);
}

Sheet SheetOf(const Schedule& schedule, Columns columns, const SheetStyle& style) {
  Sheet sheet{(*style.language)["schedule"] + " " + OneLine(schedule.file), style.language, {}, {}, {}};
  sheet.headings.reserve(columns.size());
  for (const Column* column : columns)
    sheet.headings.push_back({HeadingOf(*column, style, schedule.hasUnit), column->number != nullptr});
  sheet.rows.reserve(schedule.rows.size());
  for (const ScheduleRow& row : schedule.rows) {
    std::vector<Cell>& cells = sheet.rows.emplace_back();
    cells.reserve(columns.size());
    for (const Column* column : columns)
      cells.push_back(CellOf(row, *column, style, schedule.hasUnit));
  }
  const auto isTotalled = [](const Column* column) { return column->isTotalled; };
  if (style.hasTotals && std::any_of(columns.begin(), columns.end(), isTotalled))
    sheet.totals = TotalsOf(schedule, columns, style);
  return sheet;
}

std::string Shown(const Cell& cell, char decimalMark) {
  std::string text = cell.text;
  if (cell.kind == CellKind::Number) std::replace(text.begin(), text.end(), '.', decimalMark);
  return text;
}

}  // namespace teskarlt::schedule
