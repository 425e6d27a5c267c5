// WindowChoice.cpp - the window of a drawing that a number names.
#include "teskarlt/windows/WindowChoice.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/Error.h"

namespace teskarlt {

const DrawnWindow& ChooseWindow(const std::vector<DrawnWindow>& windows, const std::string& file,
                                int number) {
  const auto bears = [number](const DrawnWindow& window) { return window.number == number; };
  const auto found = std::find_if(windows.begin(), windows.end(), bears);
  if (found == windows.end()) {
    throw Error(windows.empty()
                    ? fmt::format("{} holds no roof window", file)
                    : fmt::format("{} has no window {}; teskarlt list shows its windows", file, number));
  }
  const auto count = std::count_if(windows.begin(), windows.end(), bears);
  if (count == 1) return *found;
  throw Error(fmt::format(
      "{} has {} windows with the number {}, as a copy bears that of its model; teskarlt renumber "
      "gives copies numbers of their own",
      file, count, number));
}

}  // namespace teskarlt
