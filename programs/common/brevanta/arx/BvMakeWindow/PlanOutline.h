// PlanOutline.h - the window's outline in the roof plane as lines.
#pragma once

#include <cstdint>

#include "arx/BvMakeWindow/BvMakeWindow.h"

namespace brevanta {

// Draws, of outlines with four roof-local corners each (WindowOutlines.h): with a non-zero `symbolSwitch` the
// frame's outer outline, beside the opening symbol; with 0 the opening, the frame's top edge and the cross of
// a hole.
void DrawPlanOutline(CbvMakeWindow& maker, const Point3dArray& outer, const Point3dArray& opening,
                     std::int32_t symbolSwitch);

}  // namespace brevanta
