// RingsTest.cpp - closed lines within one another.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "geometry/PlanCover.h"
#include "teskarlt/drawing/Rings.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Ring Square(double low, double high) {
  return {{low, low, 0}, {high, low, 0}, {high, high, 0}, {low, high, 0}};
}

// A U, open above between x 2 and 4.
const Ring NOTCHED = {{0, 0, 0}, {6, 0, 0}, {6, 6, 0}, {4, 6, 0}, {4, 2, 0}, {2, 2, 0}, {2, 6, 0}, {0, 6, 0}};

RingNest Nest(const std::vector<Ring>& rings) {
  return NestOf(rings, [](std::size_t, std::size_t) { return true; });
}

TEST(SideOf, EdgesAreNeitherInsideNorOutside) {
  EXPECT_EQ(SideOf(NOTCHED, 1, 5), RingSide::Inside);
  EXPECT_EQ(SideOf(NOTCHED, 3, 5), RingSide::Outside);
  EXPECT_EQ(SideOf(NOTCHED, 2, 5), RingSide::OnEdge);
}

TEST(PointWithin, LiesInsideWhateverTheShape) {
  for (const Ring& ring : {NOTCHED, Square(1, 2), Ring{{0, 0, 0}, {9, 0.1, 0}, {0, 0.2, 0}}}) {
    const geometry::Vec3 within = PointWithin(ring);
    EXPECT_EQ(SideOf(ring, within.x, within.y), RingSide::Inside);
  }
}

TEST(Holds, InnerRingMayTouchTheOuterOne) {
  EXPECT_TRUE(Holds(Square(0, 6), Square(1, 2)));
  EXPECT_TRUE(Holds(Square(0, 6), Square(0, 2)));
}

TEST(Holds, RingThatCrossesOrLeavesIsNotHeld) {
  EXPECT_FALSE(Holds(Square(0, 6), Square(5, 7)));
  EXPECT_FALSE(Holds(NOTCHED, {{2, 2, 0}, {4, 2, 0}, {4, 6, 0}, {2, 6, 0}}));  // fills the notch
  EXPECT_FALSE(Holds(NOTCHED, {{1, 4, 0}, {5, 4, 0}, {5, 5, 0}, {1, 5, 0}}));  // bridges it
}

TEST(Holds, RingDoesNotHoldItself) {
  EXPECT_FALSE(Holds(Square(0, 6), Square(0, 6)));
}

TEST(NestOf, DepthsTellHowManyHoldARing) {
  const RingNest nest = Nest({Square(2, 7), Square(1, 8), Square(3, 6), Square(20, 30)});
  EXPECT_THAT(nest.depths, ElementsAre(1, 0, 2, 0));
  EXPECT_THAT(nest.holes, ElementsAre(ElementsAre(2), ElementsAre(0), IsEmpty(), IsEmpty()));
}

TEST(NestOf, EverythingDrawnTwiceNestsAsOnce) {
  const RingNest nest = Nest({Square(1, 8), Square(1, 8), Square(2, 7), Square(2, 7)});
  EXPECT_THAT(nest.depths, ElementsAre(0, 0, 1, 1));
  EXPECT_THAT(nest.holes, ElementsAre(ElementsAre(2), ElementsAre(2), IsEmpty(), IsEmpty()));
}

TEST(NestOf, RingsThatDoNotBelongTogetherDoNotNest) {
  const RingNest nest = NestOf({Square(1, 8), Square(2, 7)}, [](std::size_t, std::size_t) { return false; });
  EXPECT_THAT(nest.depths, ElementsAre(0, 0));
}

TEST(NestOf, RingWithoutAreaHoldsNothing) {
  EXPECT_THAT(Nest({{{0, 0, 0}, {9, 9, 0}, {4, 4, 0}}, Square(1, 2)}).depths, ElementsAre(0, 0));
}

TEST(LineAround, CoversWhatLiesBetweenTheRings) {
  const Ring hole = TurnedAgainst(Square(0, 6), Square(1, 3));
  EXPECT_EQ(hole[0].y, 3);  // turned round
  const Ring line = LineAround(Square(0, 6), {hole, TurnedAgainst(Square(0, 6), Square(4, 5))});
  EXPECT_NEAR(geometry::CoveredArea(Square(0, 6), {line}), 36 - 4 - 1, 1e-12);
}

}  // namespace
}  // namespace teskarlt
