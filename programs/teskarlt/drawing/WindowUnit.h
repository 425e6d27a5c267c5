// WindowUnit.h - the unit in which the windows of a drawing were drawn.
#pragma once

#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// By the windows' glass: it lies 2 cm below the frame's top whatever the window's sizes are. Null where no
// window has a body that shows it, and where two of them differ.
const DrawingUnit* UnitOfWindows(const dxf::Document& drawing);

}  // namespace teskarlt
