// VectorsTest.cpp - the elementary operations as values.
#include <gtest/gtest.h>

#include "geometry/Vectors.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

const Vec3 A{1, 2, 3};
const Vec3 B{10, 20, 40};

TEST(Vectors, SumAndDifferenceGoByComponents) {
  EXPECT_EQ(Sum(A, B), (Vec3{11, 22, 43}));
  EXPECT_EQ(Difference(A, B), (Vec3{-9, -18, -37}));
}

TEST(Vectors, ScaledMultipliesEachComponent) {
  EXPECT_EQ(Scaled(A, -2.0), (Vec3{-2, -4, -6}));
}

TEST(Vectors, CrossOfTwoAxesIsTheThird) {
  EXPECT_EQ(Cross(Vec3{1, 0, 0}, Vec3{0, 1, 0}), (Vec3{0, 0, 1}));
}

TEST(Vectors, UnitHasTheLengthOne) {
  EXPECT_EQ(Unit({0, -5, 0}), (Vec3{0, -1, 0}));
}

TEST(Vectors, UnitOfLessThanTheToleranceIsZero) {
  EXPECT_EQ(Unit({INSIDE, 0, 0}), (Vec3{0, 0, 0}));
  EXPECT_EQ(Unit({ON, 0, 0}), (Vec3{1, 0, 0}));
}

TEST(Vectors, DistanceIsThatOfThePoints) {
  EXPECT_EQ(Distance({1, 1, 1}, {3, 4, 7}), 7.0);  // 2, 3 and 6 apart
}

TEST(Vectors, MovedGoesTheDistanceInLengthsOfTheDirection) {
  EXPECT_EQ(Moved(A, {0, 0, 2}, 3.0), (Vec3{1, 2, 9}));
}

TEST(Vectors, BetweenGoesTheShareOfTheWay) {
  EXPECT_EQ(Between({0, 0, 0}, {4, 8, -4}, 0.25), (Vec3{1, 2, -1}));
  EXPECT_EQ(Between(A, B, 0.0), A);
  EXPECT_EQ(Between(A, B, 1.0), B);
}

TEST(AreaVector, IsTwiceTheAreaAlongTheNormal) {
  // A rectangle of 3 x 2 at the height 5, counter-clockwise seen from above.
  EXPECT_EQ(AreaVector({{0, 0, 5}, {3, 0, 5}, {3, 2, 5}, {0, 2, 5}}), (Vec3{0, 0, 12}));
}

TEST(AreaVector, PointsDownForCornersTheOtherWayRound) {
  EXPECT_EQ(AreaVector({{0, 0, 5}, {0, 2, 5}, {3, 0, 5}}), (Vec3{0, 0, -6}));
}

TEST(AreaVector, OfAConcavePolygonLeavesTheNotchOut) {
  // A square of 4 x 4 without the triangle (0, 0), (2, 2), (0, 4), whose area is 4.
  EXPECT_EQ(AreaVector({{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}, {2, 2, 0}}), (Vec3{0, 0, 24}));
}

TEST(AreaVector, OfFewerThanThreeCornersIsZero) {
  EXPECT_EQ(AreaVector({A, B}), (Vec3{0, 0, 0}));
  EXPECT_EQ(AreaVector({}), (Vec3{0, 0, 0}));
}

}  // namespace
}  // namespace geometry
