// RecordPoints.h - the points of the window record as points of the geometry kernel, and back.
#pragma once

#include <optional>

#include "geometry/RoofPlane.h"
#include "geometry/Vec3.h"
#include "inc/WindowParams.h"

namespace brevanta {

constexpr geometry::Vec3 ToVec3(const RecordPoint& p) {
  return {p.x, p.y, p.z};
}

constexpr RecordPoint ToRecordPoint(const geometry::Vec3& v) {
  return {v.x, v.y, v.z};
}

// The plane through three points of the record; none when they lie on one line.
inline std::optional<geometry::RoofPlane> PlaneThrough(const RecordPoint (&points)[3]) {
  return geometry::RoofPlaneThrough(ToVec3(points[0]), ToVec3(points[1]), ToVec3(points[2]));
}

}  // namespace brevanta
