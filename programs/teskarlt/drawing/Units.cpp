// Units.cpp - the unit of a drawing.
#include "teskarlt/drawing/Units.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/Units.h"

namespace teskarlt {

namespace {

constexpr std::array UNITS = {
    DrawingUnit{dxf::UNITS_MILLIMETRES, "mm", 1000},
    DrawingUnit{dxf::UNITS_CENTIMETRES, "cm", 100},
    DrawingUnit{dxf::UNITS_DECIMETRES, "dm", 10},
    DrawingUnit{dxf::UNITS_METRES, "m", 1},
};

}  // namespace

const DrawingUnit& UnitByName(std::string_view name) {
  const auto* found =
      std::find_if(UNITS.begin(), UNITS.end(), [&](const DrawingUnit& unit) { return unit.name == name; });
  if (found == UNITS.end()) {
    throw Error(fmt::format("unit \"{}\" is not known; the units are mm, cm, dm and m", name),
                {.value = std::string(name)});
  }
  return *found;
}

const DrawingUnit& UnitOf(const dxf::Document& drawing, const std::string& asked) {
  if (!asked.empty()) return UnitByName(asked);
  const int units = drawing.Units();
  const auto* found = std::find_if(UNITS.begin(), UNITS.end(),
                                   [&](const DrawingUnit& unit) { return unit.insUnits == units; });
  if (found != UNITS.end()) return *found;
  if (units == dxf::UNITS_NONE) {
    throw Error("the drawing does not say its unit ($INSUNITS); say it with --units mm, cm, dm or m",
                {.file = drawing.FileName()});
  }
  throw Error(
      fmt::format(
          "roof windows cannot be drawn in the drawing's unit ($INSUNITS {}), which has no whole number "
          "of units a metre; if it is drawn in another unit, say so with --units mm, cm, dm or m",
          units),
      {.file = drawing.FileName(), .value = std::to_string(units)});
}

}  // namespace teskarlt
