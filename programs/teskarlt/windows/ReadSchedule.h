// ReadSchedule.h - the roof windows of a drawing as a schedule.
#pragma once

#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/schedule/Schedule.h"

namespace teskarlt {

// A row for each window, as it stands in the drawing, by the numbers of the windows. Roofs and the distances
// to their edges are those of `roofs` and `--from-eaves`; a window on a plane of its own has none.
// `tolerance` is a millimetre in drawing units, for a drawing whose unit is not known.
schedule::Schedule ReadSchedule(const dxf::Document& drawing, const DrawingUnit& unit, double tolerance);

}  // namespace teskarlt
