// UnitChoice.h - the unit in which a drawing is worked on.
#pragma once

#include <string>

#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct UnitChoice {
  const DrawingUnit& unit;
  std::string warning;  // for people, where the user forced another than the drawing's; else empty
};

// The unit as UnitOf finds it; the drawing counts with it from now on. Throws Error as UnitOf does.
UnitChoice ChooseUnit(dxf::Document& drawing, const AskedUnit& asked);

}  // namespace teskarlt
