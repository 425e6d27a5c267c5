// SceneTest.cpp - triangles and dashes.
#include <gtest/gtest.h>

#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {
namespace {

using Indices = std::vector<std::size_t>;

double PlanArea(const std::vector<Vec3>& corners) {
  double area = 0;
  const Indices indices = Triangles(corners);
  for (std::size_t i = 0; i < indices.size(); i += 3) {
    const Vec3& a = corners[indices[i]];
    const Vec3& b = corners[indices[i + 1]];
    const Vec3& c = corners[indices[i + 2]];
    area += ((b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x)) / 2;
  }
  return area;
}

TEST(Triangles, SquareIsTwo) {
  EXPECT_EQ(Triangles({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}).size(), 6U);
}

TEST(Triangles, CornersInALineMakeNone) {
  EXPECT_EQ(Triangles({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}), Indices());
  EXPECT_EQ(Triangles({{0, 0, 0}, {1, 0, 0}}), Indices());
}

TEST(Triangles, RepeatedCornerOfATriangleIsPassedOver) {
  EXPECT_EQ(Triangles({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 1, 0}}).size(), 3U);
}

TEST(Triangles, HollowPolygonKeepsItsArea) {
  // An L of three unit squares, turning clockwise and counter-clockwise.
  std::vector<Vec3> shape = {{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {1, 1, 0}, {1, 2, 0}, {0, 2, 0}};
  EXPECT_DOUBLE_EQ(PlanArea(shape), 3);
  std::reverse(shape.begin(), shape.end());
  EXPECT_DOUBLE_EQ(PlanArea(shape), -3);
}

TEST(Dashes, UnbrokenLineStaysWhole) {
  EXPECT_EQ(Dashes({{0, 0, 0}, {5, 0, 0}}, {}).size(), 1U);
}

TEST(Dashes, DashAndGapAlternate) {
  const auto dashes = Dashes({{0, 0, 0}, {7, 0, 0}}, {2, 1});
  ASSERT_EQ(dashes.size(), 3U);
  EXPECT_DOUBLE_EQ(dashes[1].front().x, 3);
  EXPECT_DOUBLE_EQ(dashes[1].back().x, 5);
  EXPECT_DOUBLE_EQ(dashes[2].back().x, 7);
}

TEST(Dashes, DashGoesAroundACorner) {
  const auto dashes = Dashes({{0, 0, 0}, {1, 0, 0}, {1, 5, 0}}, {2, 9});
  ASSERT_EQ(dashes.size(), 1U);
  ASSERT_EQ(dashes[0].size(), 3U);
  EXPECT_DOUBLE_EQ(dashes[0][2].y, 1);
}

TEST(Dashes, OffsetIsUsedUp) {
  const auto dashes = Dashes({{0, 0, 0}, {4, 0, 0}}, {2, 1}, 5.5);  // half a unit of the gap is left
  ASSERT_EQ(dashes.size(), 2U);
  EXPECT_DOUBLE_EQ(dashes[0].front().x, 0.5);
  EXPECT_DOUBLE_EQ(dashes[1].front().x, 3.5);
}

TEST(Dashes, TooManyAreNotCut) {
  EXPECT_EQ(Dashes({{0, 0, 0}, {1e6, 0, 0}}, {2, 1}).size(), 1U);
}

TEST(ReadablePattern, FineOneIsMadeLongerAsAWhole) {
  EXPECT_EQ(ReadablePattern({2, 1}, 6), (DashPattern{4, 2}));
}

TEST(ReadablePattern, CoarseOneStays) {
  EXPECT_EQ(ReadablePattern({20, 10}, 6), (DashPattern{20, 10}));
}

TEST(ReadablePattern, DotIsAShortDash) {
  EXPECT_EQ(ReadablePattern({0, 10}, 6), (DashPattern{1, 10}));
}

TEST(ReadablePattern, OneWithoutLengthIsUnbroken) {
  EXPECT_TRUE(ReadablePattern({0, 0}, 6).empty());
  EXPECT_TRUE(ReadablePattern({}, 6).empty());
}

}  // namespace
}  // namespace teskarlt::preview
