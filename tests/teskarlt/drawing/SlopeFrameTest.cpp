// SlopeFrameTest.cpp - coordinates along the eaves and up the slope.
#include <cmath>

#include <gtest/gtest.h>

#include "teskarlt/drawing/SlopeFrame.h"

namespace teskarlt {
namespace {

// Falls to the south by 3 m on 4 m: 5 m along the slope.
const Plane SOUTH{{10, 20, 30}, {0, -0.6, 0.8}};

TEST(SlopeFrame, RightIsEastForWhoLooksUpASouthernRoof) {
  const SlopeFrame frame = FrameOf(SOUTH);
  const SlopePoint point = frame.Of({12, 24, 33});
  EXPECT_NEAR(point.across, 2, 1e-12);
  EXPECT_NEAR(point.up, 5, 1e-12);
}

TEST(SlopeFrame, PointComesBackFromItsPlane) {
  for (int degrees = 0; degrees < 360; degrees += 30) {
    const double fall = degrees / 180.0 * 3.141592653589793;
    const SlopeFrame frame = FrameOf({{1, 2, 3}, {0.6 * std::cos(fall), 0.6 * std::sin(fall), 0.8}});
    const SlopePoint back = frame.Of(frame.At({7, -4}));
    EXPECT_NEAR(back.across, 7, 1e-12);
    EXPECT_NEAR(back.up, -4, 1e-12);
    EXPECT_NEAR(frame.At({7, 5}).z, 3 + 0.6 * 5, 1e-12);
  }
}

TEST(SlopeFrame, FlatRoofRunsAlongTheDrawing) {
  const SlopePoint point = FrameOf({{1, 1, 3}, {0, 0, 1}}).Of({4, 6, 3});
  EXPECT_EQ(point.across, 3);
  EXPECT_EQ(point.up, 5);
}

}  // namespace
}  // namespace teskarlt
