// RoofPlaneThroughTest.cpp - the roof plane as a value, and places on it.
#include <cmath>
#include <iterator>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "geometry/RoofPlane.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

// Every number of the plane but those of the third and fourth local corner.
std::vector<double> NumbersOf(const RoofPlane& plane) {
  std::vector<double> numbers;
  const auto add = [&](const Vec3& v) { numbers.insert(numbers.end(), {v.x, v.y, v.z}); };
  for (const Vec3& corner : plane.corners)
    add(corner);
  add(plane.localCorners[0]);
  add(plane.localCorners[1]);
  add(plane.normal);
  add(plane.localNormal);
  for (const Matrix4* matrix : {&plane.worldToLocal, &plane.localToWorld}) {
    for (const auto& row : matrix->m)
      numbers.insert(numbers.end(), std::begin(row), std::end(row));
  }
  return numbers;
}

TEST(RoofPlaneThrough, AgreesBitForBitWithTheModuleWideFit) {
  roofPlane = RoofPlane{};
  Random random(20261121);
  for (int round = 0; round < 1000; ++round) {
    const double size = round % 2 == 0 ? 10.0 : 1e6;
    const Vec3 p1 = random.Point(size);
    const Vec3 p2 = random.Point(size);
    const Vec3 p3 = random.Point(size);
    const std::optional<RoofPlane> plane = RoofPlaneThrough(p1, p2, p3);
    ASSERT_EQ(FitRoofPlane(p1, p2, p3, 1), 1);
    ASSERT_TRUE(plane);
    ASSERT_EQ(NumbersOf(*plane), NumbersOf(roofPlane)) << "round " << round;
  }
}

TEST(RoofPlaneThrough, LeavesTheModuleWideFitAlone) {
  FitRoofPlane({0, 0, 0}, {10, 0, 0}, {5, 4, 4}, 1);
  const RoofPlane before = roofPlane;
  ASSERT_TRUE(RoofPlaneThrough({0, 0, 0}, {0, 10, 0}, {-4, 5, 4}));
  EXPECT_FALSE(RoofPlaneThrough({0, 0, 0}, {1, 1, 1}, {3, 3, 3}));
  EXPECT_EQ(NumbersOf(roofPlane), NumbersOf(before));
}

TEST(RoofPlaneThrough, GivesNoneForPointsOnOneLine) {
  EXPECT_FALSE(RoofPlaneThrough({0, 0, 0}, {1, 1, 1}, {3, 3, 3}));
  EXPECT_FALSE(RoofPlaneThrough({NOT_A_NUMBER, 0, 0}, {1, 0, 0}, {0, 1, 0}));
}

// A roof that rises 3 in 4 along -x; its local origin is (-4, 5, 0), where its height is 3.
RoofPlane RisingAlongMinusX() {
  return RoofPlaneThrough({0, 0, 0}, {0, 10, 0}, {-4, 5, 3}).value();
}

TEST(RoofPlaneThrough, TakesPointsToItsFrameAndBack) {
  const RoofPlane plane = RisingAlongMinusX();
  EXPECT_EQ(ToWorld(plane, {0, 0, 0}), (Vec3{-4, 5, 0}));
  EXPECT_THAT(ToLocal(plane, {-5, 5, 7}), IsNear((Vec3{0, 1, 7}), 1e-14));  // 1 up the slope
}

TEST(RoofPlaneThrough, TellsItsSlope) {
  EXPECT_NEAR(SlopeAngle(RisingAlongMinusX()), std::atan(0.75), 1e-15);
  EXPECT_EQ(SlopeAngle(RoofPlaneThrough({0, 0, 7}, {1, 0, 7}, {0, 1, 7}).value()), 0.0);
}

TEST(RoofPlaneThrough, HasAPointOverEachPlace) {
  // 4 up the slope from the local origin the height is 3 + 3.
  EXPECT_THAT(PointOver(RisingAlongMinusX(), {2, 4, 99}), IsNear((Vec3{2, 4, 6}), 1e-13));
}

TEST(RoofPlaneThrough, VerticalPlaneHasNoPointOverAPlace) {
  const RoofPlane wall = RoofPlaneThrough({0, 0, 0}, {10, 0, 0}, {5, 0, 4}).value();
  EXPECT_EQ(PointOver(wall, {1, 2, 3}), (Vec3{1, 2, 3}));
}

TEST(RoofPlaneThrough, HasAPointOfEachHeightUpTheSlope) {
  EXPECT_THAT(PointAtHeight(RisingAlongMinusX(), {2, 4, 6}, 9), IsNear((Vec3{2, 8, 9}), 1e-13));
}

TEST(RoofPlaneThrough, FlatPlaneHasOneHeight) {
  const RoofPlane flat = RoofPlaneThrough({0, 0, 7}, {1, 0, 7}, {0, 1, 7}).value();
  EXPECT_EQ(PointAtHeight(flat, {2, 4, 7}, 9), (Vec3{2, 4, 7}));
}

}  // namespace
}  // namespace geometry
