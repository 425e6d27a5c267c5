// UnitProposal.cpp - tells a unit by the size of a roof.
#include "teskarlt/drawing/UnitProposal.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include <fmt/format.h>

#include "teskarlt/drawing/PlanIndex.h"
#include "teskarlt/drawing/RoofSearch.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

bool CountsInFeet(const dxf::Document& drawing) {
  constexpr int imperial = 0;
  const std::optional<dxf::Tag> measurement = drawing.HeaderVariable(dxf::VARIABLE_MEASUREMENT);
  return measurement && dxf::ParseInteger(measurement->value) == imperial;
}

// Three digits say how large a roof is.
std::string Rounded(double length) {
  constexpr double WHOLE = 100.0;
  return length >= WHOLE ? fmt::format("{:.0f}", length) : fmt::format("{:.3g}", length);
}

}  // namespace

const DrawingUnit& LikelyUnit(double longSide, bool isImperial) {
  struct Range {
    double most;  // the longest roof of a house in this unit
    const char* unit;
  };
  constexpr Range METRIC[] = {{0.15, "km"}, {150, "m"}, {2'500, "cm"}, {250'000, "mm"}};
  constexpr Range IMPERIAL[] = {{250, "ft"}, {2'500, "in"}, {250'000, "mm"}};
  const auto likely = [&](const auto& ranges) -> const DrawingUnit& {
    const auto* found = std::find_if(std::begin(ranges), std::end(ranges),
                                     [&](const Range& range) { return longSide <= range.most; });
    return UnitByName(found == std::end(ranges) ? "um" : found->unit);
  };
  return isImperial ? likely(IMPERIAL) : likely(METRIC);
}

std::optional<UnitProposal> ProposeUnit(const dxf::Document& drawing) {
  constexpr double ANY_SIZE = 1e-6;  // less than a millimetre in any unit but kilometres and miles
  std::optional<UnitProposal> largest;
  WalkFaces(drawing, ANY_SIZE, [&](const RoofFace& face) {
    if (IsVertical(face)) return;
    const PlanBox box = PlanBoxOf(face.corners);
    const double alongX = box.highX - box.lowX;
    const double alongY = box.highY - box.lowY;
    if (!largest || alongX * alongY > largest->longer * largest->shorter)
      largest = {std::max(alongX, alongY), std::min(alongX, alongY), nullptr};
  });
  if (largest) largest->unit = &LikelyUnit(largest->longer, CountsInFeet(drawing));
  return largest;
}

double ToleranceToLookWith(const dxf::Document& drawing, const DrawingUnit& unit) {
  return ToleranceToLookWith(unit, IsStated(unit) ? std::nullopt : ProposeUnit(drawing));
}

double ToleranceToLookWith(const DrawingUnit& unit, const std::optional<UnitProposal>& proposal) {
  return RoofTolerance(IsStated(unit) || !proposal ? unit : *proposal->unit);
}

std::string UnitRemedy(const std::optional<UnitProposal>& proposal) {
  if (!proposal) return "say it with --units, as in --units mm, m, in or ft";
  return fmt::format("a roof of {} by {}: {}? say --units {}", Rounded(proposal->longer),
                     Rounded(proposal->shorter), proposal->unit->words, proposal->unit->name);
}

}  // namespace teskarlt
