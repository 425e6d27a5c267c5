// EraseWindow.cpp - takes a window out of a drawing.
#include "teskarlt/windows/EraseWindow.h"

#include <vector>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/windows/ClosedLayers.h"
#include "teskarlt/windows/WindowChoice.h"

namespace teskarlt {

std::size_t EraseWindow(const WindowModule& module, dxf::Document& drawing, int number, bool isLockedToo) {
  const std::vector<DrawnWindow> windows = FindWindows(drawing, IN_DRAWING_UNITS);
  const DrawnWindow& window = ChooseWindow(windows, drawing.FileName(), number);
  if (HasMoreThanOneWindow(window)) {
    throw Error(
        fmt::format("window {} cannot be told from a part of a copy of it: {}; take the copy's parts out "
                    "in the CAD program",
                    window.number, EntityMismatch(window)));
  }
  if (!isLockedToo) RefuseClosedLayers(drawing, window);
  WindowRequest request;
  request.replaced = window.entities;
  return module.Erase(drawing, request).erased;
}

}  // namespace teskarlt
