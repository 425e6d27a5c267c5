// ReadPlanNotes.h - the roofs and roof windows of a drawing for a plan of it.
#pragma once

#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/plot/PlanNotes.h"

namespace teskarlt {

// The sloped roofs that take windows, in the order of `roofs`, and the windows whose entities show a frame,
// by their numbers, with the marks of the schedule. Throws Error for a malformed drawing.
plot::PlanNotes ReadPlanNotes(const dxf::Document& drawing, const DrawingUnit& unit);

}  // namespace teskarlt
