// SecondPlane.cpp - the second plane and the roof's underside.
#include "window/SecondPlane.h"

#include "geometry/Vectors.h"
#include "inc/RecordPoints.h"
#include "window/Choices.h"

namespace brevanta {

using geometry::Vec3;

bool UsesSecondPlane(const WindowParams& params) {
  return params.roofBuildUp == BUILD_UP_SECOND_PLANE && params.layerThickness > 0.0;
}

Vec3 OnUnderside(const Vec3& onRoof, const Vec3& normal, const WindowParams& params) {
  return Moved(onRoof, normal, -params.layerThickness * params.unitFactor);
}

bool IsUnderside(const WindowParams& params, double tolerance) {
  const auto& roof = params.roofPlanePoints;
  const Vec3 along = Difference(ToVec3(roof[1]), ToVec3(roof[0]));
  const Vec3 across = Difference(ToVec3(roof[2]), ToVec3(roof[0]));
  Vec3 normal{};
  if (VecNormalize(Cross(along, across), normal) != 0) return false;
  const Vec3 upwards = normal.z < 0 ? Scaled(normal, -1.0) : normal;
  for (int i = 0; i < 3; ++i) {
    const Vec3 lowered = OnUnderside(ToVec3(roof[i]), upwards, params);
    if (Distance(lowered, ToVec3(params.secondPlanePoints[i])) > tolerance) return false;
  }
  return true;
}

bool HasOwnSecondPlane(const WindowParams& params, double tolerance) {
  return UsesSecondPlane(params) && !IsUnderside(params, tolerance);
}

}  // namespace brevanta
