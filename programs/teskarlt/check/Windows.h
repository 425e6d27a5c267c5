// Windows.h - checks the roof windows of a drawing.
#pragma once

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt::check {

// Extended data under the names of our applications that no roof window has.
void CheckWindowData(const Object& object, Findings& findings);

// Each window by itself and all of them together. Sizes are checked where the header names the unit. Windows
// that do not fit by the rules are told.
void CheckWindows(const dxf::Document& drawing, const FitRules& rules, Findings& findings);

}  // namespace teskarlt::check
