// SlopeMoves.cpp - moves a frame clear of what lies on a roof.
#include "teskarlt/drawing/SlopeMoves.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace teskarlt {

namespace {

// The shares of an edge between which it lies within bounds, from 0 to 1 at the most.
struct Shares {
  double from = 0.0;
  double to = 1.0;

  bool IsEmpty() const { return from >= to; }

  // Keeps what lies strictly between the bounds, of a coordinate that goes from a to b (Y. Liang, B. Barsky,
  // A New Concept and Method for Line Clipping, 1984).
  void Bound(double a, double b, double low, double high) {
    if (a == b) {
      if (a <= low || a >= high) to = from;
      return;
    }
    const double atLow = (low - a) / (b - a);
    const double atHigh = (high - a) / (b - a);
    from = std::max(from, std::min(atLow, atHigh));
    to = std::min(to, std::max(atLow, atHigh));
  }
};

template <typename Take>
void ForEachEdge(const SlopeRing& ring, const Take& take) {
  for (std::size_t i = 0; i < ring.size(); ++i)
    take(ring[i], ring[(i + 1) % ring.size()]);
}

bool Encloses(const SlopeRing& ring, const SlopePoint& p) {
  bool isInside = false;
  ForEachEdge(ring, [&](const SlopePoint& a, const SlopePoint& b) {
    if ((a.up > p.up) == (b.up > p.up)) return;
    if (a.across + (p.up - a.up) / (b.up - a.up) * (b.across - a.across) > p.across) isInside = !isInside;
  });
  return isInside;
}

SlopePoint Transposed(const SlopePoint& p) {
  return {p.up, p.across};
}

SlopeBox Transposed(const SlopeBox& box) {
  return {box.bottom, box.top, box.left, box.right};
}

SlopeRing Transposed(const SlopeRing& ring) {
  SlopeRing transposed;
  transposed.reserve(ring.size());
  for (const SlopePoint& corner : ring)
    transposed.push_back(Transposed(corner));
  return transposed;
}

// The ways along the eaves, from the first to the second, on which the ring reaches into the box; none where
// it lies above or below it.
using Blocked = std::pair<double, double>;
std::optional<Blocked> BlockedBy(const SlopeRing& ring, const SlopeBox& box) {
  std::optional<Blocked> reach;
  const auto take = [&](double across) {
    if (!reach) reach = {across, across};
    reach = {std::min(reach->first, across), std::max(reach->second, across)};
  };
  ForEachEdge(ring, [&](const SlopePoint& a, const SlopePoint& b) {
    Shares within;
    within.Bound(a.up, b.up, box.bottom, box.top);
    if (within.IsEmpty()) return;
    take(a.across + within.from * (b.across - a.across));
    take(a.across + within.to * (b.across - a.across));
  });
  if (!reach) return std::nullopt;
  return Blocked{reach->first - box.right, reach->second - box.left};
}

// The shortest ways to the right and to the left that no ring blocks.
std::pair<double, double> ClearAlong(const std::vector<SlopeRing>& rings, const SlopeBox& box) {
  std::vector<Blocked> blocked;
  for (const SlopeRing& ring : rings)
    if (const std::optional<Blocked> by = BlockedBy(ring, box)) blocked.push_back(*by);
  std::sort(blocked.begin(), blocked.end());
  double right = 0.0;
  for (const auto& [from, to] : blocked)
    if (from < right) right = std::max(right, to);
  std::sort(blocked.begin(), blocked.end(),
            [](const Blocked& a, const Blocked& b) { return a.second > b.second; });
  double left = 0.0;
  for (const auto& [from, to] : blocked)
    if (to > left) left = std::min(left, from);
  return {right, left};
}

bool ReachesInto(const SlopePoint& a, const SlopePoint& b, const SlopeBox& box) {
  Shares within;
  within.Bound(a.across, b.across, box.left, box.right);
  within.Bound(a.up, b.up, box.bottom, box.top);
  return !within.IsEmpty();
}

double Distance(const SlopePoint& p, const SlopeBox& box) {
  return std::hypot(std::max({box.left - p.across, 0.0, p.across - box.right}),
                    std::max({box.bottom - p.up, 0.0, p.up - box.top}));
}

double Distance(const SlopePoint& p, const SlopePoint& a, const SlopePoint& b) {
  const SlopePoint way{b.across - a.across, b.up - a.up};
  const double square = way.across * way.across + way.up * way.up;
  const double along = (p.across - a.across) * way.across + (p.up - a.up) * way.up;
  const double share = square > 0 ? std::clamp(along / square, 0.0, 1.0) : 0.0;
  return std::hypot(a.across + share * way.across - p.across, a.up + share * way.up - p.up);
}

}  // namespace

bool ReachesInto(const SlopeRing& ring, const SlopeBox& box) {
  bool reaches = Encloses(ring, {box.Middle(), (box.bottom + box.top) / 2});
  ForEachEdge(ring,
              [&](const SlopePoint& a, const SlopePoint& b) { reaches = reaches || ReachesInto(a, b, box); });
  return reaches;
}

double DistanceBetween(const SlopePoint& a, const SlopePoint& b, const SlopeBox& box) {
  if (ReachesInto(a, b, box)) return 0.0;
  double distance = std::min(Distance(a, box), Distance(b, box));
  for (const SlopePoint& corner : {SlopePoint{box.left, box.bottom}, SlopePoint{box.right, box.bottom},
                                   SlopePoint{box.right, box.top}, SlopePoint{box.left, box.top}})
    distance = std::min(distance, Distance(corner, a, b));
  return distance;
}

double DistanceBetween(const SlopeRing& ring, const SlopeBox& box) {
  if (ReachesInto(ring, box)) return 0.0;
  double distance = std::numeric_limits<double>::max();
  ForEachEdge(ring, [&](const SlopePoint& a, const SlopePoint& b) {
    distance = std::min(distance, DistanceBetween(a, b, box));
  });
  return distance;
}

std::vector<SlopePoint> WaysClearOf(const std::vector<SlopeRing>& rings, const SlopeBox& box) {
  const auto [right, left] = ClearAlong(rings, box);
  std::vector<SlopeRing> transposed;
  transposed.reserve(rings.size());
  for (const SlopeRing& ring : rings)
    transposed.push_back(Transposed(ring));
  const auto [up, down] = ClearAlong(transposed, Transposed(box));
  std::vector<SlopePoint> ways = {{left, 0.0}, {right, 0.0}, {0.0, up}, {0.0, down}};
  std::stable_sort(ways.begin(), ways.end(),
                   [](const SlopePoint& a, const SlopePoint& b) { return Length(a) < Length(b); });
  return ways;
}

double Length(const SlopePoint& way) {
  return std::hypot(way.across, way.up);
}

}  // namespace teskarlt
