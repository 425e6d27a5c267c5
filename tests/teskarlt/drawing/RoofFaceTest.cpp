// RoofFaceTest.cpp - planar faces: making, measuring and finding them.
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
    EXPECT_NEAR(face.normal.x, 0, 1e-15);
    EXPECT_NEAR(face.normal.y, -half, 1e-15);
    EXPECT_NEAR(face.normal.z, half, 1e-15);
  }
}

TEST(MakeRoofFace, TriangleWithARepeatedCornerHasThreeCorners) {
  EXPECT_EQ(Face({SLOPE[0], SLOPE[1], SLOPE[2], SLOPE[2]}).corners.size(), 3U);
}

TEST(MakeRoofFace, VerticalFaceIsNone) {
  EXPECT_FALSE(MakeRoofFace({{0, 0, 0}, {4, 0, 0}, {4, 0, 3}, {0, 0, 3}}, TOLERANCE));
}

TEST(MakeRoofFace, FaceWithoutAreaIsNone) {
  EXPECT_FALSE(MakeRoofFace({{0, 0, 0}, {4, 0, 0}, {8, 0, 0}}, TOLERANCE));
  EXPECT_FALSE(MakeRoofFace({{1, 1, 1}, {1, 1, 1}, {1, 1, 1}, {1, 1, 1}}, TOLERANCE));
  EXPECT_FALSE(MakeRoofFace({}, TOLERANCE));
}

TEST(Warp, IsThatOfTheFarthestCorner) {
  EXPECT_NEAR(Warp(Face({{0, 0, 0}, {4, 0, 0}, {4, 4, 0.1}, {0, 4, 0}})), 0.05, 0.001);
  EXPECT_NEAR(Warp(Face(SLOPE)), 0, 1e-15);
}

TEST(Warp, DoesNotSufferFarFromTheOrigin) {
  const double x = 5e8;
  const double y = -4e8;
  EXPECT_LE(Warp(Face({{x, y, 1}, {x + 4, y, 1}, {x + 4, y + 3, 4}, {x, y + 3, 4}})), TOLERANCE);
}

TEST(Pitch, IsMeasuredFromTheHorizontal) {
  EXPECT_NEAR(Pitch(Face(SLOPE)), 45, 1e-12);
  EXPECT_EQ(Pitch(Face({{0, 0, 1}, {4, 0, 1}, {4, 3, 1}})), 0);
}

TEST(FallDirection, PointsDownTheSlope) {
  EXPECT_NEAR(*FallDirection(Face(SLOPE)), 270, 1e-12);
  EXPECT_NEAR(*FallDirection(Face({{0, 0, 4}, {4, 0, 1}, {4, 3, 1}, {0, 3, 4}})), 0, 1e-12);
}

TEST(FallDirection, FlatFaceHasNone) {
  EXPECT_FALSE(FallDirection(Face({{0, 0, 1}, {4, 0, 1}, {4, 3, 1}})));
}

TEST(Area, IsThatOfTheSlopeNotOfThePlan) {
  EXPECT_NEAR(Area(Face(SLOPE)), 4 * std::sqrt(18.0), 1e-12);
}

TEST(HeightOver, FollowsTheSlope) {
  EXPECT_NEAR(*HeightOver(Face(SLOPE), 2, 1), 2, 1e-12);
  EXPECT_FALSE(HeightOver(Face(SLOPE), 2, 3.5));
}

TEST(HeightOver, EdgesAndCornersBelongToTheFace) {
  EXPECT_TRUE(HeightOver(Face(SLOPE), 0, 1.5));
  EXPECT_TRUE(HeightOver(Face(SLOPE), 4, 3));
  EXPECT_TRUE(HeightOver(Face(SLOPE), 2, 0));
}

TEST(HeightOver, NotchOfAConcaveFaceIsOutside) {
  const RoofFace face = Face({{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {2, 1, 0}, {0, 4, 0}});
  EXPECT_FALSE(HeightOver(face, 2, 2));
  EXPECT_TRUE(HeightOver(face, 0.5, 2));
}

TEST(UppermostOver, TakesTheHighestOfTheFacesOverThePoint) {
  std::vector<RoofFace> faces = {Face({{0, 0, 1}, {4, 0, 1}, {4, 4, 1}}),
                                 Face({{0, 0, 5}, {4, 0, 5}, {4, 4, 5}}),
                                 Face({{0, 0, 3}, {4, 0, 3}, {4, 4, 3}})};
  EXPECT_EQ(UppermostOver(faces, 3, 1), &faces[1]);
  EXPECT_EQ(UppermostOver(faces, 9, 9), nullptr);
}

TEST(CoplanarWith, FindsTheOtherFacesOfThePlane) {
  const std::vector<RoofFace> faces = {Face({SLOPE[0], SLOPE[1], SLOPE[2]}),
                                       Face({SLOPE[0], SLOPE[2], SLOPE[3]}),
                                       Face({{0, 0, 1}, {4, 0, 1}, {4, 3, 1}})};
  EXPECT_EQ(CoplanarWith(faces[0], faces, TOLERANCE), std::vector<const RoofFace*>{&faces[1]});
}

}  // namespace
}  // namespace teskarlt
