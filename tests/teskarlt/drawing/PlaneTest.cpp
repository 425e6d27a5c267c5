// PlaneTest.cpp - pitch, direction and heights of planes.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "teskarlt/drawing/Plane.h"

namespace teskarlt {
namespace {

const double HALF = std::sqrt(0.5);

// Through (1, 2, 3), falling by 45 degrees towards -y; and level.
const Plane SLOPE = {{1, 2, 3}, {0, -HALF, HALF}};
const Plane LEVEL = {{1, 2, 3}, {0, 0, 1}};

TEST(DistanceFrom, IsSquareToThePlaneAndPositiveAbove) {
  EXPECT_NEAR(DistanceFrom(SLOPE, {7, 2, 4}), HALF, 1e-15);
  EXPECT_NEAR(DistanceFrom(SLOPE, {7, 3, 3}), -HALF, 1e-15);
}

TEST(Plumb, KeepsThePlaceInThePlan) {
  const geometry::Vec3 plumb = Plumb(SLOPE, {7, 4, 100});
  EXPECT_EQ(plumb.x, 7);
  EXPECT_EQ(plumb.y, 4);
  EXPECT_NEAR(plumb.z, 5, 1e-15);
}

TEST(PlaneOf, NormalIsUpwardsWhateverTheOrderOfTheCorners) {
  const std::vector<geometry::Vec3> corners = {{0, 0, 1}, {4, 0, 1}, {4, 4, 4}};
  for (const auto& ring : {corners, {corners.rbegin(), corners.rend()}}) {
    const Plane plane = PlaneOf(ring);
    EXPECT_NEAR(plane.normal.y, -0.6, 1e-15);
    EXPECT_NEAR(plane.normal.z, 0.8, 1e-15);
    EXPECT_NEAR(HeightAt(plane, 0, 8), 7, 1e-12);
  }
}

TEST(Pitch, IsMeasuredFromTheHorizontal) {
  EXPECT_NEAR(Pitch(SLOPE), 45, 1e-12);
  EXPECT_EQ(Pitch(LEVEL), 0);
}

TEST(FallDirection, PointsDownTheSlope) {
  EXPECT_NEAR(*FallDirection(SLOPE), 270, 1e-12);
  EXPECT_NEAR(*FallDirection({{0, 0, 0}, {HALF, 0, HALF}}), 0, 1e-12);
  EXPECT_FALSE(FallDirection(LEVEL));
}

TEST(CompassPoint, NorthIsAlongYAndEastAlongX) {
  EXPECT_EQ(CompassPoint(90), "N");
  EXPECT_EQ(CompassPoint(0), "E");
  EXPECT_EQ(CompassPoint(359), "E");
  EXPECT_EQ(CompassPoint(225), "SW");
  EXPECT_EQ(CompassPoint(112.5), "NNW");
}

}  // namespace
}  // namespace teskarlt
