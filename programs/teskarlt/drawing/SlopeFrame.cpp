// SlopeFrame.cpp - coordinates on a roof: along its eaves and up its slope.
#include "teskarlt/drawing/SlopeFrame.h"

#include <cmath>

#include "geometry/Vectors.h"

namespace teskarlt {

using geometry::Vec3;

SlopePoint SlopeFrame::Of(const Vec3& p) const {
  const Vec3 from = geometry::Difference(p, origin);
  return {geometry::VecDot(from, across), geometry::VecDot(from, up)};
}

Vec3 SlopeFrame::At(const SlopePoint& p) const {
  return geometry::Moved(geometry::Moved(origin, across, p.across), up, p.up);
}

SlopeFrame FrameOf(const Plane& plane) {
  if (!FallDirection(plane)) return {plane.point, {1, 0, 0}, {0, 1, 0}};
  const Vec3& normal = plane.normal;
  const double fall = std::hypot(normal.x, normal.y);
  const Vec3 across{-normal.y / fall, normal.x / fall, 0.0};
  return {plane.point, across, geometry::Cross(normal, across)};
}

}  // namespace teskarlt
