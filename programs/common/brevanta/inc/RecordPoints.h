// RecordPoints.h - the points of the window record as points of the geometry kernel, and back.
#pragma once

#include "geometry/Vec3.h"
#include "inc/WindowParams.h"

namespace brevanta {

constexpr geometry::Vec3 ToVec3(const RecordPoint& p) {
  return {p.x, p.y, p.z};
}

constexpr RecordPoint ToRecordPoint(const geometry::Vec3& v) {
  return {v.x, v.y, v.z};
}

}  // namespace brevanta
