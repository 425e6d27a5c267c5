// EraseWindows.cpp - takes windows out of a drawing.
#include "teskarlt/windows/EraseWindows.h"

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/windows/AllOrNone.h"
#include "teskarlt/windows/ClosedLayers.h"

namespace teskarlt {

namespace {

void RefuseUnclear(const DrawnWindow& window) {
  if (!HasMoreThanOneWindow(window)) return;
  throw Error(
      fmt::format("window {} cannot be told from a part of a copy of it: {}; take the copy's parts out "
                  "in the CAD program",
                  window.number, EntityMismatch(window)));
}

}  // namespace

std::vector<ErasedWindow> EraseWindows(const WindowModule& module, dxf::Document& drawing,
                                       const WindowSelection& selection, const WorkingUnit& unit,
                                       bool isLockedToo) {
  const std::vector<DrawnWindow> windows = FindWindows(drawing, unit);
  const std::vector<const DrawnWindow*> chosen = ChooseWindows(drawing, windows, selection);
  for (const DrawnWindow* const window : chosen) {
    RefuseUnclear(*window);
    if (!isLockedToo) RefuseClosedLayers(drawing, *window);
  }

  return AllOrNone(drawing, [&] {
    std::vector<ErasedWindow> erased;
    erased.reserve(chosen.size());
    for (const DrawnWindow* const window : chosen) {
      WindowRequest request;
      request.replaced = window->entities;
      erased.push_back({window->number, module.Erase(drawing, request).erased});
    }
    return erased;
  });
}

}  // namespace teskarlt
