// ShapesTest.cpp - shapes on paper, and the room that texts take.
#include <gtest/gtest.h>

#include "teskarlt/plot/Shapes.h"

namespace teskarlt::plot {
namespace {

constexpr double ROUNDING = 1e-9;
constexpr PaperPoint SLANTED{0.6, 0.8};

TEST(Shapes, BoxesThatTouchDoNotOverlap) {
  const Quad box = QuadOf({0, 0, 10, 10});
  EXPECT_FALSE(Overlap(box, QuadOf({10, 0, 20, 10})));
  EXPECT_TRUE(Overlap(box, QuadOf({9.9, 0, 20, 10})));
}

TEST(Shapes, TurnedShapeInTheCornerOfABoxAroundItDoesNotOverlap) {
  // The slanted strip runs through the middle of its box, whose corner stays free.
  const Quad strip = StripOf({{0, 0}, {60, 80}}, 2);
  EXPECT_FALSE(Overlap(strip, QuadOf({40, 5, 60, 20})));
  EXPECT_TRUE(Overlap(strip, QuadOf({25, 30, 35, 50})));
}

TEST(Shapes, StripHasTheWidthAskedFor) {
  const PaperBox box = BoxOf(StripOf({{0, 5}, {20, 5}}, 2));
  EXPECT_NEAR(box.top, 4, ROUNDING);
  EXPECT_NEAR(box.bottom, 6, ROUNDING);
  EXPECT_NEAR(box.Width(), 20, ROUNDING);
}

TEST(Shapes, QuadAroundLiesAlongTheDirection) {
  const Quad quad = QuadAround({0, 0}, SLANTED, {10, 0});
  EXPECT_NEAR(quad[1].x, 3, ROUNDING);
  EXPECT_NEAR(quad[1].y, 4, ROUNDING);
}

TEST(Shapes, DirectionOfAPointIsLevel) {
  EXPECT_EQ(DirectionOf({{3, 3}, {3, 3}}).x, 1);
}

TEST(Shapes, WideLettersTakeMoreRoomThanNarrowOnes) {
  EXPECT_GT(TextWidth("WWW", 2), TextWidth("iii", 2) * 2);
  EXPECT_NEAR(TextWidth("12", 4), 2 * TextWidth("12", 2), ROUNDING);
}

TEST(Shapes, LetterOfSeveralBytesCountsOnce) {
  EXPECT_NEAR(TextWidth("é", 1), 0.8, ROUNDING);
}

}  // namespace
}  // namespace teskarlt::plot
