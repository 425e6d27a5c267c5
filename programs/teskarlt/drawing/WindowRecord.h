// WindowRecord.h - the record with which a window that stands in a drawing can be inserted again.
#pragma once

#include "inc/WindowParams.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// The window's record, texts in the drawing's code page. What the extended data does not hold comes from the
// geometry: `bodyAsFaces`, `skirtHeight` and, where the window uses it, `slopeOffset`; `pickOffset` and
// `rotation`, which its place holds already, are 0. Throws Error when the description is damaged, entities
// are missing or were added, or their size no longer is what the description says.
brevanta::WindowParams RecordOf(const dxf::Document& drawing, const DrawnWindow& window);

// True when the record's second plane is the roof plane lowered by the layer's thickness along its normal,
// within `tolerance` (drawing units).
bool IsUnderside(const brevanta::WindowParams& params, double tolerance);

}  // namespace teskarlt
