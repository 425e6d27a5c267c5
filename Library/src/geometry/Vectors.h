// Vectors.h - the elementary operations on points and vectors with their results as values, for expressions.
#pragma once

#include <cstddef>
#include <vector>

#include "geometry/Vec3.h"

namespace geometry {

// Each gives what the operation of Vec3.h gives, bit for bit. Points and lengths are drawing units.

inline Vec3 Sum(const Vec3& a, const Vec3& b) {
  Vec3 sum{};
  VecAdd(a, b, sum);
  return sum;
}

// The vector a - b: from b to a.
inline Vec3 Difference(const Vec3& a, const Vec3& b) {
  Vec3 difference{};
  VecSub(a, b, difference);
  return difference;
}

inline Vec3 Scaled(const Vec3& v, double factor) {
  Vec3 scaled{};
  VecScale(v, factor, scaled);
  return scaled;
}

// a x b.
inline Vec3 Cross(const Vec3& a, const Vec3& b) {
  Vec3 cross{};
  VecCross(a, b, cross);
  return cross;
}

// The unit vector along v; zero when v is shorter than the tolerance.
inline Vec3 Unit(const Vec3& v) {
  Vec3 unit{};
  VecNormalize(v, unit);
  return unit;
}

inline double Distance(const Vec3& a, const Vec3& b) {
  return VecLength(Difference(b, a));
}

// The point that lies `distance` times `direction` from p.
inline Vec3 Moved(const Vec3& p, const Vec3& direction, double distance) {
  return {p.x + direction.x * distance, p.y + direction.y * distance, p.z + direction.z * distance};
}

// The point between a, at the share 0, and b, at the share 1.
inline Vec3 Between(const Vec3& a, const Vec3& b, double share) {
  return Moved(a, Difference(b, a), share);
}

// Twice the area of a planar polygon times its unit normal, about which the corners go counter-clockwise;
// zero for fewer than three corners. By Newell's method (M. Newell, 1972), taken from the first corner so
// that a place far from the origin costs no precision.
inline Vec3 AreaVector(const std::vector<Vec3>& corners) {
  Vec3 sum{};
  for (std::size_t i = 1; i + 1 < corners.size(); ++i)
    sum = Sum(sum, Cross(Difference(corners[i], corners[0]), Difference(corners[i + 1], corners[0])));
  return sum;
}

}  // namespace geometry
