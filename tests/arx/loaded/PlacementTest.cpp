// PlacementTest.cpp - where the built module puts windows: anchors, height references, build-ups, roofs.
#include <ostream>
#include <utility>

#include "tests/arx/loaded/StandAloneHost.h"

namespace {

using window_of_three::Point;

class OutsidePlacement : public StandAloneHost {
 protected:
  // An end of a line of the plan outline (7 lines without the symbol) or a corner of the foot ring.
  static Point LineStart(std::size_t line) {
    return node_list::PointOf(recording_host::Lines().at(line), 10);
  }
  static Point OuterFoot(std::size_t corner) {
    return node_list::PointOf(recording_host::Faces().at(8 + corner), 10);
  }
  static Point InnerFoot(std::size_t corner) {
    return node_list::PointOf(recording_host::Faces().at(8 + corner), 13);
  }

  static void ExpectPoint(const Point& actual, const Point& expected) {
    for (std::size_t axis = 0; axis < 3; ++axis)
      EXPECT_NEAR(actual[axis], expected[axis], 1e-9) << "axis " << axis;
  }
};

TEST_F(OutsidePlacement, CentredAnchor) {
  record().widthAnchor = 0;
  Insert();
  ExpectPoint(OuterFoot(0), {1000, 2050, 0});
  ExpectPoint(OuterFoot(3), {1000, 1950, 0});
  ExpectPoint(InnerFoot(0), {1008, 2040, 6});
  ExpectPoint(InnerFoot(3), {1008, 1960, 6});
}

TEST_F(OutsidePlacement, AnchorAtTheEnd) {
  record().widthAnchor = 2;
  Insert();
  ExpectPoint(OuterFoot(0), {1000, 2100, 0});
  ExpectPoint(OuterFoot(3), {1000, 2000, 0});
  ExpectPoint(InnerFoot(0), {1008, 2090, 6});
}

TEST_F(OutsidePlacement, InsertionPointIsInTheRoofsFrame) {
  record().insertionPoint = {30, 40, 999};
  Insert();
  ExpectPoint(OuterFoot(0), {1040, 1970, 30});
}

TEST_F(OutsidePlacement, PickOffsetMovesInTheRoofsFrame) {
  record().pickOffset = 3;
  record().rotation = 1.5707963267948966;
  Insert();
  ExpectPoint(OuterFoot(0), {1030, 2000, 22.5});
}

TEST_F(OutsidePlacement, PlacedByHeightTheLowerEdgeHasIt) {
  record().placeByHeight = 1;
  record().lowerEdgeHeight = 6;
  Insert();
  ExpectPoint(OuterFoot(0), {1080, 2000, 60});
}

// A layer of 12 and an offset of 5 drawing units, as local (y, z): where the outer outline and the opening
// start, and how far the opening runs up the slope.
struct Layered {
  std::int32_t reference;
  std::int32_t buildUp;
  double outer[2];
  double opening[2];
  double run[2];
};

void PrintTo(const Layered& p, std::ostream* out) {
  *out << "reference " << p.reference << ", build-up " << p.buildUp;
}

constexpr Layered LAYERS[] = {
    {0, 0, {-7.2, 9.6}, {0, 0}, {160, 120}},      {0, 1, {0, 0}, {7.2, -9.6}, {160, 120}},
    {0, 2, {4, 3}, {11.2, -6.6}, {160, 120}},     {1, 0, {0, 15}, {0, 0}, {180, 135}},
    {1, 1, {0, 0}, {0, -15}, {180, 135}},         {1, 2, {4, 3}, {4, -12}, {180, 135}},
    {2, 0, {-7.2, 9.6}, {0, 0}, {172.8, 129.6}},  {2, 1, {0, 0}, {7.2, -9.6}, {172.8, 129.6}},
    {2, 2, {4, 3}, {11.2, -6.6}, {172.8, 129.6}}, {3, 0, {0, 15}, {0, 0}, {167.2, 125.4}},
    {3, 1, {0, 0}, {0, -15}, {167.2, 125.4}},     {3, 2, {4, 3}, {4, -12}, {167.2, 125.4}},
};

class OutsideLayers : public OutsidePlacement, public testing::WithParamInterface<Layered> {};

TEST_P(OutsideLayers, DisplaceAndLengthenTheOpening) {
  const Layered& p = GetParam();
  record().heightReference = p.reference;
  record().roofBuildUp = p.buildUp;
  record().layerThickness = 1.2;
  record().slopeOffset = 0.5;
  for (int k = 0; k < 3; ++k)
    record().secondPlanePoints[k] = record().roofPlanePoints[k];
  Insert();
  ExpectPoint(OuterFoot(0), {1000 + p.outer[0], 2000, p.outer[1]});
  ExpectPoint(LineStart(0), {1000 + p.opening[0], 2000, p.opening[1]});
  ExpectPoint(LineStart(1), {1000 + p.opening[0] + p.run[0], 2000, p.opening[1] + p.run[1]});
  ExpectPoint(LineStart(2), {1000 + p.opening[0] + p.run[0], 1900, p.opening[1] + p.run[1]});
  ExpectPoint(LineStart(4), {1000 + p.outer[0] + 160, 2000, p.outer[1] + 120});
}

INSTANTIATE_TEST_SUITE_P(All, OutsideLayers, testing::ValuesIn(LAYERS));

TEST_F(OutsidePlacement, SecondPlaneTakesTheRoofsPlace) {
  record().roofBuildUp = 0;
  record().layerThickness = 1.2;
  record().heightReference = 1;
  record().secondPlanePoints[0] = {600, 0, 500};  // flat, its frame's origin at (500, 700)
  record().secondPlanePoints[1] = {500, 0, 500};
  record().secondPlanePoints[2] = {500, 700, 500};
  Insert();
  ExpectPoint(OuterFoot(0), {500, 700, 512});
  ExpectPoint(OuterFoot(2), {600, 900, 512});
}

// The same roof on the other side of its ridge: it rises towards -x, so the window's x axis points along +y.
TEST_F(OutsidePlacement, OppositeRoofIsTheSameTurnedRound) {
  record().roofPlanePoints[1] = {900, 2000, 75};
  Insert();
  ExpectPoint(OuterFoot(0), {1000, 2000, 0});
  ExpectPoint(OuterFoot(1), {840, 2000, 120});
  ExpectPoint(OuterFoot(3), {1000, 2100, 0});
  ExpectPoint(node_list::PointOf(recording_host::Faces()[0], 13), {1003, 2000, 4});
}

TEST_F(OutsidePlacement, PointsPickedTheOtherWayRoundGiveTheSameWindow) {
  std::swap(record().roofPlanePoints[0], record().roofPlanePoints[1]);
  Insert();
  ExpectPoint(OuterFoot(0), {1000, 2000, 0});
  ExpectPoint(OuterFoot(1), {1160, 2000, 120});
  ExpectPoint(OuterFoot(3), {1000, 1900, 0});
}

TEST_F(OutsidePlacement, FlatRoofRunsAlongPlusY) {
  record().roofPlanePoints[1] = {1100, 2000, 0};
  Insert();
  ExpectPoint(OuterFoot(1), {1000, 2200, 0});
  ExpectPoint(OuterFoot(3), {1100, 2000, 0});
}

// It counts as flat, so its frame is not turned; it falls towards +y, so the window runs the other way.
TEST_F(OutsidePlacement, NearlyFlatRoofRunsUpItsSlope) {
  record().roofPlanePoints[0] = {1100, 2000, 0};
  record().roofPlanePoints[1] = {1000, 2100, -0.005};
  Insert();
  EXPECT_NEAR(OuterFoot(1)[1], 1800, 1e-6);
  EXPECT_NEAR(OuterFoot(1)[2], 0.01, 1e-9);
  EXPECT_NEAR(OuterFoot(3)[0], 1100, 1e-9);
}

TEST_F(OutsidePlacement, HeightOfTheWindowsLowerEdgeIsStoredInDrawingUnits) {
  Insert();
  EXPECT_EQ(node_list::ToString(recording_host::Faces()[0][9 + 14]), "1040 real 25");
}

}  // namespace
