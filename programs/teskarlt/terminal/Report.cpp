// Report.cpp - tables on the terminal.
#include "teskarlt/terminal/Report.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/terminal/Messages.h"

namespace teskarlt {

namespace {

// Characters of a UTF-8 text.
std::size_t Width(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](unsigned char c) { return (c & 0xC0U) != 0x80U; }));
}

constexpr std::size_t GAP = 2;           // between two columns
constexpr std::size_t WIDE_TABLE = 100;  // characters

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(' ', begin), text.size());
    words.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return words;
}

// The text in lines that are as wide as its longest word, or as `width` where that is more.
std::vector<std::string> Broken(const std::string& text, std::size_t width) {
  std::vector<std::string> lines;
  for (const std::string_view word : Words(text))
    width = std::max(width, Width(word));
  for (const std::string_view word : Words(text)) {
    if (lines.empty() || Width(lines.back()) + 1 + Width(word) > width) {
      lines.emplace_back(word);
    } else {
      lines.back().append(" ").append(word);
    }
  }
  return lines;
}

using Rows = std::vector<std::vector<std::string>>;

std::vector<std::size_t> WidthsOf(const Rows& rows, std::size_t columns) {
  std::vector<std::size_t> widths(columns, 0);
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], Width(row[i]));
  }
  return widths;
}

std::vector<std::size_t> WidestOf(std::vector<std::size_t> widths, const std::vector<std::size_t>& others) {
  for (std::size_t i = 0; i < widths.size(); ++i)
    widths[i] = std::max(widths[i], others[i]);
  return widths;
}

// Headings in as many lines as the longest needs, with the short ones just above their columns.
Rows BrokenHeadings(const std::vector<std::string>& headings, const std::vector<std::size_t>& widths) {
  std::vector<std::vector<std::string>> broken;
  broken.reserve(headings.size());
  std::size_t height = 0;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    broken.push_back(Broken(headings[i], widths[i]));
    height = std::max(height, broken.back().size());
  }
  Rows lines(height, std::vector<std::string>(headings.size()));
  for (std::size_t i = 0; i < broken.size(); ++i) {
    for (std::size_t j = 0; j < broken[i].size(); ++j)
      lines[height - broken[i].size() + j][i] = broken[i][j];
  }
  return lines;
}

std::size_t TotalWidth(const std::vector<std::size_t>& widths) {
  return std::accumulate(widths.begin(), widths.end(), GAP * (widths.size() - 1));
}

void PrintRow(const std::vector<std::string>& row, const std::vector<std::size_t>& widths) {
  std::string line;
  for (std::size_t i = 0; i < row.size(); ++i) {
    line += row[i];
    if (i + 1 < row.size()) line.append(widths[i] - Width(row[i]) + GAP, ' ');
  }
  fmt::print("{}\n", line);
}

}  // namespace

void PrintJson(const Json& json) {
  json.Print([](std::string_view text) { fmt::print("{}", text); });
  fmt::print("\n");
}

Table::Table(std::vector<std::string> headings, Headings style)
    : headings_(std::move(headings)), style_(style) {}

void Table::Add(std::vector<std::string> row) {
  for (std::string& text : row)
    text = OneLine(text);
  rows_.push_back(std::move(row));
}

void Table::Print() const {
  const std::vector<std::size_t> widths = WidthsOf(rows_, headings_.size());
  Rows head{headings_};
  const bool isWide = TotalWidth(WidestOf(widths, WidthsOf(head, headings_.size()))) > WIDE_TABLE;
  if (isWide && style_ == Headings::Broken) head = BrokenHeadings(headings_, widths);
  const std::vector<std::size_t> printed = WidestOf(widths, WidthsOf(head, headings_.size()));
  for (const std::vector<std::string>& row : head)
    PrintRow(row, printed);
  for (const std::vector<std::string>& row : rows_)
    PrintRow(row, printed);
}

}  // namespace teskarlt
