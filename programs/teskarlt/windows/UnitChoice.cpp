// UnitChoice.cpp - the unit in which a drawing is worked on.
#include "teskarlt/windows/UnitChoice.h"

#include <fmt/format.h>

namespace teskarlt {

UnitChoice ChooseUnit(dxf::Document& drawing, const AskedUnit& asked) {
  const DrawingUnit& unit = UnitOf(drawing, asked);
  UnitChoice choice{unit, {}};
  const StatedUnit stated = asked.isForced ? StatedBy(drawing) : StatedUnit{};
  if (!stated.Agrees(unit))
    choice.warning = fmt::format("{} {}; --units {} is taken", drawing.FileName(), stated.words, unit.name);
  drawing.AssumeUnits(unit.insUnits);
  return choice;
}

}  // namespace teskarlt
