// Units.cpp - the unit of a drawing.
#include "teskarlt/drawing/Units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/UnitProposal.h"
#include "teskarlt/drawing/WindowUnit.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/Units.h"

namespace teskarlt {

namespace {

constexpr double MILLIMETRES_PER_METRE = 1000.0;
constexpr double SAME = 0.01;  // of a unit's length

// A unit with a whole number a metre, in which the module draws as it is.
constexpr DrawingUnit Whole(int insUnits, std::string_view name, std::string_view words,
                            std::int32_t perMetre) {
  return {insUnits, name, words, static_cast<double>(perMetre), {perMetre, 1.0}};
}

// One that is worked on in millimetres.
constexpr DrawingUnit InMillimetres(int insUnits, std::string_view name, std::string_view words) {
  const double millimetres = dxf::MillimetresPer(insUnits);
  return {insUnits,
          name,
          words,
          MILLIMETRES_PER_METRE / millimetres,
          {static_cast<std::int32_t>(MILLIMETRES_PER_METRE), millimetres}};
}

// Of two that are nearly the same, the one that people mean without a word comes first.
constexpr std::array UNITS = {
    Whole(dxf::UNITS_MILLIMETRES, "mm", "millimetres", 1000),
    Whole(dxf::UNITS_CENTIMETRES, "cm", "centimetres", 100),
    Whole(dxf::UNITS_DECIMETRES, "dm", "decimetres", 10),
    Whole(dxf::UNITS_METRES, "m", "metres", 1),
    InMillimetres(dxf::UNITS_DECAMETRES, "dam", "decametres"),
    InMillimetres(dxf::UNITS_HECTOMETRES, "hm", "hectometres"),
    InMillimetres(dxf::UNITS_KILOMETRES, "km", "kilometres"),
    Whole(dxf::UNITS_MICROMETRES, "um", "micrometres", 1'000'000),
    Whole(dxf::UNITS_NANOMETRES, "nm", "nanometres", 1'000'000'000),
    InMillimetres(dxf::UNITS_ANGSTROMS, "angstrom", "angstroms"),
    InMillimetres(dxf::UNITS_INCHES, "in", "inches"),
    InMillimetres(dxf::UNITS_FEET, "ft", "feet"),
    InMillimetres(dxf::UNITS_YARDS, "yd", "yards"),
    InMillimetres(dxf::UNITS_MILES, "mi", "miles"),
    InMillimetres(dxf::UNITS_MILS, "mil", "mils"),
    InMillimetres(dxf::UNITS_MICROINCHES, "uin", "microinches"),
    InMillimetres(dxf::UNITS_SURVEY_INCHES, "us-in", "US survey inches"),
    InMillimetres(dxf::UNITS_SURVEY_FEET, "us-ft", "US survey feet"),
    InMillimetres(dxf::UNITS_SURVEY_YARDS, "us-yd", "US survey yards"),
    InMillimetres(dxf::UNITS_SURVEY_MILES, "us-mi", "US survey miles"),
};

// Words in the singular that are not the plural's without its s.
struct Singular {
  std::string_view word;
  std::string_view name;
};
constexpr Singular SINGULARS[] = {{"inch", "in"}, {"foot", "ft"}, {"microinch", "uin"}, {"micron", "um"}};

template <typename Condition>
const DrawingUnit* Find(Condition condition) {
  const auto* found = std::find_if(UNITS.begin(), UNITS.end(), condition);
  return found == UNITS.end() ? nullptr : &*found;
}

std::string_view WithoutEnd(std::string_view words) {
  return words.substr(0, words.size() - 1);
}

bool IsNamed(const DrawingUnit& unit, std::string_view name) {
  const bool isSingular = std::any_of(std::begin(SINGULARS), std::end(SINGULARS), [&](const Singular& word) {
    return word.name == unit.name && dxf::SameName(name, word.word);
  });
  return isSingular || dxf::SameName(name, unit.name) || dxf::SameName(name, unit.words) ||
         dxf::SameName(name, WithoutEnd(unit.words));
}

const DrawingUnit* UnitOfHeader(int insUnits) {
  return Find([&](const DrawingUnit& unit) { return unit.insUnits == insUnits; });
}

[[noreturn]] void RefuseDifferent(const dxf::Document& drawing, const AskedUnit& asked,
                                  const StatedUnit& stated) {
  throw Error(
      fmt::format("--units {}: {} {}; leave --units out, or add --force-units if the drawing is wrong",
                  asked.name, drawing.FileName(), stated.words),
      {.value = asked.name});
}

}  // namespace

const DrawingUnit& UnitByName(std::string_view name) {
  if (const DrawingUnit* unit = Find([&](const DrawingUnit& u) { return IsNamed(u, name); })) return *unit;
  throw Error(fmt::format("unit \"{}\" is not known; the units are {}", name, UNIT_NAMES),
              {.value = std::string(name)});
}

const DrawingUnit* UnitNear(double perMetre) {
  return Find([&](const DrawingUnit& unit) { return std::abs(perMetre / unit.perMetre - 1.0) <= SAME; });
}

bool StatedUnit::Agrees(const DrawingUnit& other) const {
  if (unit == nullptr) return words.empty();
  return unit == &other || (isMeasured && std::abs(other.perMetre / unit->perMetre - 1.0) <= SAME);
}

StatedUnit StatedBy(const dxf::Document& drawing) {
  const int units = drawing.Units();
  if (units == dxf::UNITS_NONE) {
    const DrawingUnit* const unit = UnitOfWindows(drawing);
    if (unit == nullptr) return {};
    return {unit, fmt::format("holds windows drawn in {}", unit->words), true};
  }
  const DrawingUnit* unit = UnitOfHeader(units);
  if (unit == nullptr)
    return {nullptr, fmt::format("says that its unit is another one ($INSUNITS {})", units)};
  return {unit, fmt::format("says that its unit is {} ($INSUNITS {})", unit->words, units)};
}

const DrawingUnit& UnitOf(const dxf::Document& drawing, const AskedUnit& asked) {
  const std::string& file = drawing.FileName();
  const StatedUnit stated = StatedBy(drawing);
  if (!asked.name.empty()) {
    const DrawingUnit& unit = UnitByName(asked.name);
    if (!asked.isForced && !stated.Agrees(unit)) RefuseDifferent(drawing, asked, stated);
    return unit;
  }
  if (stated.unit != nullptr) return *stated.unit;
  if (stated.words.empty()) {
    throw Error(
        fmt::format("the drawing does not say its unit ($INSUNITS); {}", UnitRemedy(ProposeUnit(drawing))),
        {.file = file});
  }
  throw Error(
      fmt::format("roof windows cannot be drawn in the drawing's unit ($INSUNITS {}); if it is drawn in "
                  "another unit, say so with --units and --force-units, as in --units mm --force-units",
                  drawing.Units()),
      {.file = file, .value = std::to_string(drawing.Units())});
}

const DrawingUnit* KnownUnit(const dxf::Document& drawing, const AskedUnit& asked) {
  return asked.name.empty() ? StatedBy(drawing).unit : &UnitOf(drawing, asked);
}

}  // namespace teskarlt
