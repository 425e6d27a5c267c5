// RoofFaceTest.cpp - faces: making and measuring them, and what lies under them.
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "teskarlt/drawing/RoofFace.h"

namespace teskarlt {
namespace {

using geometry::Vec3;

constexpr double TOLERANCE = 1e-3;

// 4 x 3 in the plan, rising by 3 towards +y: 45 degrees.
const std::vector<Vec3> SLOPE = {{0, 0, 1}, {4, 0, 1}, {4, 3, 4}, {0, 3, 4}};

RoofFace Face(const std::vector<Vec3>& corners) {
  return MakeRoofFace(corners, TOLERANCE).value();
}

TEST(MakeRoofFace, NormalPointsUpWhicheverWayTheCornersRun) {
  const double half = std::sqrt(0.5);
  for (const RoofFace& face : {Face(SLOPE), Face({SLOPE[3], SLOPE[2], SLOPE[1], SLOPE[0]})}) {
    EXPECT_NEAR(face.plane.normal.x, 0, 1e-15);
    EXPECT_NEAR(face.plane.normal.y, -half, 1e-15);
    EXPECT_NEAR(face.plane.normal.z, half, 1e-15);
  }
}

TEST(MakeRoofFace, TriangleWithARepeatedCornerHasThreeCorners) {
  EXPECT_EQ(Face({SLOPE[0], SLOPE[1], SLOPE[2], SLOPE[2]}).corners.size(), 3U);
}

TEST(MakeRoofFace, VerticalFaceIsNone) {
  EXPECT_FALSE(MakeRoofFace({{0, 0, 0}, {4, 0, 0}, {4, 0, 3}, {0, 0, 3}}, TOLERANCE));
}

TEST(MakeAnyFace, VerticalFaceIsOne) {
  const auto wall = MakeAnyFace({{0, 0, 0}, {4, 0, 0}, {4, 0, 3}, {0, 0, 3}}, {}, TOLERANCE);
  ASSERT_TRUE(wall);
  EXPECT_TRUE(IsVertical(*wall));
  EXPECT_EQ(Area(*wall), 12);
}

TEST(CancelsItself, OutlineThatCrossesItselfInItsMiddleDoes) {
  EXPECT_TRUE(CancelsItself({{0, 0, 2}, {8, 0, 2}, {0, 5, 5}, {8, 5, 5}}, TOLERANCE));
  EXPECT_FALSE(CancelsItself({{0, 0, 2}, {8, 0, 2}, {8, 5, 5}, {0, 5, 5}}, TOLERANCE));
}

TEST(CancelsItself, LinesAndWallsAndSpecksDoNot) {
  EXPECT_FALSE(CancelsItself({{0, 0, 0}, {4, 0, 0}, {8, 0, 0}, {2, 0, 0}}, TOLERANCE));
  EXPECT_FALSE(CancelsItself({{0, 0, 0}, {8, 0, 0}, {0, 0, 5}, {8, 0, 5}}, TOLERANCE));
  EXPECT_FALSE(CancelsItself({{0, 0, 0}, {0.08, 0, 0}, {0, 0.05, 0}, {0.08, 0.05, 0}}, TOLERANCE));
}

TEST(MakeRoofFace, FaceWithoutAreaIsNone) {
  EXPECT_FALSE(MakeRoofFace({{0, 0, 0}, {4, 0, 0}, {8, 0, 0}}, TOLERANCE));
  EXPECT_FALSE(MakeRoofFace({{1, 1, 1}, {1, 1, 1}, {1, 1, 1}, {1, 1, 1}}, TOLERANCE));
  EXPECT_FALSE(MakeRoofFace({}, TOLERANCE));
}

// 10 x 10 in the plan with a hole of 2 x 2 in the middle, both ways round.
RoofFace WithHole(bool isTurned) {
  Ring hole = {{4, 4, 0}, {6, 4, 0}, {6, 6, 0}, {4, 6, 0}};
  if (isTurned) std::reverse(hole.begin(), hole.end());
  return MakeRoofFace({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, {hole}, TOLERANCE).value();
}

TEST(MakeRoofFace, HoleIsNoPartOfTheFace) {
  for (const bool isTurned : {false, true}) {
    const RoofFace face = WithHole(isTurned);
    EXPECT_NEAR(Area(face), 100 - 4, 1e-12);
    EXPECT_FALSE(LiesOver(face, 5, 5));
    EXPECT_TRUE(LiesOver(face, 4, 5));  // its edge
    EXPECT_TRUE(LiesOver(face, 3, 5));
  }
}

TEST(MakeRoofFace, HoleWithoutAreaIsNone) {
  EXPECT_TRUE(MakeRoofFace(SLOPE, {{{1, 1, 2}, {2, 1, 2}, {3, 1, 2}}}, TOLERANCE)->holes.empty());
}

TEST(Warp, CornersOfHolesCount) {
  RoofFace face = WithHole(false);
  face.holes[0][0].z = 0.5;
  EXPECT_NEAR(Warp(face), 0.5, 1e-12);
}

TEST(Warp, IsMeasuredFromTheBestFit) {
  // One corner raised by 0.1: of the plane between, two corners lie above and two below, each by a quarter.
  EXPECT_NEAR(Warp(Face({{0, 0, 0}, {4, 0, 0}, {4, 4, 0.1}, {0, 4, 0}})), 0.025, 0.0001);
  EXPECT_NEAR(Warp(Face(SLOPE)), 0, 1e-15);
}

TEST(IsPlanar, AllowsTwentyMillimetres) {
  const auto raised = [](double height) { return Face({{0, 0, 0}, {4, 0, 0}, {4, 4, height}, {0, 4, 0}}); };
  EXPECT_TRUE(IsPlanar(raised(4 * 0.0199), TOLERANCE));
  EXPECT_FALSE(IsPlanar(raised(4 * 0.0201), TOLERANCE));
}

TEST(IsPlanar, AllowsLargeFacesAFiveHundredthOfTheirExtent) {
  // 30 x 40, so 50 across and 100 mm.
  const auto raised = [](double height) {
    return Face({{0, 0, 0}, {30, 0, 0}, {30, 40, height}, {0, 40, 0}});
  };
  EXPECT_TRUE(IsPlanar(raised(4 * 0.0999), TOLERANCE));
  EXPECT_FALSE(IsPlanar(raised(4 * 0.1001), TOLERANCE));
}

TEST(Warp, DoesNotSufferFarFromTheOrigin) {
  const double x = 5e8;
  const double y = -4e8;
  EXPECT_LE(Warp(Face({{x, y, 1}, {x + 4, y, 1}, {x + 4, y + 3, 4}, {x, y + 3, 4}})), TOLERANCE);
}

TEST(IsSteep, BeginsAbove85Degrees) {
  const auto rising = [](double degrees) {
    const double depth = 1 / std::tan(degrees / 180 * 3.141592653589793);
    return Face({{0, 0, 0}, {4, 0, 0}, {4, depth, 1}, {0, depth, 1}});
  };
  EXPECT_FALSE(IsSteep(rising(84.9)));
  EXPECT_TRUE(IsSteep(rising(85.1)));
}

TEST(IsNarrow, IsMeasuredAcrossTheLongestEdge) {
  const auto triangle = [](double height) { return Face({{0, 0, 0}, {5, 0, 0}, {1, height, 0}}); };
  EXPECT_TRUE(IsNarrow(triangle(0.049), TOLERANCE));
  EXPECT_FALSE(IsNarrow(triangle(0.051), TOLERANCE));
}

TEST(Area, IsThatOfTheSlopeNotOfThePlan) {
  EXPECT_NEAR(Area(Face(SLOPE)), 4 * std::sqrt(18.0), 1e-12);
}

TEST(LiesOver, EdgesAndCornersBelongToTheFace) {
  EXPECT_TRUE(LiesOver(SLOPE, 0, 1.5));
  EXPECT_TRUE(LiesOver(SLOPE, 4, 3));
  EXPECT_TRUE(LiesOver(SLOPE, 2, 0));
  EXPECT_FALSE(LiesOver(SLOPE, 2, 3.5));
}

TEST(LiesOver, UprightEdgeLiesOverNoOtherPoint) {
  // A wall a millimetre out of plumb, whose second edge stands upright.
  const std::vector<Vec3> wall = {{100, 100, 3}, {104, 100.001, 3}, {104, 100.001, 7}, {100, 100.002, 7}};
  EXPECT_FALSE(LiesOver(wall, 4, 1));
  EXPECT_TRUE(LiesOver(wall, 104, 100.001));
}

TEST(LiesOver, NotchOfAConcaveFaceIsOutside) {
  const std::vector<Vec3> face = {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {2, 1, 0}, {0, 4, 0}};
  EXPECT_FALSE(LiesOver(face, 2, 2));
  EXPECT_TRUE(LiesOver(face, 0.5, 2));
}

}  // namespace
}  // namespace teskarlt
