// RowPoints.h - where the windows of a row stand.
#pragma once

#include <vector>

#include "teskarlt/drawing/SlopeFrame.h"
#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// How far the first and the last window of a row stand from its point, along the roof, in the unit of `step`;
// neither is negative.
struct RowReach {
  double before = 0.0;
  double behind = 0.0;
  bool isColumn = false;  // up the slope, else along the eaves
};

// The reach of a row whose windows stand `step` apart. Throws Error as PlaceOfPoint does.
RowReach ReachOf(const RowOrder& row, double step);

// The windows' points in the plan, from left to right or from the bottom to the top, `step` apart along the
// roof. `roof` is the frame of its plane; all in working units, and their texts in drawing units. Throws
// Error as PlaceOfPoint does.
std::vector<PlanPoint> RowPoints(const RowOrder& row, const PlanPoint& point, const SlopeFrame& roof,
                                 double step, const WorkingUnit& unit);

}  // namespace teskarlt
