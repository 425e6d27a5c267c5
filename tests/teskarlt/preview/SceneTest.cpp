// SceneTest.cpp - triangles and dashes.
#include <gtest/gtest.h>

#include "teskarlt/drawing/Rings.h"
#include "teskarlt/preview/Bridges.h"
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

TEST(Triangles, HolesStayOpen) {
  const auto square = [](double low, double high) {
    return Ring{{low, low, 0}, {high, low, 0}, {high, high, 0}, {low, high, 0}};
  };
  const auto turned = [&](double low, double high) {
    return TurnedAgainst(square(0, 10), square(low, high));
  };
  const std::vector<Vec3> shape = LineOverBridges(square(0, 10), {turned(1, 3), turned(4, 6), turned(7, 9)});
  EXPECT_DOUBLE_EQ(PlanArea(shape), 100 - 3 * 4);
  const Indices indices = Triangles(shape);
  for (std::size_t i = 0; i < indices.size(); i += 3) {
    const Ring triangle = {shape[indices[i]], shape[indices[i + 1]], shape[indices[i + 2]]};
    for (const double middle : {2.1, 5.2, 8.3})
      EXPECT_EQ(SideOf(triangle, middle, middle + 0.05), RingSide::Outside) << middle;
  }
}

TEST(LineOverBridges, HoleInAHollowOfTheOutlineIsReachedWithinIt) {
  // A U whose first corner sees nothing of the hole in its right arm.
  const Ring shape = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {8, 10, 0},
                      {8, 2, 0}, {2, 2, 0},  {2, 10, 0},  {0, 10, 0}};
  const Ring hole = {{8.5, 7, 0}, {8.5, 8, 0}, {9.5, 8, 0}, {9.5, 7, 0}};
  const std::vector<Vec3> line = LineOverBridges(shape, {hole});
  EXPECT_EQ(line.size(), 8U + 4 + 2);
  EXPECT_DOUBLE_EQ(PlanArea(line), 10 * 2 + 2 * 8 * 2 - 1);
}

TEST(LineOverBridges, HoleThatLiesOutsideIsLeftOut) {
  const Ring shape = {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}};
  EXPECT_EQ(LineOverBridges(shape, {{{6, 1, 0}, {6, 2, 0}, {7, 2, 0}, {7, 1, 0}}}).size(), 4U);
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
