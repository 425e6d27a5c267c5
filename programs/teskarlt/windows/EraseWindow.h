// EraseWindow.h - takes a window out of a drawing.
#pragma once

#include <cstddef>

#include "teskarlt/dxf/Document.h"
#include "teskarlt/modules/WindowModule.h"

namespace teskarlt {

// Erases the window with that number and gives how many entities it had. Throws Error, with the drawing as it
// was, when there is no such window, several bear the number, or its layer is locked or frozen and
// `isLockedToo` is false.
std::size_t EraseWindow(const WindowModule& module, dxf::Document& drawing, int number, bool isLockedToo);

}  // namespace teskarlt
