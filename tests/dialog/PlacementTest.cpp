// PlacementTest.cpp - where the dialog puts a window on its roof.
#include <cmath>

#include <gtest/gtest.h>

#include "dialog/Placement.h"
#include "geometry/Matrix4.h"
#include "geometry/RoofPlane.h"
#include "tests/dialog/FakeServices.h"

namespace brevanta {
namespace {

using geometry::Vec3;

class PlacementTest : public testing::Test {
 protected:
  PlacementTest() {
    host.faces = {SimpleRoof(35)};
    host.point = {4000, 2000};
  }

  // The insertion point of the record in drawing coordinates, by the plane of the record.
  Vec3 InsertionInDrawing() const {
    const auto vec = [](const RecordPoint& p) { return Vec3{p.x, p.y, p.z}; };
    const RecordPoint(&roof)[3] = host.record.roofPlanePoints;
    geometry::FitRoofPlane(vec(roof[0]), vec(roof[1]), vec(roof[2]), 1);
    Vec3 world{};
    geometry::RoofToWorld(vec(host.record.insertionPoint), world);
    return world;
  }

  FakeServices host;
};

TEST_F(PlacementTest, PickedPointComesBackFromTheLocalFrame) {
  ASSERT_EQ(host.RunDialog(), 1);
  const Vec3 place = InsertionInDrawing();
  EXPECT_NEAR(place.x, 4000, 1e-9);
  EXPECT_NEAR(place.y, 2000, 1e-9);
  EXPECT_NEAR(place.z, 2500 + 2000 * std::tan(geometry::DegToRad(35)), 1e-9);
}

TEST_F(PlacementTest, WithoutAHeightTheWindowStaysAtThePoint) {
  ASSERT_EQ(host.RunDialog(), 1);
  EXPECT_EQ(host.record.placeByHeight, 0);
  EXPECT_NEAR(host.record.lowerEdgeHeight, 2.5 + 2 * std::tan(geometry::DegToRad(35)), 1e-12);
}

TEST_F(PlacementTest, PitchIsThatOfTheRoof) {
  ASSERT_EQ(host.RunDialog(), 1);
  EXPECT_NEAR(host.record.pitch, 35, 1e-12);
}

TEST_F(PlacementTest, PitchOfAnotherRoofIsRefused) {
  host.answers["pitch"] = "36";
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal.substr(0, 35), "pitch 36 is not that of the roof, 3");
}

TEST_F(PlacementTest, LowerEdgeHeightPlacesByHeight) {
  host.answers["lowerEdgeHeight"] = "4";
  ASSERT_EQ(host.RunDialog(), 1);
  EXPECT_EQ(host.record.placeByHeight, 1);
  EXPECT_EQ(host.record.lowerEdgeHeight, 4);
  EXPECT_NEAR(host.record.storedPoint.z, 4000, 1e-9);
  EXPECT_NEAR(host.record.storedPoint.x, 4000, 1e-9);
}

TEST_F(PlacementTest, UpperEdgeHeightGivesTheLowerOne) {
  host.answers["upperEdgeHeight"] = "5";
  ASSERT_EQ(host.RunDialog(), 1);
  // 5 m less the rise of 1.4 m of window at 35 degrees.
  EXPECT_NEAR(host.record.lowerEdgeHeight, 5 - 1.4 * std::sin(geometry::DegToRad(35)), 1e-12);
}

TEST_F(PlacementTest, BothEdgeHeightsTogetherAreRefused) {
  host.answers = {{"lowerEdgeHeight", "3"}, {"upperEdgeHeight", "4"}};
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal,
            "lowerEdgeHeight and upperEdgeHeight cannot both be given; one follows from the other");
}

TEST_F(PlacementTest, HeightBesideTheRoofTellsItsHeights) {
  host.answers["lowerEdgeHeight"] = "9";
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_NE(host.refusal.find("(the face lies at 2.5 to 6.701 m)"), std::string::npos) << host.refusal;
}

TEST_F(PlacementTest, ContradictionsInThePlacementAreRefused) {
  host.answers = {{"lowerEdgeHeight", "3"}, {"placeByHeight", "0"}};
  EXPECT_EQ(host.RunDialog(), 0);
  host.answers = {{"placeByHeight", "1"}};
  EXPECT_EQ(host.RunDialog(), 0);
  host.answers = {{"insertionPoint", "1,2,3"}};  // beside the picked point
  EXPECT_EQ(host.RunDialog(), 0);
}

TEST_F(PlacementTest, StoredPointIsTheAnchorInTheDrawing) {
  ASSERT_EQ(host.RunDialog(), 1);
  EXPECT_NEAR(host.record.storedPoint.x, 4000, 1e-9);
  EXPECT_NEAR(host.record.storedPoint.y, 2000, 1e-9);
}

TEST_F(PlacementTest, WindowOverTheEavesIsRefused) {
  host.point = {4000, -100};
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal.substr(0, 36), "the window would leave the roof face");
}

TEST_F(PlacementTest, WindowThatTouchesTheEdgesFits) {
  host.point = {470, 0};  // half of 0.94 m from the verge, on the eaves
  EXPECT_EQ(host.RunDialog(), 1) << host.refusal;
}

TEST_F(PlacementTest, WindowAcrossTwoTrianglesOfOneRoofFits) {
  const auto roof = SimpleRoof(35);
  host.faces = {{roof[0], roof[1], roof[2]}, {roof[0], roof[2], roof[3]}};
  host.point = {4000, 2500};
  EXPECT_EQ(host.RunDialog(), 1) << host.refusal;
}

TEST_F(PlacementTest, OnlyFacesNearTheWindowAreAskedFor) {
  std::vector<geometry::Vec3> far = SimpleRoof(35);
  for (geometry::Vec3& corner : far)
    corner.x += 8000;
  host.faces = {SimpleRoof(35), far};
  EXPECT_EQ(host.RunDialog(), 1) << host.refusal;
  EXPECT_EQ(host.found, std::vector<std::size_t>{0});
}

TEST_F(PlacementTest, RoofDrawnTwiceIsNoLargerThanOne) {
  host.faces = {SimpleRoof(35), SimpleRoof(35)};
  host.point = {0, 2000};  // half of the window lies beside the roof
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(
      host.refusal,
      "the window would leave the roof face: 50 % of its area lies outside; move it or make it smaller");
}

TEST_F(PlacementTest, PlaceBeyondAllNumbersIsRefusedInWords) {
  host.point.reset();
  host.answers["insertionPoint"] = "1e308,0,0";
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal,
            "the window would lie farther away than numbers reach; check its sizes and offsets");
}

TEST_F(PlacementTest, ThreePointsBoundNothing) {
  host.isBounded = false;
  host.point = {-50000, -50000};
  EXPECT_EQ(host.RunDialog(), 1) << host.refusal;
}

TEST_F(PlacementTest, CollinearRoofPointsAreRefused) {
  host.faces = {{{0, 0, 0}, {1000, 0, 0}, {2000, 0, 0}}};
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal, "the three roof points lie on one line; they do not span a roof plane");
}

TEST_F(PlacementTest, VerticalRoofIsRefused) {
  host.faces = {{{0, 0, 0}, {1000, 0, 0}, {1000, 0, 1000}}};
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal, "the roof is vertical; a roof window needs a roof that can be seen from above");
}

TEST_F(PlacementTest, WithoutARoofNothingIsConfirmed) {
  host.faces.clear();
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal, "no roof was given for the window");
}

TEST_F(PlacementTest, WithoutAPointNothingIsConfirmed) {
  host.point.reset();
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(host.refusal, "no place was given for the window");
}

TEST_F(PlacementTest, LocalInsertionPointIsUsedAsItStands) {
  host.point.reset();
  host.isBounded = false;
  host.answers["insertionPoint"] = "1,2,3";
  ASSERT_EQ(host.RunDialog(), 1) << host.refusal;
  EXPECT_EQ(host.record.insertionPoint.x, 1);
  EXPECT_EQ(host.record.insertionPoint.y, 2);
  EXPECT_EQ(host.record.insertionPoint.z, 3);
}

class FlatRoof : public testing::Test {
 protected:
  FlatRoof() {
    host.faces = {SimpleRoof(0)};
    host.point = {4000, 2000};
  }

  FakeServices host;
};

TEST_F(FlatRoof, ThickLayerWithSquareRevealsIsRefused) {
  for (const char* reference : {"1", "2"}) {
    host.answers["heightReference"] = reference;
    EXPECT_EQ(host.RunDialog(), 0);
    EXPECT_NE(host.refusal.find("infinitely long"), std::string::npos) << host.refusal;
  }
}

TEST_F(FlatRoof, PlumbRevealsOrNoLayerFit) {
  for (const char* reference : {"0", "3"}) {
    host.answers = {{"heightReference", reference}};
    EXPECT_EQ(host.RunDialog(), 1) << host.refusal;
  }
  host.answers = {{"layerThickness", "0"}};
  EXPECT_EQ(host.RunDialog(), 1) << host.refusal;
}

TEST_F(FlatRoof, HeightCannotBeChosen) {
  host.answers = {{"layerThickness", "0"}, {"lowerEdgeHeight", "3"}};
  EXPECT_EQ(host.RunDialog(), 0);
  EXPECT_EQ(
      host.refusal,
      "a flat roof has one height only, 2.5 m; leave lowerEdgeHeight, upperEdgeHeight and placeByHeight out");
}

TEST_F(PlacementTest, SecondPlaneIsTheRoofsUnderside) {
  host.answers = {{"roofBuildUp", "0"}, {"layerThickness", "0.2"}};
  ASSERT_EQ(host.RunDialog(), 1) << host.refusal;
  // 200 mm along the normal (0, -sin 35, cos 35) below the first roof point.
  const double p = geometry::DegToRad(35);
  EXPECT_NEAR(host.record.secondPlanePoints[0].y, host.record.roofPlanePoints[0].y + 200 * std::sin(p), 1e-9);
  EXPECT_NEAR(host.record.secondPlanePoints[0].z, host.record.roofPlanePoints[0].z - 200 * std::cos(p), 1e-9);
}

}  // namespace
}  // namespace brevanta
