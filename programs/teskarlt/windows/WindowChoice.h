// WindowChoice.h - the window of a drawing that a number names.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"

namespace teskarlt {

// The window with that number. Throws Error, with what there is, when no window or several bear it.
const DrawnWindow& ChooseWindow(const std::vector<DrawnWindow>& windows, const std::string& file, int number);

}  // namespace teskarlt
