// Units.h - the unit of a drawing, and the factor by which the module scales the record's metres.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct DrawingUnit {
  int insUnits;           // $INSUNITS
  std::string_view name;  // as in --units
  std::int32_t perMetre;  // drawing units per metre
};

// How far a face's corners may lie off a plane, 1 mm, in drawing units.
constexpr double RoofTolerance(const DrawingUnit& unit) {
  return 0.001 * unit.perMetre;
}

// The unit of that name, "mm", "cm", "dm" or "m". Throws Error for another name.
const DrawingUnit& UnitByName(std::string_view name);

// The unit in which the drawing is drawn: `asked` when it is not empty, else
// what the drawing's header says. Throws Error when neither says it, or the
// module cannot scale to it: it takes a whole number of units a metre.
const DrawingUnit& UnitOf(const dxf::Document& drawing, const std::string& asked);

}  // namespace teskarlt
