// Markdown.cpp - a sheet as a table in Markdown.
#include "teskarlt/schedule/Markdown.h"

#include <string_view>

namespace teskarlt::schedule {

namespace {

// Underscores within a word, as names of layers have them, mean nothing.
std::string Escaped(const std::string& text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char c : text) {
    if (std::string_view("\\|`*<&[]").find(c) != std::string_view::npos) escaped += '\\';
    escaped += c;
  }
  return escaped;
}

void PutRow(const std::vector<Cell>& cells, const Sheet& sheet, std::string& text) {
  text += '|';
  for (const Cell& cell : cells)
    text += " " + Escaped(Shown(cell, sheet.language->decimalMark)) + " |";
  text += '\n';
}

}  // namespace

std::string Markdown(const Sheet& sheet) {
  std::string text = "# " + Escaped(sheet.title) + "\n\n|";
  for (const Heading& heading : sheet.headings)
    text += " " + Escaped(heading.text) + " |";
  text += "\n|";
  for (const Heading& heading : sheet.headings)
    text += heading.isNumber ? " ---: |" : " --- |";
  text += '\n';
  for (const std::vector<Cell>& row : sheet.rows)
    PutRow(row, sheet, text);
  if (!sheet.totals.empty()) PutRow(sheet.totals, sheet, text);
  return text;
}

}  // namespace teskarlt::schedule
