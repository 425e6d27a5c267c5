// FaceCover.cpp - clips polygons against a convex outline in the plan.
#include "dialog/FaceCover.h"

#include <cmath>

namespace brevanta {

namespace {

using geometry::Vec3;

// Positive when the corners run counter-clockwise. Coordinates are taken from the first corner, for
// precision.
double SignedArea(const PlanPolygon& polygon) {
  double twice = 0.0;
  for (std::size_t i = 1; i + 1 < polygon.size(); ++i) {
    const Vec3& o = polygon[0];
    const Vec3& a = polygon[i];
    const Vec3& b = polygon[i + 1];
    twice += (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x);
  }
  return twice / 2;
}

// Signed distance measure of p from the directed line a to b, positive on its left.
double SideOf(const Vec3& a, const Vec3& b, const Vec3& p) {
  return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

// What of the polygon lies on the left of the directed line a to b (I. Sutherland, G. Hodgman, Reentrant
// polygon clipping, 1974). A concave polygon may come back with edges that run over each other; its area is
// right.
PlanPolygon ClipLeftOf(const Vec3& a, const Vec3& b, const PlanPolygon& polygon) {
  PlanPolygon clipped;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Vec3& from = polygon[i];
    const Vec3& to = polygon[(i + 1) % polygon.size()];
    const double fromSide = SideOf(a, b, from);
    const double toSide = SideOf(a, b, to);
    if (fromSide >= 0.0) clipped.push_back(from);
    if ((fromSide < 0.0) != (toSide < 0.0)) {
      const double t = fromSide / (fromSide - toSide);
      clipped.push_back({from.x + t * (to.x - from.x), from.y + t * (to.y - from.y), 0.0});
    }
  }
  return clipped;
}

}  // namespace

double PlanArea(const PlanPolygon& polygon) {
  return std::abs(SignedArea(polygon));
}

double CoveredArea(const PlanPolygon& outline, const PlanPolygon& polygon) {
  const bool counterClockwise = SignedArea(outline) > 0.0;
  PlanPolygon inside = polygon;
  for (std::size_t i = 0; i < outline.size() && !inside.empty(); ++i) {
    const Vec3& a = outline[i];
    const Vec3& b = outline[(i + 1) % outline.size()];
    inside = counterClockwise ? ClipLeftOf(a, b, inside) : ClipLeftOf(b, a, inside);
  }
  return PlanArea(inside);
}

}  // namespace brevanta
