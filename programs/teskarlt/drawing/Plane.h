// Plane.h - a plane that is not vertical, in drawing coordinates and units.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "geometry/Vec3.h"
#include "geometry/Vectors.h"

namespace teskarlt {

struct Plane {
  geometry::Vec3 point;   // one of the plane
  geometry::Vec3 normal;  // unit length, z positive
};

// The plane through corners in order around a face, of its mean normal (Newell); they span an area that is
// not upright.
Plane PlaneOf(const std::vector<geometry::Vec3>& corners);

// How far the point lies above the plane, square to it; negative below.
inline double DistanceFrom(const Plane& plane, const geometry::Vec3& p) {
  return geometry::VecDot(plane.normal, geometry::Difference(p, plane.point));
}

inline double HeightAt(const Plane& plane, double x, double y) {
  const geometry::Vec3& o = plane.point;
  return o.z - (plane.normal.x * (x - o.x) + plane.normal.y * (y - o.y)) / plane.normal.z;
}

// The plane's point straight above or below p.
inline geometry::Vec3 Plumb(const Plane& plane, const geometry::Vec3& p) {
  return {p.x, p.y, HeightAt(plane, p.x, p.y)};
}

// Degrees from the horizontal, from 0 up to but not 90.
double Pitch(const Plane& plane);

// Direction in which the plane falls, in the plan: degrees counter-clockwise from the drawing's x axis, from
// 0 up to but not 360; none for a flat one.
std::optional<double> FallDirection(const Plane& plane);

// The nearest of the sixteen points of the compass to such a direction, "N", "NNE", "NE" ...; north is y.
std::string_view CompassPoint(double degrees);

}  // namespace teskarlt
