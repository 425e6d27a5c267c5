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

// The unit that the user says.
struct AskedUnit {
  std::string name;       // as in --units; empty: none
  bool isForced = false;  // it goes before what the drawing says
};

// What a drawing says of its unit, by its header or, where that says nothing, by the windows in it.
struct StatedUnit {
  const DrawingUnit* unit = nullptr;  // null: none, or one that windows cannot be drawn in
  std::string words;                  // for people: "says that its unit is mm ($INSUNITS 4)"; empty: nothing
};
StatedUnit StatedBy(const dxf::Document& drawing);

// The unit in which the drawing is drawn: what the user says, else what the drawing does. Throws Error when
// neither says it, when the drawing says another one than the user, unless that is forced, and when the
// module cannot scale to it: it takes a whole number of units a metre.
const DrawingUnit& UnitOf(const dxf::Document& drawing, const AskedUnit& asked = {});

}  // namespace teskarlt
