// WindowListing.h - the windows of a drawing as they are told to people: by their numbers, with notes.
#pragma once

#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct ListedWindow {
  DrawnWindow window;
  // Its notes also say that another window has its number, and why it cannot be changed.
  WindowReading reading;
};

// By their numbers; windows that share one in the order of the file. The drawing must outlive the result.
std::vector<ListedWindow> ListWindows(const dxf::Document& drawing, const WorkingUnit& unit);

}  // namespace teskarlt
