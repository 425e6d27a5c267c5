// Units.cpp - the unit of a drawing.
#include "teskarlt/drawing/Units.h"

#include <algorithm>
#include <array>
#include <optional>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/WindowUnit.h"
#include "teskarlt/dxf/tags/Units.h"

namespace teskarlt {

namespace {

constexpr std::array UNITS = {
    DrawingUnit{dxf::UNITS_MILLIMETRES, "mm", 1000},
    DrawingUnit{dxf::UNITS_CENTIMETRES, "cm", 100},
    DrawingUnit{dxf::UNITS_DECIMETRES, "dm", 10},
    DrawingUnit{dxf::UNITS_METRES, "m", 1},
};

template <typename Property>
const DrawingUnit* Find(Property DrawingUnit::*property, const Property& value) {
  const auto* found = std::find_if(UNITS.begin(), UNITS.end(),
                                   [&](const DrawingUnit& unit) { return unit.*property == value; });
  return found == UNITS.end() ? nullptr : &*found;
}

}  // namespace

const DrawingUnit& UnitByName(std::string_view name) {
  if (const DrawingUnit* unit = Find(&DrawingUnit::name, name)) return *unit;
  throw Error(fmt::format("unit \"{}\" is not known; the units are mm, cm, dm and m", name),
              {.value = std::string(name)});
}

StatedUnit StatedBy(const dxf::Document& drawing) {
  const int units = drawing.Units();
  if (units == dxf::UNITS_NONE) {
    const std::optional<std::int32_t> factor = UnitFactorOfWindows(drawing);
    if (!factor) return {};
    const DrawingUnit* unit = Find(&DrawingUnit::perMetre, *factor);
    return {unit, fmt::format("holds windows drawn in {}", unit->name)};
  }
  const DrawingUnit* unit = Find(&DrawingUnit::insUnits, units);
  if (unit == nullptr)
    return {nullptr, fmt::format("says that its unit is another one ($INSUNITS {})", units)};
  return {unit, fmt::format("says that its unit is {} ($INSUNITS {})", unit->name, units)};
}

const DrawingUnit& UnitOf(const dxf::Document& drawing, const AskedUnit& asked) {
  const std::string& file = drawing.FileName();
  const StatedUnit stated = StatedBy(drawing);
  if (!asked.name.empty()) {
    const DrawingUnit& unit = UnitByName(asked.name);
    if (asked.isForced || stated.words.empty() || stated.unit == &unit) return unit;
    throw Error(
        fmt::format("--units {}: {} {}; leave --units out, or add --force-units if the drawing is wrong",
                    asked.name, file, stated.words),
        {.value = asked.name});
  }
  if (stated.unit != nullptr) return *stated.unit;
  if (stated.words.empty()) {
    throw Error("the drawing does not say its unit ($INSUNITS); say it with --units mm, cm, dm or m",
                {.file = file});
  }
  throw Error(
      fmt::format(
          "roof windows cannot be drawn in the drawing's unit ($INSUNITS {}), which has no whole number "
          "of units a metre; if it is drawn in another unit, say so with --units mm, cm, dm or m and "
          "--force-units",
          drawing.Units()),
      {.file = file, .value = std::to_string(drawing.Units())});
}

}  // namespace teskarlt
