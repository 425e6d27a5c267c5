// RingsAroundTest.cpp - the rings around polygons that touch, overlap or lie apart.
#include <algorithm>

#include <gtest/gtest.h>

#include "teskarlt/drawing/RingsAround.h"

namespace teskarlt {
namespace {

constexpr double GAP = 0.005;

SlopeRing Box(double left, double low, double right, double high) {
  return {{left, low}, {right, low}, {right, high}, {left, high}};
}

SlopeRing Backwards(SlopeRing ring) {
  std::reverse(ring.begin(), ring.end());
  return ring;
}

std::vector<double> Areas(const std::vector<SlopeRing>& rings) {
  std::vector<double> areas;
  areas.reserve(rings.size());
  for (const SlopeRing& ring : rings)
    areas.push_back(SignedArea(ring));
  return areas;
}

TEST(RingsAround, CommonEdgeGoes) {
  const auto rings = RingsAround({Box(0, 0, 2, 3), Box(2, 0, 6, 3)}, GAP);
  ASSERT_EQ(rings.size(), 1U);
  EXPECT_EQ(rings[0].size(), 4U);
  EXPECT_DOUBLE_EQ(SignedArea(rings[0]), 18);
}

TEST(RingsAround, DirectionOfThePolygonsDoesNotMatter) {
  const auto rings = RingsAround({Box(0, 0, 2, 3), Backwards(Box(2, 0, 6, 3))}, GAP);
  ASSERT_EQ(rings.size(), 1U);
  EXPECT_DOUBLE_EQ(SignedArea(rings[0]), 18);
}

TEST(RingsAround, CornerOnAnEdgeCutsIt) {
  const auto rings = RingsAround({Box(0, 0, 6, 2), Box(0, 2, 3, 4), Box(3, 2, 6, 4)}, GAP);
  ASSERT_EQ(rings.size(), 1U);
  EXPECT_EQ(rings[0].size(), 4U);
  EXPECT_DOUBLE_EQ(SignedArea(rings[0]), 24);
}

TEST(RingsAround, OverlapCountsOnce) {
  const auto rings = RingsAround({Box(0, 0, 4, 4), Box(2, 2, 6, 6)}, GAP);
  ASSERT_EQ(rings.size(), 1U);
  EXPECT_EQ(rings[0].size(), 8U);
  EXPECT_DOUBLE_EQ(SignedArea(rings[0]), 16 + 16 - 4);
}

TEST(RingsAround, FaceDrawnTwiceCountsOnce) {
  const auto rings = RingsAround({Box(0, 0, 4, 4), Backwards(Box(0, 0, 4, 4)), Box(1, 1, 2, 2)}, GAP);
  EXPECT_EQ(Areas(rings), std::vector<double>{16});
}

TEST(RingsAround, HoleRunsTheOtherWay) {
  const auto rings = RingsAround({Box(0, 0, 6, 2), Box(0, 4, 6, 6), Box(0, 2, 2, 4), Box(4, 2, 6, 4)}, GAP);
  EXPECT_EQ(Areas(rings), (std::vector<double>{36, -4}));
  EXPECT_DOUBLE_EQ(AreaWithin(rings), 32);
}

TEST(RingsAround, PiecesKeepRingsOfTheirOwnWhereTheyMeetInACorner) {
  EXPECT_EQ(Areas(RingsAround({Box(0, 0, 2, 2), Box(2, 2, 5, 4)}, GAP)), (std::vector<double>{6, 4}));
}

TEST(RingsAround, GapOfFewMillimetresIsClosed) {
  const auto rings = RingsAround({Box(0, 0, 2, 3), Box(2.003, 0.001, 6, 2.999)}, GAP);
  ASSERT_EQ(rings.size(), 1U);
  EXPECT_NEAR(SignedArea(rings[0]), 18, 0.02);
}

TEST(RingsAround, GapAlongALongEdgeIsClosedToo) {
  const auto rings = RingsAround({Box(0, 0, 9, 3), Box(0, 3.004, 3, 5), Box(3, 3.004, 9, 5)}, GAP);
  ASSERT_EQ(rings.size(), 1U);
  EXPECT_NEAR(SignedArea(rings[0]), 45, 0.04);
}

TEST(RingsAround, SliverAloneHasNoRing) {
  EXPECT_TRUE(RingsAround({Box(0, 0, 9, 0.002)}, GAP).empty());
}

// A grid of n by n fields, each as two triangles.
std::vector<SlopeRing> Triangles(int n) {
  std::vector<SlopeRing> triangles;
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      const SlopePoint low{1.0 * i, 1.0 * j};
      const SlopePoint high{i + 1.0, j + 1.0};
      triangles.push_back({low, {high.across, low.up}, high});
      triangles.push_back({low, high, {low.across, high.up}});
    }
  }
  return triangles;
}

TEST(RingsAround, ManyTrianglesHaveOneRing) {
  const auto rings = RingsAround(Triangles(30), GAP);
  ASSERT_EQ(rings.size(), 1U);
  EXPECT_EQ(rings[0].size(), 4U);
  EXPECT_DOUBLE_EQ(SignedArea(rings[0]), 900);
}

}  // namespace
}  // namespace teskarlt
