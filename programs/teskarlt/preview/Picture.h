// Picture.h - distances and areas in the plane of a picture.
#pragma once

#include <cmath>

#include "geometry/Vec3.h"

namespace teskarlt::preview {

// Points as View::Project gives them; how far they lie before the picture does not count.

inline double DistanceInPicture(const geometry::Vec3& a, const geometry::Vec3& b) {
  return std::sqrt((b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y));
}

// Twice the area of the triangle, positive when it turns counter-clockwise.
inline double TurnInPicture(const geometry::Vec3& a, const geometry::Vec3& b, const geometry::Vec3& c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

}  // namespace teskarlt::preview
