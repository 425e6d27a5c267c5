// CurvesTest.cpp - points along curves.

#include <gtest/gtest.h>

#include "teskarlt/drawing/Curves.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

CurvePoints Points(const std::string& entity) {
  const dxf::Document drawing = Drawing("", Groups(entity));
  return PointsOf(drawing.TagLists(drawing.Entities()[0].text)).value();
}

using geometry::Vec3;

void ExpectPoint(const Vec3& p, double x, double y, double z) {
  EXPECT_NEAR(p.x, x, 1e-12);
  EXPECT_NEAR(p.y, y, 1e-12);
  EXPECT_NEAR(p.z, z, 1e-12);
}

TEST(PointsOf, CircleEndsWhereItBegins) {
  const CurvePoints points = Points("0 CIRCLE|10 1|20 2|30 3|40 5|");
  EXPECT_EQ(points.size(), 73U);
  ExpectPoint(points.front(), 6, 2, 3);
  ExpectPoint(points.back(), 6, 2, 3);
  ExpectPoint(points[18], 1, 7, 3);
}

TEST(PointsOf, ArcRunsCounterClockwiseThroughZero) {
  const CurvePoints points = Points("0 ARC|10 0|20 0|40 1|50 350|51 10|");
  EXPECT_EQ(points.size(), 5U);
  ExpectPoint(points[2], 1, 0, 0);
}

TEST(PointsOf, ExtrusionDownwardsMirrorsACircle) {
  ExpectPoint(Points("0 ARC|10 2|20 0|30 4|40 1|50 0|51 90|210 0|220 0|230 -1|").front(), -3, 0, -4);
}

TEST(PointsOf, BulgeOfOneIsAHalfCircle) {
  const CurvePoints points = Points("0 LWPOLYLINE|70 0|38 7|10 0|20 0|42 1|10 2|20 0|");
  EXPECT_EQ(points.size(), 37U);
  ExpectPoint(points[18], 1, -1, 7);
  ExpectPoint(points.back(), 2, 0, 7);
}

TEST(PointsOf, ClosedPolylineReturns) {
  const CurvePoints points = Points("0 LWPOLYLINE|70 1|10 0|20 0|10 2|20 0|10 2|20 3|");
  ASSERT_EQ(points.size(), 4U);
  ExpectPoint(points.back(), 0, 0, 0);
}

TEST(PointsOf, EllipseHasItsAxes) {
  const CurvePoints points =
      Points("0 ELLIPSE|10 0|20 0|30 1|11 0|21 4|31 0|40 0.5|41 0|42 6.283185307179586|");
  ExpectPoint(points.front(), 0, 4, 1);
  ExpectPoint(points[18], -2, 0, 1);
}

TEST(PointsOf, SplineOfDegreeOneIsItsPolygon) {
  const CurvePoints points = Points("0 SPLINE|71 1|40 0|40 0|40 1|40 2|40 2|10 0|20 0|10 2|20 2|10 4|20 0|");
  ExpectPoint(points.front(), 0, 0, 0);
  ExpectPoint(points[12], 2, 2, 0);
  ExpectPoint(points.back(), 4, 0, 0);
}

TEST(PointsOf, WeightedSplineIsAQuarterOfACircle) {
  const CurvePoints points = Points(
      "0 SPLINE|71 2|40 0|40 0|40 0|40 1|40 1|40 1|41 1|41 0.7071067811865476|41 1|10 1|20 0|10 1|20 1|10 "
      "0|20 1|");
  for (const Vec3& point : points)
    EXPECT_NEAR(point.x * point.x + point.y * point.y, 1, 1e-12);
}

TEST(PointsOf, OtherEntitiesAreNoCurves) {
  const dxf::Document drawing = Drawing("", Groups("0 TEXT|1 Hello|"));
  EXPECT_FALSE(PointsOf(drawing.TagLists(drawing.Entities()[0].text)));
}

TEST(PointsOf, HugeAnglesDoNotHang) {
  EXPECT_GE(Points("0 ARC|10 0|20 0|40 1|50 1e300|51 -1e300|").size(), 2U);
}

}  // namespace
}  // namespace teskarlt
