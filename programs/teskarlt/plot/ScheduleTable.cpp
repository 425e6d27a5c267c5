// ScheduleTable.cpp - the schedule of windows as a table beside a plan.
#include "teskarlt/plot/ScheduleTable.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace teskarlt::plot {

namespace {

constexpr double TITLE_SIZE = 3;
constexpr double TITLE_HEIGHT = 6;
constexpr double TEXT_SIZE = 2.2;
constexpr double HEADING_SIZE = 2;
constexpr double HEADING_LINE = 2.7;
constexpr double ROW = 4.2;
constexpr double PADDING = 1.2;

// A line for each word; units stand behind the last one.
std::vector<std::string> WordsOf(const std::string& text) {
  std::vector<std::string> words(1);
  for (const char c : text) {
    if (c == ' ') {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  return words;
}

}  // namespace

ScheduleTable::ScheduleTable(const schedule::Sheet& sheet) : sheet_(sheet) {
  headings_.reserve(sheet.headings.size());
  widths_.reserve(sheet.headings.size());
  for (std::size_t column = 0; column < sheet.headings.size(); ++column) {
    headings_.push_back(WordsOf(sheet.headings[column].text));
    double width = 0;
    for (const std::string& word : headings_.back())
      width = std::max(width, TextWidth(word, HEADING_SIZE));
    const auto widen = [&](const std::vector<schedule::Cell>& cells) {
      if (!cells.empty()) width = std::max(width, TextWidth(cells[column].text, TEXT_SIZE));
    };
    std::for_each(sheet.rows.begin(), sheet.rows.end(), widen);
    widen(sheet.totals);
    widths_.push_back(width + 2 * PADDING);
  }
}

double ScheduleTable::Width() const {
  return std::max(std::accumulate(widths_.begin(), widths_.end(), 0.0), TextWidth(sheet_.title, TITLE_SIZE));
}

double ScheduleTable::HeadHeight() const {
  std::size_t lines = 1;
  for (const std::vector<std::string>& heading : headings_)
    lines = std::max(lines, heading.size());
  return static_cast<double>(lines) * HEADING_LINE + PADDING;
}

std::size_t ScheduleTable::RowCount() const {
  return sheet_.rows.size() + (sheet_.totals.empty() ? 0 : 1);
}

double ScheduleTable::Height() const {
  return TITLE_HEIGHT + HeadHeight() + static_cast<double>(RowCount()) * ROW;
}

void ScheduleTable::Draw(const PaperPoint& corner, Canvas& canvas) const {
  canvas.BeginGroup("schedule", " fill=\"#000000\"");
  canvas.Text({sheet_.title, {corner.x, corner.y + TITLE_SIZE}, TITLE_SIZE, Anchor::Start, true});
  PaperPoint at{corner.x, corner.y + TITLE_HEIGHT};
  DrawRules(at, canvas);
  DrawHeadings(at, canvas);
  at.y += HeadHeight();
  for (const std::vector<schedule::Cell>& row : sheet_.rows) {
    DrawRow(row, at, false, canvas);
    at.y += ROW;
  }
  if (!sheet_.totals.empty()) DrawRow(sheet_.totals, at, true, canvas);
  canvas.EndGroup();
}

void ScheduleTable::DrawHeadings(const PaperPoint& corner, Canvas& canvas) const {
  double x = corner.x;
  for (std::size_t column = 0; column < widths_.size(); ++column) {
    double y = corner.y + HEADING_LINE;
    const bool isNumber = sheet_.headings[column].isNumber;
    for (const std::string& word : headings_[column]) {
      const double at = isNumber ? x + widths_[column] - PADDING : x + PADDING;
      canvas.Text({word, {at, y}, HEADING_SIZE, isNumber ? Anchor::End : Anchor::Start, true});
      y += HEADING_LINE;
    }
    x += widths_[column];
  }
}

void ScheduleTable::DrawRow(const std::vector<schedule::Cell>& cells, const PaperPoint& corner, bool isBold,
                            Canvas& canvas) const {
  double x = corner.x;
  const double y = corner.y + (ROW + TEXT_SIZE * CAPITAL) / 2;
  for (std::size_t column = 0; column < cells.size(); ++column) {
    const schedule::Cell& cell = cells[column];
    const bool isNumber = sheet_.headings[column].isNumber && cell.kind != schedule::CellKind::Text;
    const double at = isNumber ? x + widths_[column] - PADDING : x + PADDING;
    const std::string text = schedule::Shown(cell, sheet_.language->decimalMark);
    if (!text.empty())
      canvas.Text({text, {at, y}, TEXT_SIZE, isNumber ? Anchor::End : Anchor::Start, isBold});
    x += widths_[column];
  }
}

void ScheduleTable::DrawRules(const PaperPoint& corner, Canvas& canvas) const {
  const double right = corner.x + std::accumulate(widths_.begin(), widths_.end(), 0.0);
  const double bottom = corner.y + Height() - TITLE_HEIGHT;
  canvas.BeginGroup("rules", R"( fill="none" stroke="#000000" stroke-width="0.13")");
  double y = corner.y + HeadHeight();
  for (std::size_t row = 0; row < RowCount(); ++row) {
    canvas.Line({{corner.x, y}, {right, y}});
    y += ROW;
  }
  double x = corner.x;
  for (std::size_t column = 0; column + 1 < widths_.size(); ++column) {
    x += widths_[column];
    canvas.Line({{x, corner.y}, {x, bottom}});
  }
  canvas.Box({corner.x, corner.y, right, bottom}, " stroke-width=\"0.35\"");
  canvas.EndGroup();
}

}  // namespace teskarlt::plot
