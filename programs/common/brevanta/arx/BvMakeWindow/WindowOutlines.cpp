// WindowOutlines.cpp - a window's outlines as arrays of points.
#include "arx/BvMakeWindow/WindowOutlines.h"

#include <cstddef>

#include "window/Outlines.h"

namespace brevanta {

namespace {

GcGePoint3d ToPoint3d(const geometry::Vec3& v) {
  return {v.x, v.y, v.z};
}

GcGePoint3d ToWorld(const geometry::Vec3& local, const GcGeMatrix3d& roofTransform) {
  GcGePoint3d world = ToPoint3d(local);
  return world.transformBy(roofTransform);
}

}  // namespace

void ComputeWindowOutlines(const CbvMakeWindow& maker, const GcGePoint3d& insertion, double slope,
                           std::int16_t slopeSide, std::int32_t widthSide, Point3dArray& outer,
                           Point3dArray& inner, Point3dArray& opening, GcGePoint3d& corner0World,
                           GcGePoint3d& corner3World) {
  const WindowOutlines outlines = OutlinesAt({insertion.x, insertion.y, insertion.z}, *maker.params,
                                             maker.unitFactor, {slope, slopeSide, widthSide});
  corner0World = ToWorld(outlines.outer[0], maker.roofTransform);
  corner3World = ToWorld(outlines.outer[3], maker.roofTransform);
  for (std::size_t k = 0; k < outlines.outer.size(); ++k) {
    opening.Append(ToPoint3d(outlines.opening[k]));
    outer.Append(ToPoint3d(outlines.outer[k]));
    inner.Append(ToPoint3d(outlines.inner[k]));
  }
}

}  // namespace brevanta
