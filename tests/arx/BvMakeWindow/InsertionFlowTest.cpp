// InsertionFlowTest.cpp - from a record to a placed window: results, placement, rotation, order of the calls.
#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "tests/support/CountingHeap.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RoundRecord.h"
#include "window/Choices.h"

namespace brevanta {
namespace {

using node_list::Point;

constexpr double PI = 3.141592653589793;

class InsertionFlow : public testing::Test {
 protected:
  void SetUp() override {
    recording_host::Reset();
    maker.hostTable = recording_host::Table();
  }

  std::int32_t Make(std::int32_t unitFactor = 1) { return maker.Make(&record, unitFactor); }

  // The first corner of the first face: where the outer outline starts.
  Point Start() {
    EXPECT_FALSE(recording_host::Faces().empty());
    return recording_host::Faces().empty() ? Point{} : node_list::PointOf(recording_host::Faces()[0], 10);
  }
  void ExpectStart(double x, double y, double z) {
    const Point start = Start();
    EXPECT_NEAR(start[0], x, 1e-9);
    EXPECT_NEAR(start[1], y, 1e-9);
    EXPECT_NEAR(start[2], z, 1e-9);
  }

  WindowParams record = round_record::OnSlope();
  CbvMakeWindow maker;
};

TEST_F(InsertionFlow, ObjectIsMadeWithoutAnyHost) {
  const CbvMakeWindow window;
  EXPECT_EQ(window.hostTable, nullptr);
  EXPECT_EQ(window.resourceModule, nullptr);
  EXPECT_EQ(window.innerOutline.Capacity(), 0);
  EXPECT_EQ(window.outerOutline.GrowStep(), 8);
  EXPECT_EQ(window.roofTransform.entry[0][0], 1);
  EXPECT_EQ(window.roofTransform.entry[0][3], 0);
}

TEST_F(InsertionFlow, BuiltWindowGivesOne) {
  EXPECT_EQ(Make(), 1);
  EXPECT_EQ(recording_host::Faces().size(), 17U);
  EXPECT_EQ(recording_host::Lines().size(), 7U);
}

TEST_F(InsertionFlow, CollinearRoofPointsGiveOneAndBuildNothing) {
  record.roofPlanePoints[1] = {200, 0, 0};
  EXPECT_EQ(Make(), 1);
  EXPECT_TRUE(recording_host::Calls().empty());
}

TEST_F(InsertionFlow, CollinearRoofPointsLeaveTheHeightsAlone) {
  record.roofPlanePoints[1] = {200, 0, 0};
  record.upperEdgeHeight = 77;
  Make();
  EXPECT_EQ(record.upperEdgeHeight, 77);
}

TEST_F(InsertionFlow, CollinearSecondPlaneGivesZero) {
  record.roofBuildUp = BUILD_UP_SECOND_PLANE;
  record.layerThickness = 12;
  EXPECT_EQ(Make(), 0);
  EXPECT_TRUE(recording_host::Calls().empty());
}

TEST_F(InsertionFlow, SecondPlaneIsNotFittedWithoutALayer) {
  record.roofBuildUp = BUILD_UP_SECOND_PLANE;
  record.layerThickness = 0;
  EXPECT_EQ(Make(), 1);
  EXPECT_EQ(recording_host::Faces().size(), 17U);
}

TEST_F(InsertionFlow, SecondPlaneIsNotFittedInOtherBuildUps) {
  record.layerThickness = 12;
  for (const std::int32_t buildUp : {BUILD_UP_PLAIN, BUILD_UP_SLOPE_OFFSET}) {
    record.roofBuildUp = buildUp;
    EXPECT_EQ(Make(), 1);
  }
}

TEST_F(InsertionFlow, SecondPlaneTakesTheRoofsPlace) {
  record.roofBuildUp = BUILD_UP_SECOND_PLANE;
  record.layerThickness = 12;
  record.heightReference = 1;
  record.secondPlanePoints[0] = {100, 0, 500};  // flat, 500 up, its frame's origin at (30, 40)
  record.secondPlanePoints[1] = {0, 100, 500};
  record.secondPlanePoints[2] = {30, 40, 500};
  EXPECT_EQ(Make(), 1);
  ExpectStart(30, 40, 512);
}

TEST_F(InsertionFlow, VerticalRoofGivesZero) {
  record.roofPlanePoints[1] = {0, 0, 100};
  EXPECT_EQ(Make(), 0);
  EXPECT_TRUE(recording_host::Calls().empty());
}

TEST_F(InsertionFlow, NearlyVerticalRoofIsBuilt) {
  record.roofPlanePoints[1] = {0, 1, 1000};  // normal's z about 0.001
  EXPECT_EQ(Make(), 1);
  EXPECT_EQ(recording_host::Faces().size(), 17U);
}

TEST_F(InsertionFlow, WindowIsDroppedVerticallyOntoTheRoof) {
  record.insertionPoint = {30, 40, 999};
  Make();
  ExpectStart(30, 40, 30);
}

TEST_F(InsertionFlow, WindowStartsInTheRoofsLocalFrame) {
  // The same roof with its third point at (1000, 2000): the insertion point is counted from there.
  record.roofPlanePoints[0] = {1100, 2000, 50};
  record.roofPlanePoints[1] = {1000, 2100, 125};
  record.roofPlanePoints[2] = {1000, 2000, 50};
  record.insertionPoint = {30, 40, 0};
  Make();
  ExpectStart(1030, 2040, 80);
}

TEST_F(InsertionFlow, PlacingByHeightSlidesUpTheSlope) {
  record.insertionPoint = {30, 40, 0};
  record.placeByHeight = 1;
  record.lowerEdgeHeight = 90;
  Make();
  ExpectStart(30, 120, 90);
}

TEST_F(InsertionFlow, PlacingByHeightSlidesDownTheSlope) {
  record.insertionPoint = {30, 40, 0};
  record.placeByHeight = 1;
  record.lowerEdgeHeight = -15;
  Make();
  ExpectStart(30, -20, -15);
}

TEST_F(InsertionFlow, OnlyOneMeansPlacingByHeight) {
  record.insertionPoint = {30, 40, 0};
  record.lowerEdgeHeight = 90;
  for (const std::int32_t placeByHeight : {0, 2, -1}) {
    recording_host::Reset();
    record.placeByHeight = placeByHeight;
    Make();
    ExpectStart(30, 40, 30);
  }
}

TEST_F(InsertionFlow, FlatRoofIsNotPlacedByHeight) {
  record.roofPlanePoints[0] = {100, 0, 25};
  record.roofPlanePoints[1] = {0, 100, 25};
  record.roofPlanePoints[2] = {0, 0, 25};
  record.insertionPoint = {30, 40, 0};
  record.placeByHeight = 1;
  record.lowerEdgeHeight = 90;
  EXPECT_EQ(Make(), 1);
  ExpectStart(30, 40, 25);
}

TEST_F(InsertionFlow, WindowOnAFlatRoofRunsAlongPlusY) {
  record.roofPlanePoints[1] = {0, 100, 0};
  Make();
  const Point top = node_list::PointOf(recording_host::Faces()[0], 11);
  EXPECT_NEAR(top[1], 200, 1e-9);
  EXPECT_NEAR(top[2], 0, 1e-9);
}

// A roof that falls towards +y by less than the tolerance counts as flat and is not turned, but its slope
// sign is -1.
TEST_F(InsertionFlow, WindowOnANearlyFlatRoofRunsUpItsSlope) {
  record.roofPlanePoints[1] = {0, 100, -0.005};
  record.placeByHeight = 1;  // too flat for it
  record.lowerEdgeHeight = 90;
  Make();
  const Point top = node_list::PointOf(recording_host::Faces()[0], 11);
  EXPECT_NEAR(top[1], -200, 1e-6);
  EXPECT_NEAR(top[2], 0.01, 1e-9);
  EXPECT_EQ(record.rotation, 0);
}

TEST_F(InsertionFlow, PickOffsetMovesTheInsertionPointInTheDirectionOfRotation) {
  record.insertionPoint = {30, 40, 5};
  record.pickOffset = 2;
  record.rotation = PI / 2;
  Make(10);
  EXPECT_NEAR(record.insertionPoint.x, 30, 1e-9);
  EXPECT_NEAR(record.insertionPoint.y, 60, 1e-9);
  EXPECT_EQ(record.insertionPoint.z, 5);
  ExpectStart(30, 60, 45);
}

TEST_F(InsertionFlow, PickOffsetZeroLeavesTheInsertionPoint) {
  record.insertionPoint = {30, 40, 5};
  record.rotation = 1.25;
  Make();
  EXPECT_EQ(record.insertionPoint.x, 30);
  EXPECT_EQ(record.insertionPoint.y, 40);
  EXPECT_EQ(record.rotation, 0);
}

TEST_F(InsertionFlow, PickOffsetMovesThePointEvenWhenNothingIsBuilt) {
  record.roofPlanePoints[1] = {200, 0, 0};
  record.pickOffset = 2;
  Make();
  EXPECT_EQ(record.insertionPoint.x, 2);
}

TEST_F(InsertionFlow, HeightsAreWrittenBack) {
  record.lowerEdgeHeight = 10;
  Make(3);
  EXPECT_NEAR(record.upperEdgeHeight, 3 * (10 + 120), 1e-9);
  EXPECT_EQ(record.lowerEdgeHeight, 10);
}

TEST_F(InsertionFlow, LengthsTakeTheCommandsUnitFactorAndTheGlassTheRecords) {
  record.unitFactor = 50;  // glass 1 below the top
  Make(2);
  const Point foot = node_list::PointOf(recording_host::Faces()[8], 10);
  const Point glass = node_list::PointOf(recording_host::Faces()[16], 10);
  // Inner corner 20 up and 20 across; lifted by 10 - 1 along the normal.
  EXPECT_NEAR(glass[0] - foot[0], 20, 1e-9);
  EXPECT_NEAR(glass[1] - foot[1], 16 - 9 * 0.6, 1e-9);
  EXPECT_NEAR(glass[2] - foot[2], 12 + 9 * 0.8, 1e-9);
}

// A roof of 3 in 4 that rises towards the angle (radians, from +x): the window's x axis points a right angle
// clockwise from there.
double RotationOfRoofRisingTowards(double angle) {
  WindowParams record = round_record::OnSlope();
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  record.roofPlanePoints[0] = {100 * c, 100 * s, 75};
  record.roofPlanePoints[1] = {100 * s, -100 * c, 0};
  record.rotation = 9;
  static CbvMakeWindow maker;  // one for all: making one looks for its resource module
  maker.Make(&record, 1);
  return record.rotation;
}

TEST(WindowRotation, FollowsTheRoofsDirectionFromZeroToATurn) {
  EXPECT_NEAR(RotationOfRoofRisingTowards(PI / 2), 0, 1e-12);
  EXPECT_NEAR(RotationOfRoofRisingTowards(PI), PI / 2, 1e-12);
  EXPECT_NEAR(RotationOfRoofRisingTowards(3 * PI / 2), PI, 1e-12);
  EXPECT_NEAR(RotationOfRoofRisingTowards(0), 3 * PI / 2, 1e-12);
}

TEST(WindowRotation, EveryDegreeLiesFromZeroUpToButNotATurn) {
  for (int degree = 0; degree < 360; ++degree) {
    const double rotation = RotationOfRoofRisingTowards(degree * PI / 180);
    EXPECT_GE(rotation, 0.0);
    EXPECT_LT(rotation, 6.283185307179586);
    const double error = std::remainder(rotation - (degree - 90) * PI / 180, 2 * PI);
    EXPECT_NEAR(error, 0, 1e-12) << degree;
  }
}

TEST_F(InsertionFlow, RotationIsStoredWithEveryEntity) {
  record.roofPlanePoints[0] = {100, 0, 75};  // rises towards +x
  record.roofPlanePoints[1] = {0, 100, 0};
  Make();
  EXPECT_NEAR(std::get<double>(recording_host::Faces()[0][9 + 20].value), 3 * PI / 2, 1e-12);
  EXPECT_NEAR(std::get<double>(recording_host::Lines()[6][6 + 20].value), 3 * PI / 2, 1e-12);
}

TEST_F(InsertionFlow, EntitiesStandBetweenTheBatchCalls) {
  Make();
  const auto& calls = recording_host::Calls();
  ASSERT_EQ(calls.size(), 1U + 17 + 7 + 1);
  EXPECT_EQ(calls.front(), "begin");
  EXPECT_EQ(calls.back(), "end 1");
  EXPECT_EQ(std::count(calls.begin(), calls.begin() + 18, "3DFACE"), 17);
  EXPECT_EQ(std::count(calls.begin() + 18, calls.end(), "LINE"), 7);
}

TEST_F(InsertionFlow, WithoutAHostItRunsToItsEnd) {
  maker.hostTable = nullptr;
  EXPECT_EQ(Make(), 1);
  EXPECT_EQ(maker.outerOutline.Length(), 6);
}

TEST_F(InsertionFlow, DirectionMinusOneRunsTheWidthTheOtherWay) {
  Make();  // fits the roof
  recording_host::Reset();
  maker.BuildWindow({0, 0, 0}, {0, 0, 0}, round_record::SLOPE, 1, -1);
  const auto outline = node_list::PointsOf(recording_host::Faces()[8]);
  EXPECT_NEAR(outline[0][0], 0, 1e-9);
  EXPECT_NEAR(node_list::PointOf(recording_host::Faces()[10], 11)[0], -100, 1e-9);
}

TEST_F(InsertionFlow, BlocksAreAllReleased) {
  const std::size_t before = counting_heap::LiveBlocks();
  {
    WindowParams other = round_record::OnSlope();
    other.drawOpeningSymbol = 1;
    CbvMakeWindow window;
    window.hostTable = recording_host::Table();
    window.Make(&other, 1);
  }
  EXPECT_EQ(counting_heap::LiveBlocks(), before);
}

}  // namespace
}  // namespace brevanta
