// PlanOutline.cpp - convex hulls in the plan.
#include "teskarlt/drawing/PlanOutline.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <tuple>
#include <utility>

#include "geometry/Vectors.h"
#include "teskarlt/drawing/WindowParts.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr std::ptrdiff_t ENDS_OF_A_LINE = 2;

// Positive where the way over the three points turns to the left.
double Turn(const Vec3& a, const Vec3& b, const Vec3& c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// The point of the line from `a` to `b` that is nearest in the plan.
Vec3 NearestBetween(const Vec3& a, const Vec3& b, const Vec3& point) {
  const double x = b.x - a.x;
  const double y = b.y - a.y;
  const double square = x * x + y * y;
  if (square == 0) return a;
  const double share = ((point.x - a.x) * x + (point.y - a.y) * y) / square;
  return geometry::Between(a, b, std::clamp(share, 0.0, 1.0));
}

}  // namespace

Ring PlanHull(std::vector<Vec3> points) {
  std::sort(points.begin(), points.end(),
            [](const Vec3& a, const Vec3& b) { return std::tie(a.x, a.y, a.z) < std::tie(b.x, b.y, b.z); });
  if (points.size() < 2) return points;
  Ring hull;
  hull.reserve(2 * points.size());
  std::size_t fixed = 1;  // corners that stay
  const auto add = [&](const Vec3& point) {
    while (hull.size() > fixed && Turn(hull[hull.size() - 2], hull.back(), point) <= 0)
      hull.pop_back();
    hull.push_back(point);
  };
  std::for_each(points.begin(), points.end(), add);  // the lower side, from the left
  fixed = hull.size();
  std::for_each(std::next(points.rbegin()), points.rend(), add);
  hull.pop_back();  // the first one again
  return hull;
}

Ring PlanOutlineOf(const dxf::Document& drawing, const DrawnWindow& window) {
  const WindowParts parts = ReadParts(drawing, window.entities, IN_DRAWING_UNITS);
  std::vector<Vec3> points;
  for (const PartCorners& face : parts.faces)
    points.insert(points.end(), face.begin(), face.end());
  for (const PartCorners& line : parts.lines)
    points.insert(points.end(), line.begin(), line.begin() + ENDS_OF_A_LINE);
  return PlanHull(std::move(points));
}

Vec3 NearestOn(const Ring& ring, const Vec3& point) {
  Vec3 nearest = ring.front();
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Vec3 candidate = NearestBetween(ring[i], ring[(i + 1) % ring.size()], point);
    if (PlanDistance(candidate, point) < PlanDistance(nearest, point)) nearest = candidate;
  }
  return nearest;
}

double PlanDistance(const Vec3& a, const Vec3& b) {
  const double x = a.x - b.x;
  const double y = a.y - b.y;
  return std::sqrt(x * x + y * y);
}

}  // namespace teskarlt
