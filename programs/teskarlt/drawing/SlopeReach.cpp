// SlopeReach.cpp - measures a roof around a frame.
#include "teskarlt/drawing/SlopeReach.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

#include <fmt/format.h>

#include "teskarlt/drawing/RingsAround.h"
#include "teskarlt/drawing/SlopeMoves.h"

namespace teskarlt {

namespace {

constexpr double LEAN = 0.01;      // of its length: how far a verge may lean, and eaves rise
constexpr double FLATTEST = 1e-4;  // rise of a slope that heights can be measured on

// From the leftmost to the rightmost edge at a level; none where the roof does not reach it.
SlopeReach ReachAt(const std::vector<SlopeRing>& rings, double up) {
  SlopeReach reach;
  for (const SlopeRing& ring : rings) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const SlopePoint& a = ring[i];
      const SlopePoint& b = ring[(i + 1) % ring.size()];
      if ((a.up > up) == (b.up > up)) continue;
      const double across = a.across + (up - a.up) / (b.up - a.up) * (b.across - a.across);
      if (!reach) reach = {across, across};
      reach = {std::min(reach->first, across), std::max(reach->second, across)};
    }
  }
  return reach;
}

std::vector<SlopeRing> Transposed(std::vector<SlopeRing> rings) {
  for (SlopeRing& ring : rings) {
    for (SlopePoint& corner : ring)
      std::swap(corner.across, corner.up);
  }
  return rings;
}

SlopeBox BoxAround(const std::vector<SlopeRing>& rings) {
  constexpr double MOST = std::numeric_limits<double>::max();
  SlopeBox box{MOST, -MOST, MOST, -MOST};
  for (const SlopeRing& ring : rings) {
    for (const SlopePoint& corner : ring) {
      box = {std::min(box.left, corner.across), std::max(box.right, corner.across),
             std::min(box.bottom, corner.up), std::max(box.top, corner.up)};
    }
  }
  return box;
}

// How far what lies from `low` to `high` must move to lie within the reach; none where it is too long for it.
std::optional<double> WayInto(const SlopeReach& reach, double low, double high) {
  if (!reach || high - low > reach->second - reach->first) return std::nullopt;
  if (low < reach->first) return reach->first - low;
  return high > reach->second ? reach->second - high : 0.0;
}

// The way up or down alone, the one along the eaves alone, else up or down first and then along.
std::optional<SlopePoint> WayInside(const SlopeBox& frame, const std::vector<SlopeRing>& rings) {
  const auto up = WayInto(ReachUp(rings, frame.left, frame.right), frame.bottom, frame.top);
  const auto across = WayInto(ReachAcross(rings, frame.bottom, frame.top), frame.left, frame.right);
  if (up && (!across || std::abs(*up) <= std::abs(*across))) return SlopePoint{0.0, *up};
  if (across) return SlopePoint{*across, 0.0};
  const SlopeBox roof = BoxAround(rings);
  const auto into = WayInto({{roof.bottom, roof.top}}, frame.bottom, frame.top);
  if (!into) return std::nullopt;
  const SlopeBox moved = Moved(frame, {0.0, *into});
  const auto then = WayInto(ReachAcross(rings, moved.bottom, moved.top), moved.left, moved.right);
  return then ? std::optional(SlopePoint{*then, *into}) : std::nullopt;
}

// An edge of a roof and how far a frame must move to come inside; negative to the left and down.
struct EdgePassed {
  std::string name;
  double way;
  bool isAtSide;
};

// An edge along the eaves at a height of the slope.
std::string LevelEdge(bool isUpper, double up, const SlopeBox& roof, double perMetre) {
  constexpr double SAME = 0.001;  // metres
  const bool isLast = std::abs(up - (isUpper ? roof.top : roof.bottom)) <= SAME * perMetre;
  if (isUpper) return isLast ? "the ridge" : "the upper edge of its roof";
  return isLast ? "the eaves" : "the lower edge of its roof";
}

// An edge at a side that goes so far inward for each unit up the slope: a roof gets narrower above a hip, and
// wider above a valley.
std::string SideEdge(bool isLeft, double inward) {
  const char* const kind = std::abs(inward) <= LEAN ? "verge" : inward > 0 ? "hip" : "valley";
  return fmt::format("the {} {}", isLeft ? "left" : "right", kind);
}

// The edge of a ring that runs counter-clockwise around a roof.
std::string EdgeName(const SlopePoint& a, const SlopePoint& b, const SlopeBox& roof, double perMetre) {
  const double across = b.across - a.across;
  const double up = b.up - a.up;
  if (std::abs(up) <= LEAN * std::abs(across)) return LevelEdge(across < 0, a.up, roof, perMetre);
  return SideEdge(up < 0, -across / std::abs(up));
}

// The edge above or below, which the frame touches after its way.
EdgePassed EdgeAlongEaves(double way, const SlopeBox& frame, const SlopeBox& roof, double perMetre) {
  const double up = way < 0 ? frame.top + way : frame.bottom + way;
  return {LevelEdge(way < 0, up, roof, perMetre), way, false};
}

EdgePassed EdgeAtSide(double way, const SlopeBox& frame, const std::vector<SlopeRing>& rings) {
  const double height = frame.top - frame.bottom;
  const SlopeReach low = ReachAt(rings, frame.bottom + LEAN * height);
  const SlopeReach high = ReachAt(rings, frame.top - LEAN * height);
  if (!low || !high) return {SideEdge(way > 0, 0.0), way, true};
  const double inward = way > 0 ? high->first - low->first : low->second - high->second;
  return {SideEdge(way > 0, inward / height), way, true};
}

// The edges that the frame passes, first that at a side; none where it passes none, and where no way would
// bring it inside.
std::vector<EdgePassed> EdgesPassed(const SlopeBox& frame, const SurfaceOutline& outline, double perMetre) {
  const double least = 1e-6 * perMetre;  // what rounding leaves
  const std::optional<SlopePoint> way = WayInside(frame, outline.rings);
  std::vector<EdgePassed> passed;
  if (!way) return passed;
  if (std::abs(way->across) > least)
    passed.push_back(EdgeAtSide(way->across, Moved(frame, {0.0, way->up}), outline.rings));
  if (std::abs(way->up) > least)
    passed.push_back(EdgeAlongEaves(way->up, frame, BoxAround(outline.rings), perMetre));
  return passed;
}

}  // namespace

bool IsFlat(const SlopeFrame& frame) {
  return frame.up.z < FLATTEST;
}

SlopePoint AsHighAs(const geometry::Vec3& p, const SlopeFrame& frame) {
  const SlopePoint foot = frame.Of(p);
  return IsFlat(frame) ? foot : SlopePoint{foot.across, (p.z - frame.origin.z) / frame.up.z};
}

SlopeBox BoxOf(const brevanta::Outline& outline, const SlopeFrame& frame) {
  SlopeRing corners;
  corners.reserve(outline.size());
  for (const geometry::Vec3& corner : outline)
    corners.push_back(AsHighAs(corner, frame));
  return BoxAround({corners});
}

SlopeReach ReachAcross(const std::vector<SlopeRing>& rings, double bottom, double top) {
  const double step = 1e-6 * (top - bottom);  // an edge along the eaves begins and ends at one level
  std::vector<double> levels = {bottom + step, top - step};
  for (const SlopeRing& ring : rings) {
    for (const SlopePoint& corner : ring) {
      if (corner.up <= bottom || corner.up >= top) continue;
      levels.push_back(corner.up - step);
      levels.push_back(corner.up + step);
    }
  }
  std::pair<double, double> narrowest{std::numeric_limits<double>::lowest(),
                                      std::numeric_limits<double>::max()};
  for (const double level : levels) {
    const SlopeReach reach = ReachAt(rings, level);
    if (!reach) return std::nullopt;
    narrowest = {std::max(narrowest.first, reach->first), std::min(narrowest.second, reach->second)};
  }
  return narrowest;
}

SlopeReach ReachUp(const std::vector<SlopeRing>& rings, double left, double right) {
  return ReachAcross(Transposed(rings), left, right);
}

std::string PassedEdges(const brevanta::Outline& frame, const SurfaceOutline& outline,
                        const SpokenUnit& unit) {
  const SlopeBox box = BoxOf(frame, outline.frame);
  std::string text;
  double up = 0.0;
  for (const EdgePassed& edge : EdgesPassed(box, outline, unit.perMetre)) {
    text += fmt::format("{} {} by {}", text.empty() ? "passes" : " and", edge.name,
                        LengthText(std::abs(edge.way), unit));
    if (!edge.isAtSide) up = edge.way;
  }
  if (up == 0.0 || IsFlat(outline.frame)) return text;
  return text + fmt::format("; the {} lower edge is {}", up < 0 ? "highest" : "lowest",
                            LengthText(outline.frame.At({0.0, box.bottom + up}).z, unit));
}

std::string EdgesWithin(double clearance, const brevanta::Outline& frame, const SurfaceOutline& outline,
                        const SpokenUnit& unit) {
  const double least = 1e-6 * unit.perMetre;  // what rounding leaves
  const SlopeBox box = BoxOf(frame, outline.frame);
  const SlopeBox roof = BoxAround(outline.rings);
  std::map<std::string, double> near;  // distances by the edges' names
  for (const SlopeRing& ring : outline.rings) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const SlopePoint& a = ring[i];
      const SlopePoint& b = ring[(i + 1) % ring.size()];
      const double distance = DistanceBetween(a, b, box);
      if (distance >= clearance - least) continue;
      const std::string name =
          SignedArea(ring) < 0 ? "a hole of its roof" : EdgeName(a, b, roof, unit.perMetre);
      const auto [known, isNew] = near.emplace(name, distance);
      if (!isNew) known->second = std::min(known->second, distance);
    }
  }
  std::string text;
  for (const auto& [name, distance] : near)
    text += fmt::format("{}{}, {} away", text.empty() ? "" : " and ", name, LengthText(distance, unit));
  return text;
}

}  // namespace teskarlt
