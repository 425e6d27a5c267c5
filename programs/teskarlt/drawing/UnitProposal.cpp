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

// The sides of a face's box in the plan, drawing units.
struct PlanSize {
  double longer = 0.0;
  double shorter = 0.0;
};

PlanSize SizeOf(const RoofFace& face) {
  const PlanBox box = PlanBoxOf(face.corners);
  const double alongX = box.highX - box.lowX;
  const double alongY = box.highY - box.lowY;
  return {std::max(alongX, alongY), std::min(alongX, alongY)};
}

// Of the face with the largest box; none without a face.
std::optional<PlanSize> LargestRoof(const dxf::Document& drawing) {
  constexpr double ANY_SIZE = 1e-6;  // less than a millimetre in any unit but kilometres and miles
  std::optional<PlanSize> largest;
  const auto area = [](const PlanSize& size) { return size.longer * size.shorter; };
  for (const RoofFace& face : FindFaces(drawing, ANY_SIZE)) {
    const PlanSize size = SizeOf(face);
    if (!largest || area(size) > area(*largest)) largest = size;
  }
  return largest;
}

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

const DrawingUnit* ProposedUnit(const dxf::Document& drawing) {
  const std::optional<PlanSize> roof = LargestRoof(drawing);
  return roof ? &LikelyUnit(roof->longer, CountsInFeet(drawing)) : nullptr;
}

double ToleranceToLookWith(const dxf::Document& drawing, const DrawingUnit& unit) {
  if (IsStated(unit)) return RoofTolerance(unit);
  const DrawingUnit* const proposed = ProposedUnit(drawing);
  return RoofTolerance(proposed == nullptr ? unit : *proposed);
}

std::string UnitRemedy(const dxf::Document& drawing) {
  const std::optional<PlanSize> roof = LargestRoof(drawing);
  if (!roof) return "say it with --units, as in --units mm, m, in or ft";
  const DrawingUnit& unit = LikelyUnit(roof->longer, CountsInFeet(drawing));
  return fmt::format("a roof of {} by {}: {}? say --units {}", Rounded(roof->longer), Rounded(roof->shorter),
                     unit.words, unit.name);
}

}  // namespace teskarlt
