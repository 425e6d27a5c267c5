// WindowListing.cpp - the windows of a drawing as they are told to people.
#include "teskarlt/windows/WindowListing.h"

#include <algorithm>
#include <set>
#include <utility>

namespace teskarlt {

std::vector<ListedWindow> ListWindows(const dxf::Document& drawing, const WorkingUnit& unit) {
  std::vector<DrawnWindow> windows = FindWindows(drawing, unit);
  std::stable_sort(windows.begin(), windows.end(),
                   [](const DrawnWindow& a, const DrawnWindow& b) { return a.number < b.number; });
  std::vector<ListedWindow> listed;
  listed.reserve(windows.size());
  std::set<std::int32_t> numbers;
  for (DrawnWindow& window : windows) {
    WindowReading reading = ReadWindow(drawing, window);
    if (!numbers.insert(window.number).second) {
      reading.notes.emplace_back(
          EntityMismatch(window).empty()
              ? "its number is that of a window before it; teskarlt renumber gives it one of its own"
              : "its number is that of a window before it, of which it may be a part");
    }
    if (!reading.obstacle.empty()) reading.notes.push_back("it cannot be changed: " + reading.obstacle);
    listed.push_back({std::move(window), std::move(reading)});
  }
  return listed;
}

}  // namespace teskarlt
