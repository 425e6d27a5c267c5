// OrderUnits.h - an order in the unit in which windows are computed.
#pragma once

#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// The order with its points, which the user gave in drawing units, in working ones: where the window goes,
// the roof's plane, and the settings of fields that are points. A setting that holds no points stays as it is
// for the dialog to refuse.
WindowOrder InWorkingUnits(const WindowOrder& order, const WorkingUnit& unit);

}  // namespace teskarlt
