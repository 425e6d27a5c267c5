// RenumberCopies.cpp - gives copies of roof windows numbers of their own.
#include "teskarlt/windows/RenumberCopies.h"

#include <set>
#include <string>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/windows/WindowMarks.h"

namespace teskarlt {

namespace {

void StoreNumber(const DrawnWindow& window, std::int32_t number, dxf::Document& drawing) {
  for (const dxf::Entity* const entity : window.entities) {
    const auto tag = NumberTagOf(drawing, *entity);
    if (tag) drawing.ReplaceValue(*tag, std::to_string(number));
  }
}

}  // namespace

std::vector<Renumbered> RenumberCopies(dxf::Document& drawing) {
  const std::vector<DrawnWindow> windows = FindWindows(drawing, IN_DRAWING_UNITS);
  WindowNumbers taken = NumbersOf(drawing, windows);
  std::set<std::int32_t> known;
  std::vector<Renumbered> changes;
  for (const DrawnWindow& window : windows) {
    const bool isWhole = window.isComplete && EntityMismatch(window).empty();
    if (window.number == 0 || !isWhole || known.insert(window.number).second) continue;
    const std::int32_t number = taken.Free();
    taken.Take(number);
    const brevanta::RecordPoint place = ReadWindow(drawing, window).params.storedPoint;
    changes.push_back({window.number, number, place, window.entities.size()});
    StoreNumber(window, number, drawing);
    if (!window.mark.empty()) StoreMark(window, {}, drawing);
  }
  return changes;
}

}  // namespace teskarlt
