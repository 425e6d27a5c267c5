// SlopeReachTest.cpp - how far a roof reaches, and which of its edges a frame passes.
#include <gtest/gtest.h>

#include "teskarlt/drawing/SlopeReach.h"

namespace teskarlt {
namespace {

// The slope of a roof that rises from 2.5 m by 0.6 m a metre, in metres.
SurfaceOutline RoofOf(const SlopeRing& ring) {
  return {FrameOf({{0, 0, 2.5}, {0, -0.6, 0.8}}), {ring}};
}

const SurfaceOutline RECTANGLE = RoofOf({{0, 0}, {8, 0}, {8, 5}, {0, 5}});
const SurfaceOutline HIP = RoofOf({{0, 0}, {8, 0}, {4, 5}, {0, 5}});

std::string Passed(const SurfaceOutline& roof, double left, double bottom, double width = 1.0,
                   double length = 1.5) {
  const auto at = [&](double across, double up) { return roof.frame.At({across, up}); };
  return PassedEdges({at(left, bottom), at(left, bottom + length), at(left + width, bottom + length),
                      at(left + width, bottom)},
                     roof, {1.0});
}

TEST(ReachAcross, OfAHipIsTheNarrowest) {
  const SlopeReach reach = ReachAcross(HIP.rings, 1, 2.5);
  ASSERT_TRUE(reach);
  EXPECT_NEAR(reach->first, 0, 1e-9);
  EXPECT_NEAR(reach->second, 8 - 0.8 * 2.5, 1e-5);
  EXPECT_FALSE(ReachAcross(HIP.rings, 4, 6));
}

TEST(ReachUp, IsMeasuredBetweenTwoPlacesOfTheEaves) {
  const SlopeReach reach = ReachUp(HIP.rings, 5, 6);
  ASSERT_TRUE(reach);
  EXPECT_NEAR(reach->first, 0, 1e-9);
  EXPECT_NEAR(reach->second, 2.5, 1e-5);
}

TEST(PassedEdges, RidgeIsToldWithTheHighestLowerEdge) {
  // The upper edge lies at 5.12 m up the slope; the lower one may lie at 3.5, which is 2.5 + 0.6 x 3.5 high.
  EXPECT_EQ(Passed(RECTANGLE, 3, 3.62), "passes the ridge by 0.120 m; the highest lower edge is 4.600 m");
}

TEST(PassedEdges, EavesAreToldWithTheLowestLowerEdge) {
  EXPECT_EQ(Passed(RECTANGLE, 3, -0.2), "passes the eaves by 0.200 m; the lowest lower edge is 2.500 m");
}

TEST(PassedEdges, VergesAreThoseSeenFromBelow) {
  EXPECT_EQ(Passed(RECTANGLE, -0.25, 1), "passes the left verge by 0.250 m");
  EXPECT_EQ(Passed(RECTANGLE, 7.5, 1), "passes the right verge by 0.500 m");
}

TEST(PassedEdges, CornerOfTheRoofIsTwoEdges) {
  EXPECT_EQ(Passed(RECTANGLE, 7.5, 4),
            "passes the right verge by 0.500 m and the ridge by 0.500 m; the highest lower edge is 4.600 m");
}

TEST(PassedEdges, OfAHipTheShorterWayIsTold) {
  // At the frame's top, 2.5 m up, the hip lies at 6 m; the frame ends at 6.2 m.
  EXPECT_EQ(Passed(HIP, 5.2, 1), "passes the right hip by 0.200 m");
}

TEST(PassedEdges, RoofThatGetsWiderUpwardsHasAValley) {
  // At the frame's lower edge, 1 m up, the valley lies at 6 m; the frame ends at 6.3 m.
  const SurfaceOutline roof = RoofOf({{0, 0}, {5, 0}, {10, 5}, {0, 5}});
  EXPECT_EQ(Passed(roof, 5.3, 1), "passes the right valley by 0.300 m");
}

TEST(EdgesWithin, SayHowFarTheEdgesAre) {
  const auto within = [](double left, double bottom) {
    const auto at = [&](double across, double up) {
      return RECTANGLE.frame.At({left + across, bottom + up});
    };
    return EdgesWithin(0.2, {at(0, 0), at(0, 1.5), at(1, 1.5), at(1, 0)}, RECTANGLE, {1.0});
  };
  EXPECT_EQ(within(0.15, 1), "the left verge, 0.150 m away");
  EXPECT_EQ(within(6.9, 3.4), "the ridge, 0.100 m away and the right verge, 0.100 m away");
  EXPECT_EQ(within(0.2, 1), "");
}

TEST(EdgesWithin, DistanceToAHipIsSquareToItWhateverTheClearanceIs) {
  // The hip runs from (8, 0) to (4, 5). The frame's upper right corner, (5, 2.5), is 1 left of it along the
  // eaves, and 1 x 5 / sqrt(41) square to it.
  const auto within = [](double clearance) {
    const auto at = [&](double across, double up) { return HIP.frame.At({across, up}); };
    return EdgesWithin(clearance, {at(4, 1.5), at(4, 2.5), at(5, 2.5), at(5, 1.5)}, HIP, {1.0});
  };
  EXPECT_EQ(within(0.7), "");
  EXPECT_EQ(within(0.8), "the right hip, 0.781 m away");
  EXPECT_EQ(within(1.4), "the right hip, 0.781 m away");
}

TEST(PassedEdges, InsideAndTooLongForTheRoofNothingIsPassed) {
  EXPECT_EQ(Passed(RECTANGLE, 3, 1), "");
  EXPECT_EQ(Passed(RECTANGLE, 3, 1, 1, 6), "");
}

}  // namespace
}  // namespace teskarlt
