// WindowUnit.h - the unit in which the windows of a drawing were drawn.
#pragma once

#include <cstdint>
#include <optional>

#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// Drawing units per metre, by the windows' glass: it lies 2 cm below the frame's top whatever the window's
// sizes are. None where no window has a body that shows it, and where two of them differ.
std::optional<std::int32_t> UnitFactorOfWindows(const dxf::Document& drawing);

}  // namespace teskarlt
