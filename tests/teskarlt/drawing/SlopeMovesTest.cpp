// SlopeMovesTest.cpp - frames that are moved clear of what lies on a roof.
#include <gtest/gtest.h>

#include "teskarlt/drawing/SlopeMoves.h"

namespace teskarlt {
namespace {

constexpr SlopeBox FRAME{2, 4, 1, 3};
const SlopeRing SQUARE = {{3, 2}, {5, 2}, {5, 4}, {3, 4}};  // covers a quarter of the frame

SlopeRing Shifted(const SlopeRing& ring, double across, double up) {
  SlopeRing shifted;
  for (const SlopePoint& corner : ring)
    shifted.push_back({corner.across + across, corner.up + up});
  return shifted;
}

TEST(ReachesInto, WhatTouchesTheFrameDoesNot) {
  EXPECT_TRUE(ReachesInto(SQUARE, FRAME));
  EXPECT_FALSE(ReachesInto(Shifted(SQUARE, 1, 0), FRAME));
  EXPECT_FALSE(ReachesInto(Shifted(SQUARE, 0, 1), FRAME));
}

TEST(ReachesInto, RingAroundTheWholeFrameAndRingWithinItDo) {
  EXPECT_TRUE(ReachesInto({{0, 0}, {9, 0}, {9, 9}, {0, 9}}, FRAME));
  EXPECT_TRUE(ReachesInto({{2.5, 1.5}, {3.5, 1.5}, {3.5, 2.5}}, FRAME));
}

TEST(ReachesInto, LineOfAWallDoesWhereItCrosses) {
  EXPECT_TRUE(ReachesInto({{0, 2}, {9, 2}}, FRAME));
  EXPECT_FALSE(ReachesInto({{0, 3}, {9, 3}}, FRAME));
  EXPECT_FALSE(ReachesInto({{0, 5}, {9, 5}}, FRAME));
}

TEST(ReachesInto, RingThatRunsAroundTheFrameOnThreeSidesDoesNot) {
  const SlopeRing u = {{0, 0}, {6, 0}, {6, 5}, {5, 5}, {5, 0.5}, {1, 0.5}, {1, 5}, {0, 5}};
  EXPECT_FALSE(ReachesInto(u, FRAME));
}

TEST(DistanceBetween, IsTheShortestToARing) {
  EXPECT_EQ(DistanceBetween(Shifted(SQUARE, 2, 0), FRAME), 1);
  EXPECT_EQ(DistanceBetween(Shifted(SQUARE, 4, 5), FRAME), 5);  // 3 beside it and 4 above it
  EXPECT_EQ(DistanceBetween(SQUARE, FRAME), 0);
  EXPECT_EQ(DistanceBetween({5, 0}, {5, 9}, FRAME), 1);
  EXPECT_EQ(DistanceBetween({0, 2}, {9, 2}, FRAME), 0);
}

TEST(WaysClearOf, AreTheFourWaysTheShortestFirst) {
  // The frame leaves the square by 1 to the left or downwards, by 3 to the right or upwards.
  const std::vector<SlopePoint> ways = WaysClearOf({SQUARE}, FRAME);
  ASSERT_EQ(ways.size(), 4U);
  EXPECT_EQ(ways[0].across, -1);
  EXPECT_EQ(ways[1].up, -1);
  EXPECT_EQ(ways[2].across, 3);
  EXPECT_EQ(ways[3].up, 3);
}

TEST(WaysClearOf, GoOnOverWhatLeavesNoRoomForTheFrame) {
  // To the left, another one begins 1.5 from the square: the frame, 2 wide, goes beyond it.
  const std::vector<SlopePoint> ways = WaysClearOf({SQUARE, Shifted(SQUARE, -3.5, 0)}, FRAME);
  EXPECT_EQ(ways[0].up, -1);
  EXPECT_EQ(ways[1].across, 3);
  EXPECT_EQ(ways[2].up, 3);
  EXPECT_EQ(ways[3].across, -4.5);
}

TEST(WaysClearOf, UseAGapThatIsWideEnough) {
  const std::vector<SlopePoint> ways = WaysClearOf({SQUARE, Shifted(SQUARE, -4, 0)}, FRAME);
  EXPECT_EQ(ways[0].across, -1);
}

}  // namespace
}  // namespace teskarlt
