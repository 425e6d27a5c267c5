// PlanOutlineTest.cpp - hulls in the plan.
#include <gtest/gtest.h>

#include "teskarlt/drawing/PlanOutline.h"

namespace teskarlt {
namespace {

std::string TextOf(const Ring& ring) {
  std::string text;
  for (const geometry::Vec3& corner : ring) {
    text +=
        std::to_string(static_cast<int>(corner.x)) + "," + std::to_string(static_cast<int>(corner.y)) + " ";
  }
  return text;
}

TEST(PlanHull, HasTheOuterPointsCounterClockwise) {
  EXPECT_EQ(TextOf(PlanHull({{5, 5, 1}, {10, 10, 2}, {0, 10, 0}, {10, 0, 0}, {0, 0, 0}, {5, 0, 0}})),
            "0,0 10,0 10,10 0,10 ");
}

TEST(PlanHull, OfALineHasItsEnds) {
  EXPECT_EQ(TextOf(PlanHull({{2, 2, 0}, {1, 1, 0}, {3, 3, 0}})), "1,1 3,3 ");
}

TEST(PlanHull, OfOnePointIsThePoint) {
  EXPECT_EQ(TextOf(PlanHull({{2, 3, 0}})), "2,3 ");
  EXPECT_TRUE(PlanHull({}).empty());
}

TEST(NearestOn, LiesOnAnEdgeOrACornerAtItsHeight) {
  const Ring ring = {{0, 0, 0}, {10, 0, 0}, {10, 10, 5}, {0, 10, 5}};
  const geometry::Vec3 onEdge = NearestOn(ring, {14, 4, 100});
  EXPECT_DOUBLE_EQ(onEdge.x, 10);
  EXPECT_DOUBLE_EQ(onEdge.y, 4);
  EXPECT_DOUBLE_EQ(onEdge.z, 2);  // 4/10 of the way from 0 to 5
  EXPECT_DOUBLE_EQ(NearestOn(ring, {14, 13, 0}).y, 10);
  EXPECT_DOUBLE_EQ(PlanDistance({0, 0, 0}, {3, 4, 12}), 5);
}

TEST(NearestOn, TakesAPointForARingWithoutLength) {
  EXPECT_DOUBLE_EQ(NearestOn({{2, 3, 4}}, {0, 0, 0}).y, 3);
}

}  // namespace
}  // namespace teskarlt
