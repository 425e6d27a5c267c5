// Schedule.cpp - rows of a schedule put into order and put together by type.
#include "teskarlt/schedule/Schedule.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/schedule/Columns.h"

namespace teskarlt::schedule {

namespace {

constexpr double STEPS = 1e4;  // a metre or degree; what is the same in them is no difference between windows

bool IsDigit(char c) {
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// Takes the digits at the beginning off the text and gives them without leading zeros.
std::string_view TakeNumber(std::string_view& text) {
  const auto end =
      static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) - text.begin());
  std::string_view digits = text.substr(0, end);
  text.remove_prefix(end);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

// Negative, 0 or positive as the one text comes before the other, with it or behind it.
int CompareNaturally(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    if (IsDigit(a[0]) && IsDigit(b[0])) {
      const std::string_view numberA = TakeNumber(a);
      const std::string_view numberB = TakeNumber(b);
      if (numberA.size() != numberB.size()) return numberA.size() < numberB.size() ? -1 : 1;
      if (const int order = numberA.compare(numberB); order != 0) return order;
    } else {
      if (a[0] != b[0]) return static_cast<unsigned char>(a[0]) < static_cast<unsigned char>(b[0]) ? -1 : 1;
      a.remove_prefix(1);
      b.remove_prefix(1);
    }
  }
  return static_cast<int>(b.empty()) - static_cast<int>(a.empty());
}

// An empty text comes last.
int CompareTexts(const std::string& a, const std::string& b) {
  if (a.empty() != b.empty()) return a.empty() ? 1 : -1;
  return CompareNaturally(a, b);
}

int CompareNumbers(const std::optional<double>& a, const std::optional<double>& b) {
  if (a.has_value() != b.has_value()) return a ? -1 : 1;
  const double stepsA = std::round(a.value_or(0.0) * STEPS);
  const double stepsB = std::round(b.value_or(0.0) * STEPS);
  return static_cast<int>(stepsA > stepsB) - static_cast<int>(stepsA < stepsB);
}

int CompareIn(const Column& column, const ScheduleRow& a, const ScheduleRow& b) {
  return column.text != nullptr ? CompareTexts(a.*column.text, b.*column.text)
                                : CompareNumbers(a.*column.number, b.*column.number);
}

int CompareTypes(const ScheduleRow& a, const ScheduleRow& b) {
  for (const Column& column : COLUMNS) {
    if (!column.isOfType) continue;
    if (const int order = CompareIn(column, a, b); order != 0) return order;
  }
  return static_cast<int>(b.isRead) - static_cast<int>(a.isRead);
}

bool IsBefore(Order order, const ScheduleRow& a, const ScheduleRow& b) {
  switch (order) {
    case Order::Roof:
      return CompareTexts(a.roof, b.roof) < 0;
    case Order::Type:
      return CompareTypes(a, b) < 0;
    case Order::Mark:
      break;
  }
  return CompareTexts(a.mark, b.mark) < 0;
}

// Windows of one type.
using Windows = std::vector<const ScheduleRow*>;

// The texts of the windows, each once.
std::string JoinedTexts(const Windows& windows, std::string ScheduleRow::*text) {
  std::vector<std::string> texts;
  for (const ScheduleRow* window : windows) {
    const std::string& own = window->*text;
    if (!own.empty() && std::find(texts.begin(), texts.end(), own) == texts.end()) texts.push_back(own);
  }
  return fmt::format("{}", fmt::join(texts, ", "));
}

std::optional<double> CommonNumber(const Windows& windows, std::optional<double> ScheduleRow::*number) {
  const bool isCommon = std::all_of(windows.begin(), windows.end(), [&](const ScheduleRow* window) {
    return CompareNumbers(window->*number, windows.front()->*number) == 0;
  });
  return isCommon ? windows.front()->*number : std::nullopt;
}

ScheduleRow TypeRow(const Windows& windows) {
  ScheduleRow row = *windows.front();
  for (const Column& column : COLUMNS) {
    if (column.isOfType || column.text == &ScheduleRow::openingCode) continue;
    if (column.text != nullptr) {
      row.*column.text = JoinedTexts(windows, column.text);
    } else {
      row.*column.number = CommonNumber(windows, column.number);
    }
  }
  row.quantity = 0.0;
  for (const ScheduleRow* window : windows)
    *row.quantity += window->quantity.value_or(1.0);
  return row;
}

}  // namespace

bool IsNaturallyBefore(std::string_view a, std::string_view b) {
  return CompareNaturally(a, b) < 0;
}

void Sort(Order order, Schedule& schedule) {
  std::stable_sort(schedule.rows.begin(), schedule.rows.end(),
                   [=](const ScheduleRow& a, const ScheduleRow& b) { return IsBefore(order, a, b); });
}

Schedule ByType(const Schedule& schedule) {
  std::vector<Windows> types;
  for (const ScheduleRow& row : schedule.rows) {
    const auto type = std::find_if(types.begin(), types.end(), [&](const Windows& windows) {
      return CompareTypes(*windows.front(), row) == 0;
    });
    if (type != types.end()) {
      type->push_back(&row);
    } else {
      types.push_back({&row});
    }
  }
  Schedule byType{schedule.file, schedule.hasUnit, {}};
  byType.rows.reserve(types.size());
  for (const Windows& windows : types)
    byType.rows.push_back(TypeRow(windows));
  return byType;
}

}  // namespace teskarlt::schedule
