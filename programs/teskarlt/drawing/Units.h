// Units.h - the unit of a drawing, and the one in which the module works on it.
#pragma once

#include <string>
#include <string_view>

#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct DrawingUnit {
  int insUnits;            // $INSUNITS
  std::string_view name;   // as in --units
  std::string_view words;  // for people: "millimetres"
  double perMetre;         // drawing units per metre
  WorkingUnit working;     // in which its windows are computed
};

// Of a drawing that states none, where it is only looked at: its lengths stay drawing units.
inline constexpr DrawingUnit UNSTATED{0, "", "drawing units", 1.0, IN_DRAWING_UNITS};

constexpr bool IsStated(const DrawingUnit& unit) {
  return !unit.name.empty();
}

// The names of all units, for help texts.
inline constexpr const char* UNIT_NAMES =
    "mm, cm, dm, m, dam, hm, km, um, nm, angstrom, in, ft, yd, mi, mil, uin, us-in, us-ft, us-yd, us-mi";

// How far a face's corners may lie off a plane, 1 mm, in drawing units or in working units.
constexpr double RoofTolerance(const DrawingUnit& unit) {
  return 0.001 * unit.perMetre;
}
constexpr double RoofTolerance(const WorkingUnit& unit) {
  return 0.001 * unit.perMetre;
}

// The unit of that name or word, "in", "inch" or "inches", without regard to case. Throws Error for another
// name.
const DrawingUnit& UnitByName(std::string_view name);

// The unit whose length differs from that many drawing units a metre by less than 1 %; null for none.
const DrawingUnit* UnitNear(double perMetre);

// The unit that the user says.
struct AskedUnit {
  std::string name;       // as in --units; empty: none
  bool isForced = false;  // it goes before what the drawing says
};

// What a drawing says of its unit, by its header or, where that says nothing, by the windows in it.
struct StatedUnit {
  const DrawingUnit* unit = nullptr;  // null: none, or one that windows cannot be drawn in
  std::string words;                  // for people: "says that its unit is mm ($INSUNITS 4)"; empty: nothing
  bool isMeasured = false;            // by windows, which tell it within 1 %

  bool Agrees(const DrawingUnit& other) const;
};
StatedUnit StatedBy(const dxf::Document& drawing);

// The unit in which the drawing is drawn: what the user says, else what the drawing does. Throws Error when
// neither says it, with a proposal by the size of the roof, when the drawing says another one than the user,
// unless that is forced, and when it is one of astronomers.
const DrawingUnit& UnitOf(const dxf::Document& drawing, const AskedUnit& asked = {});

// The same for what needs no unit: null where neither says it, or the drawing says one of astronomers.
const DrawingUnit* KnownUnit(const dxf::Document& drawing, const AskedUnit& asked = {});

}  // namespace teskarlt
