// Report.cpp - tables on the terminal.
#include "teskarlt/terminal/Report.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/terminal/Messages.h"

namespace teskarlt {

namespace {

// Characters of a UTF-8 text.
std::size_t Width(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](unsigned char c) { return (c & 0xC0U) != 0x80U; }));
}

}  // namespace

void PrintJson(const Json& json) {
  json.Print([](std::string_view text) { fmt::print("{}", text); });
  fmt::print("\n");
}

Table::Table(std::vector<std::string> headings) : rows_{std::move(headings)} {}

void Table::Add(std::vector<std::string> row) {
  for (std::string& text : row)
    text = OneLine(text);
  rows_.push_back(std::move(row));
}

void Table::Print() const {
  std::vector<std::size_t> widths(rows_[0].size(), 0);
  for (const auto& row : rows_) {
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], Width(row[i]));
  }
  for (const auto& row : rows_) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += row[i];
      if (i + 1 < row.size()) line.append(widths[i] - Width(row[i]) + 2, ' ');
    }
    fmt::print("{}\n", line);
  }
}

}  // namespace teskarlt
