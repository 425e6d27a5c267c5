// Picture.h - distances and areas in the plane of a picture.
#pragma once

#include <algorithm>
#include <cmath>
#include <utility>

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

// Narrows a part of a line to where the linear function from f0 (at 0) to f1 (at 1) is not negative; false
// when nothing is left.
inline bool Narrow(double f0, double f1, std::pair<double, double>& part) {
  if (f0 < 0 && f1 < 0) return false;
  if (f0 < 0) part.first = std::max(part.first, f0 / (f0 - f1));
  if (f1 < 0) part.second = std::min(part.second, f0 / (f0 - f1));
  return part.first < part.second;
}

}  // namespace teskarlt::preview
