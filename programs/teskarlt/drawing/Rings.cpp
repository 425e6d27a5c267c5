// Rings.cpp - finds which closed lines lie in which.
#include "teskarlt/drawing/Rings.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "geometry/PlanCover.h"
#include "geometry/Vectors.h"
#include "teskarlt/drawing/PlanIndex.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr double EXACT = 1e-9;      // of lengths, for what rounding leaves
constexpr double SAME_AREA = 1e-6;  // of the area of rings that are one

bool OnPlanEdge(const Vec3& a, const Vec3& b, double x, double y) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  if (dx == 0.0 && dy == 0.0) return x == a.x && y == a.y;  // an upright edge is a point of the plan
  const double across = dx * (y - a.y) - dy * (x - a.x);
  const double length = std::hypot(dx, dy);
  if (std::abs(across) > EXACT * length * length) return false;
  const double along = dx * (x - a.x) + dy * (y - a.y);
  return along >= -EXACT * length * length && along <= (1 + EXACT) * length * length;
}

const Vec3& Next(const Ring& ring, std::size_t i) {
  return ring[(i + 1) % ring.size()];
}

// On which side of the line from a to b p lies; 0 for one that is on it but for rounding.
int Turn(const Vec3& a, const Vec3& b, const Vec3& p) {
  const double across = (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
  const double limit = EXACT * std::hypot(b.x - a.x, b.y - a.y) * std::hypot(p.x - a.x, p.y - a.y);
  return across > limit ? 1 : across < -limit ? -1 : 0;
}

// Edges that touch do not cross.
bool Cross(const Vec3& a, const Vec3& b, const Vec3& c, const Vec3& d) {
  return Turn(a, b, c) * Turn(a, b, d) < 0 && Turn(c, d, a) * Turn(c, d, b) < 0;
}

bool Cross(const Ring& a, const Ring& b) {
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < b.size(); ++j)
      if (Cross(a[i], Next(a, i), b[j], Next(b, j))) return true;
  }
  return false;
}

// The places at which a level line crosses the ring, in ascending order.
std::vector<double> Crossings(const Ring& ring, double y) {
  std::vector<double> places;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Vec3& a = ring[i];
    const Vec3& b = Next(ring, i);
    if ((a.y > y) != (b.y > y)) places.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
  }
  std::sort(places.begin(), places.end());
  return places;
}

bool AreSame(const Ring& a, const Ring& b) {
  const double area = geometry::PlanArea(a);
  if (std::abs(area - geometry::PlanArea(b)) > SAME_AREA * area) return false;
  const Vec3 within = PointWithin(a);
  return SideOf(b, within.x, within.y) == RingSide::Inside;
}

}  // namespace

RingSide SideOf(const Ring& ring, double x, double y) {
  bool isInside = false;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Vec3& a = ring[i];
    const Vec3& b = Next(ring, i);
    if (OnPlanEdge(a, b, x, y)) return RingSide::OnEdge;
    if ((a.y > y) == (b.y > y)) continue;
    if (x < a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x)) isInside = !isInside;
  }
  return isInside ? RingSide::Inside : RingSide::Outside;
}

// In the middle of the widest piece of the level line in the middle of the largest step between corners.
Vec3 PointWithin(const Ring& ring) {
  std::vector<double> levels;
  levels.reserve(ring.size());
  for (const Vec3& corner : ring)
    levels.push_back(corner.y);
  std::sort(levels.begin(), levels.end());
  std::size_t largest = 1;
  for (std::size_t i = 1; i < levels.size(); ++i)
    if (levels[i] - levels[i - 1] > levels[largest] - levels[largest - 1]) largest = i;
  const double y = levels[largest - 1] + (levels[largest] - levels[largest - 1]) / 2;
  const std::vector<double> places = Crossings(ring, y);
  if (places.size() < 2) return ring[0];  // where numbers end
  std::size_t widest = 0;
  for (std::size_t i = 0; i + 1 < places.size(); i += 2)
    if (places[i + 1] - places[i] > places[widest + 1] - places[widest]) widest = i;
  return {places[widest] + (places[widest + 1] - places[widest]) / 2, y, 0};
}

bool Holds(const Ring& outer, const Ring& inner) {
  if (geometry::PlanArea(inner) > (1 - SAME_AREA) * geometry::PlanArea(outer)) return false;
  const Vec3 within = PointWithin(inner);
  if (SideOf(outer, within.x, within.y) != RingSide::Inside) return false;
  return std::all_of(inner.begin(), inner.end(),
                     [&](const Vec3& p) { return SideOf(outer, p.x, p.y) != RingSide::Outside; }) &&
         !Cross(outer, inner);
}

Ring TurnedAgainst(const Ring& outer, Ring inner) {
  if (geometry::VecDot(geometry::AreaVector(outer), geometry::AreaVector(inner)) > 0)
    std::reverse(inner.begin(), inner.end());
  return inner;
}

Ring LineAround(const Ring& outer, const std::vector<Ring>& holes) {
  Ring line = outer;
  for (const Ring& hole : holes) {
    line.push_back(outer.front());
    line.insert(line.end(), hole.begin(), hole.end());
    line.push_back(hole.front());
  }
  return line;
}

namespace {

// Finds the nest of rings from the largest to the smallest.
class Nester {
 public:
  Nester(const std::vector<Ring>& rings, const std::function<bool(std::size_t, std::size_t)>& belong)
      : rings_(rings), belong_(belong), index_(BoxesOf(rings)) {}

  RingNest Find() {
    nest_.depths.resize(rings_.size());
    nest_.holes.resize(rings_.size());
    for (const std::size_t inner : LargestFirst())
      PutIn(inner);
    return std::move(nest_);
  }

 private:
  static std::vector<PlanBox> BoxesOf(const std::vector<Ring>& rings) {
    std::vector<PlanBox> boxes;
    boxes.reserve(rings.size());
    for (const Ring& ring : rings)
      boxes.push_back(PlanBoxOf(ring));
    return boxes;
  }

  std::vector<std::size_t> LargestFirst() const {
    std::vector<double> areas;
    areas.reserve(rings_.size());
    for (const Ring& ring : rings_)
      areas.push_back(geometry::PlanArea(ring));
    std::vector<std::size_t> order(rings_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    order.erase(std::remove_if(order.begin(), order.end(), [&](std::size_t i) { return !(areas[i] > 0); }),
                order.end());
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return areas[a] > areas[b]; });
    return order;
  }

  void PutIn(std::size_t inner) {
    const Vec3 within = PointWithin(rings_[inner]);
    std::vector<std::size_t> holders;
    bool isRepeated = false;  // a hole that is drawn twice is one
    for (const std::size_t other : index_.Touching({within.x, within.y, within.x, within.y})) {
      if (other == inner || !belong_(other, inner)) continue;
      if (Holds(rings_[other], rings_[inner])) holders.push_back(other);
      isRepeated = isRepeated || (other < inner && AreSame(rings_[other], rings_[inner]));
    }
    std::size_t& depth = nest_.depths[inner];
    for (const std::size_t outer : holders)
      depth = std::max(depth, nest_.depths[outer] + 1);
    for (const std::size_t outer : holders)
      if (!isRepeated && nest_.depths[outer] + 1 == depth) nest_.holes[outer].push_back(inner);
  }

  const std::vector<Ring>& rings_;
  const std::function<bool(std::size_t, std::size_t)>& belong_;
  PlanIndex index_;
  RingNest nest_;
};

}  // namespace

RingNest NestOf(const std::vector<Ring>& rings, const std::function<bool(std::size_t, std::size_t)>& belong) {
  return Nester(rings, belong).Find();
}

}  // namespace teskarlt
