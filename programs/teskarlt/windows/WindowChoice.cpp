// WindowChoice.cpp - the windows of a drawing that a command works on.
#include "teskarlt/windows/WindowChoice.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt {

namespace {

[[noreturn]] void RefuseCopies(const std::string& file, std::ptrdiff_t count, int number) {
  throw Error(fmt::format(
      "{} has {} windows with the number {}, as a copy bears that of its model; teskarlt renumber "
      "gives copies numbers of their own",
      file, count, number));
}

void RequireWindows(const std::vector<DrawnWindow>& windows, const std::string& file) {
  if (windows.empty()) throw Error(fmt::format("{} holds no roof window", file));
}

// Puts a number of the text into `number` and takes it off the text; false when there is none.
bool TakeNumber(std::string_view& text, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return error == std::errc();
}

bool IsIn(const NumberRange& range, const DrawnWindow& window) {
  return range.first <= window.number && window.number <= range.last;
}

bool IsOfType(const DrawnWindow& window, const std::string& type) {
  const std::string wanted = dxf::FoldedName(type);
  return wanted == dxf::FoldedName(window.text2) ||
         wanted == dxf::FoldedName(fmt::format("{}/{}", window.text1, window.text2));
}

void RequireNumbers(const std::vector<DrawnWindow>& windows, const std::string& file,
                    const WindowSelection& selection) {
  for (const NumberRange& range : selection.numbers) {
    const auto isIn = [&](const DrawnWindow& window) { return IsIn(range, window); };
    if (std::any_of(windows.begin(), windows.end(), isIn)) continue;
    const std::string wanted = range.first == range.last
                                   ? fmt::format("no window {}", range.first)
                                   : fmt::format("no window from {} to {}", range.first, range.last);
    throw Error(fmt::format("{} has {}; teskarlt list shows its windows", file, wanted));
  }
}

bool IsSelected(const dxf::Document& drawing, const DrawnWindow& window, const WindowSelection& selection) {
  const auto isIn = [&](const NumberRange& range) { return IsIn(range, window); };
  const auto& numbers = selection.numbers;
  if (!numbers.empty() && std::none_of(numbers.begin(), numbers.end(), isIn)) return false;
  if (!selection.type.empty() && !IsOfType(window, selection.type)) return false;
  return !selection.where || selection.where->Holds(drawing, window, ReadWindow(drawing, window));
}

// What was asked for beside numbers, for people.
std::string Wish(const WindowSelection& selection) {
  std::string wish;
  if (selection.where) wish = fmt::format("meets {}", selection.where->Text());
  if (selection.type.empty()) return wish;
  return fmt::format("{}{}is of type {}", wish, wish.empty() ? "" : " and ", selection.type);
}

void RefuseSharedNumbers(const std::vector<DrawnWindow>& windows, const std::string& file,
                         const std::vector<const DrawnWindow*>& chosen) {
  std::unordered_map<int, std::ptrdiff_t> counts;
  for (const DrawnWindow* const window : chosen)
    counts[window->number] = 0;
  for (const DrawnWindow& window : windows)
    if (const auto count = counts.find(window.number); count != counts.end()) ++count->second;
  for (const DrawnWindow* const window : chosen) {
    const std::ptrdiff_t count = counts[window->number];
    if (count > 1) RefuseCopies(file, count, window->number);
  }
}

}  // namespace

const DrawnWindow& ChooseWindow(const std::vector<DrawnWindow>& windows, const std::string& file,
                                int number) {
  const auto bears = [number](const DrawnWindow& window) { return window.number == number; };
  RequireWindows(windows, file);
  const auto found = std::find_if(windows.begin(), windows.end(), bears);
  if (found == windows.end())
    throw Error(fmt::format("{} has no window {}; teskarlt list shows its windows", file, number));
  const auto count = std::count_if(windows.begin(), windows.end(), bears);
  if (count > 1) RefuseCopies(file, count, number);
  return *found;
}

std::optional<NumberRange> ParseNumberRange(std::string_view text) {
  NumberRange range{};
  if (!TakeNumber(text, range.first)) return std::nullopt;
  range.last = range.first;
  if (text.empty()) return range;
  if (text.front() != '-') return std::nullopt;
  text.remove_prefix(1);
  if (!TakeNumber(text, range.last) || !text.empty() || range.last < range.first) return std::nullopt;
  return range;
}

bool WindowSelection::IsOneNumber() const {
  return numbers.size() == 1 && numbers[0].first == numbers[0].last && !where && type.empty();
}

std::vector<const DrawnWindow*> ChooseWindows(const dxf::Document& drawing,
                                              const std::vector<DrawnWindow>& windows,
                                              const WindowSelection& selection) {
  const std::string& file = drawing.FileName();
  RequireWindows(windows, file);
  RequireNumbers(windows, file, selection);
  std::vector<const DrawnWindow*> chosen;
  for (const DrawnWindow& window : windows)
    if (IsSelected(drawing, window, selection)) chosen.push_back(&window);
  if (chosen.empty()) {
    throw Error(fmt::format("none of the {}windows of {} {}; teskarlt list shows them",
                            selection.numbers.empty() ? "" : "named ", file, Wish(selection)));
  }
  RefuseSharedNumbers(windows, file, chosen);
  std::sort(chosen.begin(), chosen.end(),
            [](const DrawnWindow* a, const DrawnWindow* b) { return a->number < b->number; });
  return chosen;
}

}  // namespace teskarlt
