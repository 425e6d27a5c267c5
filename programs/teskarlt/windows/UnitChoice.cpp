// UnitChoice.cpp - the unit in which a drawing is worked on.
#include "teskarlt/windows/UnitChoice.h"

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Units.h"

namespace teskarlt {

namespace {

// The user's word goes before the header's, but a slip would make a window a thousand times too small.
std::string Contradiction(const dxf::Document& drawing, const DrawingUnit& unit, const std::string& asked) {
  if (asked.empty() || drawing.Units() == dxf::UNITS_NONE || drawing.Units() == unit.insUnits) return {};
  return fmt::format("{} says that its unit is another one ($INSUNITS {}) than --units {}",
                     drawing.FileName(), drawing.Units(), asked);
}

}  // namespace

UnitChoice ChooseUnit(dxf::Document& drawing, const std::string& asked) {
  const DrawingUnit& unit = UnitOf(drawing, asked);
  UnitChoice choice{unit, Contradiction(drawing, unit, asked)};
  drawing.AssumeUnits(unit.insUnits);
  return choice;
}

}  // namespace teskarlt
