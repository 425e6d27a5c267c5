// BvMakeWindow.cpp - life of the insertion object, and the flow from a record to entities.
#include "arx/BvMakeWindow/BvMakeWindow.h"

#include <cmath>
#include <utility>

#include "arx/BvMakeWindow/PlanOutline.h"
#include "arx/BvMakeWindow/WindowBody.h"
#include "arx/BvMakeWindow/WindowOutlines.h"
#include "arx/exports/CompanionModule.h"
#include "arx/exports/HostTable.h"
#include "geometry/RoofPlane.h"
#include "inc/RecordPoints.h"
#include "inc/StringModule.h"
#include "platform/GcGeVector3d.h"
#include "window/Choices.h"
#include "window/EdgeHeights.h"
#include "window/Outlines.h"

namespace brevanta {

namespace {

using geometry::KernelTolerance;
using geometry::Vec3;

constexpr std::int32_t WIDTH_ALONG_X = 1;
constexpr std::int32_t KEEP_BATCH = 1;

bool FitPlane(const RecordPoint (&points)[3], std::int32_t unitFactor) {
  return geometry::FitRoofPlane(ToVec3(points[0]), ToVec3(points[1]), ToVec3(points[2]), unitFactor) == 1;
}

GcGePoint3d ToPoint3d(const Vec3& v) {
  return {v.x, v.y, v.z};
}

void SetTransform(const geometry::Matrix4& matrix, GcGeMatrix3d& out) {
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column)
      out.entry[row][column] = matrix.m[row][column];
  }
}

// Angle of the window's X axis in the drawing, in radians.
double WindowRotation(const GcGeMatrix3d& roofTransform) {
  GcGeVector3d xAxis = GcGeVector3d::kXAxis;
  xAxis.transformBy(roofTransform).normalize(GcGeContext::gTol);
  return GcGeVector3d::kXAxis.angleTo(xAxis, GcGeVector3d::kZAxis);
}

}  // namespace

CbvMakeWindow::CbvMakeWindow() : innerOutline(0, POINT_GROW_STEP), outerOutline(0, POINT_GROW_STEP) {
  resourceModule = LoadCompanionModule(RESOURCE_MODULE);
  hostTable = GetHostFunctionTable();
}

CbvMakeWindow::~CbvMakeWindow() {
  if (resourceModule != nullptr) FreeLibrary(std::exchange(resourceModule, nullptr));
}

std::int32_t CbvMakeWindow::Make(WindowParams* record, std::int32_t factor) {
  params = record;
  unitFactor = factor;
  record->insertionPoint = ToRecordPoint(MovedInsertionPoint(*record, factor));
  if (!FitPlane(record->roofPlanePoints, record->unitFactor)) return MAKE_DONE;
  ComputeEdgeHeights(UPPER_FROM_LOWER);
  if (Scaled(record->layerThickness) > 0.0 && record->roofBuildUp == BUILD_UP_SECOND_PLANE) {
    if (!FitPlane(record->secondPlanePoints, record->unitFactor)) return MAKE_FAILED;
  }

  const geometry::RoofPlane& plane = geometry::roofPlane;
  if (std::abs(plane.localNormal.z) < KernelTolerance) return MAKE_FAILED;
  const LocalSlope slope = SlopeOf(plane);

  const Vec3 roofPoint = PointOver(plane, ToVec3(record->insertionPoint));
  Vec3 point = roofPoint;
  if (slope.angle > KernelTolerance && record->placeByHeight == PLACED_BY_HEIGHT) {
    point = PointAtHeight(plane, roofPoint, Scaled(record->lowerEdgeHeight));
  }
  BuildWindow(ToPoint3d(point), ToPoint3d(roofPoint), slope.angle, static_cast<std::int16_t>(slope.ySide),
              WIDTH_ALONG_X);
  return MAKE_DONE;
}

void CbvMakeWindow::ComputeEdgeHeights(int mode) {
  const double height = EdgeHeight(*params, mode, unitFactor);
  (mode == UPPER_FROM_LOWER ? params->upperEdgeHeight : params->lowerEdgeHeight) = height;
}

void CbvMakeWindow::BuildWindow(const GcGePoint3d& point, const GcGePoint3d& /*roofPoint*/, double slopeAngle,
                                std::int16_t slopeSign, std::int32_t direction) {
  SetTransform(geometry::roofPlane.localToWorld, roofTransform);
  Point3dArray outer;
  Point3dArray inner;
  Point3dArray opening;
  GcGePoint3d corner0World;
  GcGePoint3d corner3World;
  ComputeWindowOutlines(*this, point, slopeAngle, slopeSign, direction, outer, inner, opening, corner0World,
                        corner3World);
  if (direction == -1 && params->widthAnchor == ANCHOR_CENTRE) std::swap(corner0World, corner3World);
  params->rotation = WindowRotation(roofTransform);
  BeginEntityBatch(hostTable);
  MakeWindowBody(*this, outer, inner, slopeAngle, slopeSign);
  DrawPlanOutline(*this, outer, opening, params->drawOpeningSymbol);
  EndEntityBatch(hostTable, KEEP_BATCH);
}

}  // namespace brevanta
