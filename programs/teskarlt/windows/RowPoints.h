// RowPoints.h - where the windows of a row stand.
#pragma once

#include <vector>

#include "teskarlt/drawing/SlopeFrame.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// The windows' points in the plan, from left to right or from the bottom to the top, `step` apart along the
// roof. `roof` is the frame of its plane; all in one unit. Throws Error as PlaceOfPoint does.
std::vector<PlanPoint> RowPoints(const RowOrder& row, const PlanPoint& point, const SlopeFrame& roof,
                                 double step);

}  // namespace teskarlt
