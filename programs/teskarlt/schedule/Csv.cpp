// Csv.cpp - a sheet as comma-separated values.
#include "teskarlt/schedule/Csv.h"

#include <string_view>

namespace teskarlt::schedule {

namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::string_view LINE_END = "\r\n";

// A lone dash is a word, the code of fixed glazing.
bool LooksLikeFormula(std::string_view text) {
  return !text.empty() && text != "-" && std::string_view("=+-@").find(text[0]) != std::string_view::npos;
}

std::string Field(const std::string& text, char delimiter) {
  const char special[] = {delimiter, '"', '\r', '\n', '\0'};
  if (text.find_first_of(special) == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

std::string FieldOf(const Cell& cell, const CsvOptions& options) {
  const bool isHarmful = cell.kind == CellKind::Text && LooksLikeFormula(cell.text);
  return Field((isHarmful ? "'" : "") + Shown(cell, options.decimalMark), options.delimiter);
}

void PutRecord(const std::vector<Cell>& cells, const CsvOptions& options, std::string& csv) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) csv += options.delimiter;
    csv += FieldOf(cells[i], options);
  }
  csv += LINE_END;
}

}  // namespace

std::string Csv(const Sheet& sheet, const CsvOptions& options) {
  std::string csv(options.hasByteOrderMark ? BYTE_ORDER_MARK : "");
  std::vector<Cell> headings;
  headings.reserve(sheet.headings.size());
  for (const Heading& heading : sheet.headings)
    headings.push_back({heading.text});
  PutRecord(headings, options, csv);
  for (const std::vector<Cell>& row : sheet.rows)
    PutRecord(row, options, csv);
  if (!sheet.totals.empty()) PutRecord(sheet.totals, options, csv);
  return csv;
}

}  // namespace teskarlt::schedule
