// SlopeReach.cpp - measures a roof around a frame.
#include "teskarlt/drawing/SlopeReach.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <fmt/format.h>

namespace teskarlt {

namespace {

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

SlopeBox Moved(const SlopeBox& box, const SlopePoint& way) {
  return {box.left + way.across, box.right + way.across, box.bottom + way.up, box.top + way.up};
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

// "the ridge by 0.120 m"
std::string PassedUp(double way, const SlopeBox& frame, const SlopeBox& roof, double perMetre) {
  constexpr double SAME = 0.001;  // metres
  const double edge = way < 0 ? frame.top + way : frame.bottom + way;
  const bool isLast = std::abs(edge - (way < 0 ? roof.top : roof.bottom)) <= SAME * perMetre;
  const char* name =
      way < 0 ? (isLast ? "ridge" : "upper edge of its roof") : (isLast ? "eaves" : "lower edge of its roof");
  return fmt::format("the {} by {:.3f} m", name, std::abs(way) / perMetre);
}

std::string PassedAcross(double way, double perMetre) {
  return fmt::format("the {} verge by {:.3f} m", way > 0 ? "left" : "right", std::abs(way) / perMetre);
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

std::string PassedEdges(const brevanta::Outline& frame, const SurfaceOutline& outline, double perMetre) {
  const double least = 1e-6 * perMetre;  // what rounding leaves
  const SlopeBox box = BoxOf(frame, outline.frame);
  const std::optional<SlopePoint> way = WayInside(box, outline.rings);
  if (!way) return {};
  const bool isUp = std::abs(way->up) > least;
  const bool isAcross = std::abs(way->across) > least;
  if (!isUp && !isAcross) return {};
  std::string text = "passes ";
  if (isAcross) text += PassedAcross(way->across, perMetre);
  if (isAcross && isUp) text += " and ";
  if (!isUp) return text;
  text += PassedUp(way->up, box, BoxAround(outline.rings), perMetre);
  if (IsFlat(outline.frame)) return text;
  return text + fmt::format("; the {} lower edge is {:.3f} m", way->up < 0 ? "highest" : "lowest",
                            outline.frame.At({0.0, box.bottom + way->up}).z / perMetre);
}

}  // namespace teskarlt
