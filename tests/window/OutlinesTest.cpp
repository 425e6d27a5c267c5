// OutlinesTest.cpp - outlines from the anchor, the anchor back from an outline, and the frame in the drawing.
//
// All on the slope of 3 in 4: a length d along it is (0, 0.8 d, 0.6 d), a length d normal to it (0, -0.6 d,
// 0.8 d). The window is 100 x 200 with a frame of 10.
#include <cmath>
#include <cstdint>
#include <tuple>

#include <gtest/gtest.h>

#include "geometry/Vectors.h"
#include "inc/RecordPoints.h"
#include "tests/geometry/KernelTesting.h"
#include "tests/support/RoundRecord.h"
#include "window/Choices.h"
#include "window/Outlines.h"
#include "window/SecondPlane.h"

namespace brevanta {
namespace {

using geometry::IsNear;
using geometry::Vec3;
using round_record::SLOPE;

constexpr double EXACT = 1e-9;

TEST(Outlines, FrameRunsFromItsStartUpAcrossAndDown) {
  const Outline frame = OutlinesAt({0, 0, 0}, round_record::OnSlope(), 1, {SLOPE}).outer;
  EXPECT_THAT(frame[0], IsNear((Vec3{0, 0, 0}), EXACT));
  EXPECT_THAT(frame[1], IsNear((Vec3{0, 160, 120}), EXACT));
  EXPECT_THAT(frame[2], IsNear((Vec3{100, 160, 120}), EXACT));
  EXPECT_THAT(frame[3], IsNear((Vec3{100, 0, 0}), EXACT));
}

TEST(Outlines, LengthsOfTheRecordTakeTheUnitFactor) {
  const Outline frame = OutlinesAt({5, 0, 0}, round_record::OnSlope(), 1000, {SLOPE}).outer;
  EXPECT_THAT(frame[2], IsNear((Vec3{100005, 160000, 120000}), 1e-6));
}

TEST(Outlines, LayerLengthensTheOpeningAtItsPlumbAndItsLevelReveal) {
  // A layer of 12 on the slope of 3 in 4: 12 * 0.75 below, 12 / 0.75 above.
  WindowParams params = round_record::OnSlope();
  constexpr double LOWER[] = {0, 9, 0, 9, 0};
  constexpr double UPPER[] = {0, 16, 16, 0, 0};
  for (params.heightReference = 0; params.heightReference < 5; ++params.heightReference) {
    const RevealLengths lengths = RevealLengthsOf(params, 12, 0.75);
    EXPECT_EQ(lengths.lower, LOWER[params.heightReference]) << params.heightReference;
    EXPECT_EQ(lengths.upper, UPPER[params.heightReference]) << params.heightReference;
  }
}

TEST(Outlines, InsertionPointIsMovedInTheDirectionOfItsRotation) {
  WindowParams params = round_record::OnSlope();
  params.insertionPoint = {1, 2, 3};
  params.pickOffset = 5;
  params.rotation = std::acos(0.6);
  EXPECT_THAT(MovedInsertionPoint(params, 10), IsNear((Vec3{31, 42, 3}), EXACT));  // 50 along (0.6, 0.8)
}

TEST(Outlines, FrameInTheDrawingStartsAtTheStoredPoint) {
  WindowParams params = round_record::OnSlope();
  params.storedPoint = {300, 80, 60};
  const Outline frame = DrawnFrame(params);
  EXPECT_THAT(frame[0], IsNear((Vec3{300, 80, 60}), EXACT));
  EXPECT_THAT(frame[2], IsNear((Vec3{400, 240, 180}), EXACT));
}

TEST(Outlines, PlacingPlaneIsTheSecondOneOnlyWhereItIsUsed) {
  WindowParams params = round_record::OnSlope();
  for (int i = 0; i < 3; ++i)
    params.secondPlanePoints[i] = {params.roofPlanePoints[i].x, params.roofPlanePoints[i].y, 7};
  EXPECT_NEAR(SlopeAngle(PlacingPlane(params).value()), SLOPE, EXACT);
  params.roofBuildUp = BUILD_UP_SECOND_PLANE;
  params.layerThickness = 1;
  EXPECT_EQ(SlopeAngle(PlacingPlane(params).value()), 0.0);
  params.secondPlanePoints[1] = params.secondPlanePoints[0];
  EXPECT_FALSE(PlacingPlane(params));
}

// Every way to place a window: anchor, roof's construction and reveals.
class Placed : public testing::TestWithParam<std::tuple<std::int32_t, std::int32_t, std::int32_t>> {};

TEST_P(Placed, AnchorFollowsFromTheFrameAgain) {
  WindowParams params = round_record::OnSlope();
  std::tie(params.widthAnchor, params.roofBuildUp, params.heightReference) = GetParam();
  params.layerThickness = 12;
  const Vec3 anchor{70, 8, 6};
  const Outline frame = OutlinesAt(anchor, params, params.unitFactor, {SLOPE}).outer;
  const Vec3 onEdge = Between(frame[0], frame[3], HalvesBeforeAnchor(params) / 2.0);
  EXPECT_THAT(OnPlacingPlane(onEdge, {0, -0.6, 0.8}, SLOPE, params), IsNear(anchor, EXACT));
}

INSTANTIATE_TEST_SUITE_P(All, Placed,
                         testing::Combine(testing::Values(ANCHOR_CENTRE, ANCHOR_START, ANCHOR_END),
                                          testing::Values(BUILD_UP_SECOND_PLANE, BUILD_UP_PLAIN),
                                          testing::Range(0, 5)));

}  // namespace
}  // namespace brevanta
