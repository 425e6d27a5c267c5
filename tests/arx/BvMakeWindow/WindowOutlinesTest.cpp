// WindowOutlinesTest.cpp - the three rectangles of a window, against numbers worked out by hand.
//
// All on the slope of 3 in 4: a length d along it is (0, 0.8 d, 0.6 d), a length d normal to it (0, -0.6 d,
// 0.8 d), and a layer of thickness 12 is 15 thick measured plumb. The window is 100 x 200 with a frame of 10.
#include <cmath>
#include <ostream>

#include <gtest/gtest.h>

#include "arx/BvMakeWindow/WindowOutlines.h"
#include "tests/support/RoundRecord.h"
#include "window/Choices.h"

namespace brevanta {
namespace {

class WindowOutlinesTest : public testing::Test {
 protected:
  void SetUp() override { maker.params = &record; }

  void Compute(double slope = round_record::SLOPE, std::int16_t slopeSide = 1, std::int32_t widthSide = 1) {
    ComputeWindowOutlines(maker, insertion, slope, slopeSide, widthSide, outer, inner, opening, corner0World,
                          corner3World);
  }

  static void ExpectPoint(const GcGePoint3d& actual, double x, double y, double z) {
    EXPECT_NEAR(actual.x, x, 1e-9);
    EXPECT_NEAR(actual.y, y, 1e-9);
    EXPECT_NEAR(actual.z, z, 1e-9);
  }

  WindowParams record = round_record::OnSlope();
  CbvMakeWindow maker;
  GcGePoint3d insertion;
  Point3dArray outer;
  Point3dArray inner;
  Point3dArray opening;
  GcGePoint3d corner0World;
  GcGePoint3d corner3World;
};

TEST_F(WindowOutlinesTest, OuterOutlineRunsUpTheSlopeAcrossAndBack) {
  Compute();
  ASSERT_EQ(outer.Length(), 4);
  ExpectPoint(outer[0], 0, 0, 0);
  ExpectPoint(outer[1], 0, 160, 120);
  ExpectPoint(outer[2], 100, 160, 120);
  ExpectPoint(outer[3], 100, 0, 0);
}

TEST_F(WindowOutlinesTest, InnerOutlineIsInsetByTheFrameOnEverySide) {
  Compute();
  ASSERT_EQ(inner.Length(), 4);
  ExpectPoint(inner[0], 10, 8, 6);  // 10 up the slope
  ExpectPoint(inner[1], 10, 152, 114);
  ExpectPoint(inner[2], 90, 152, 114);
  ExpectPoint(inner[3], 90, 8, 6);
}

TEST_F(WindowOutlinesTest, OutlinesStartAtTheInsertionPoint) {
  insertion = {1000, 2000, 1500};
  Compute();
  ExpectPoint(outer[0], 1000, 2000, 1500);
  ExpectPoint(inner[0], 1010, 2008, 1506);
  ExpectPoint(opening[0], 1000, 2000, 1500);
}

TEST_F(WindowOutlinesTest, FallingSlopeMirrorsYOnly) {
  Compute(round_record::SLOPE, -1);
  ExpectPoint(outer[1], 0, -160, 120);
  ExpectPoint(inner[1], 10, -152, 114);
}

TEST_F(WindowOutlinesTest, FlatRoofKeepsTheLengthInThePlan) {
  record.widthAnchor = ANCHOR_CENTRE;
  Compute(0.0);
  ExpectPoint(outer[0], -50, 0, 0);
  ExpectPoint(outer[2], 50, 200, 0);
  ExpectPoint(inner[0], -40, 10, 0);
  ExpectPoint(inner[2], 40, 190, 0);
}

TEST_F(WindowOutlinesTest, LengthsAreMultipliedByTheMakersUnitFactor) {
  maker.unitFactor = 10;
  Compute();
  ExpectPoint(outer[2], 1000, 1600, 1200);
  ExpectPoint(inner[0], 100, 80, 60);
}

TEST_F(WindowOutlinesTest, FrameWiderThanTheWindowStillRunsUpTheSlope) {
  record.frameWidth = 150;  // 200 - 2 * 150 = -100 along, 100 - 2 * 150 = -200 across
  Compute();
  ExpectPoint(inner[0], 150, 120, 90);
  ExpectPoint(inner[1], 150, 200, 150);
  ExpectPoint(inner[2], -50, 200, 150);
}

// What each anchor and direction gives on a flat roof: x where each outline starts and where it ends.
struct Anchored {
  std::int32_t anchor;
  std::int32_t widthSide;
  double outerFrom;
  double outerTo;
  double innerFrom;
  double innerTo;
};

void PrintTo(const Anchored& p, std::ostream* out) {
  *out << "anchor " << p.anchor << ", width side " << p.widthSide;
}

constexpr Anchored ANCHORS[] = {
    {0, 1, -50, 50, -40, 40},  {0, -1, -50, 50, -40, 40},  {1, 1, 0, 100, 10, 90}, {1, -1, 0, -100, -10, -90},
    {2, 1, -100, 0, -90, -10}, {2, -1, -100, 0, -70, 10},  // 20 off the middle, kept
    {3, 1, -50, 50, -40, 40},  {-1, -1, -50, 50, -40, 40},
};

class WidthAnchors : public WindowOutlinesTest, public testing::WithParamInterface<Anchored> {};

TEST_P(WidthAnchors, PlaceTheOutlinesAcross) {
  record.widthAnchor = GetParam().anchor;
  Compute(0.0, 1, GetParam().widthSide);
  EXPECT_EQ(outer[0].x, GetParam().outerFrom);
  EXPECT_EQ(outer[3].x, GetParam().outerTo);
  EXPECT_EQ(inner[0].x, GetParam().innerFrom);
  EXPECT_EQ(inner[3].x, GetParam().innerTo);
  EXPECT_EQ(opening[0].x, GetParam().outerFrom);
  EXPECT_EQ(opening[3].x, GetParam().outerTo);
}

INSTANTIATE_TEST_SUITE_P(All, WidthAnchors, testing::ValuesIn(ANCHORS));

// What each way to cut the reveals and each build-up gives for a layer of 12 and a slope offset of 5: where
// the outer outline and the opening start, and how far the opening runs. Lengthened by 9 = 12 * 0.75 where
// the lower reveal is plumb, by 16 = 12 / 0.75 where it is level.
struct Layered {
  std::int32_t mode;
  std::int32_t buildUp;
  double outerY, outerZ;
  double openingY, openingZ;
  double runY, runZ;
};

void PrintTo(const Layered& p, std::ostream* out) {
  *out << "mode " << p.mode << ", build-up " << p.buildUp;
}

constexpr Layered LAYERS[] = {
    {0, 0, -7.2, 9.6, 0, 0, 160, 120},      {0, 1, 0, 0, 7.2, -9.6, 160, 120},
    {0, 2, 4, 3, 11.2, -6.6, 160, 120},     {1, 0, 0, 15, 0, 0, 180, 135},
    {1, 1, 0, 0, 0, -15, 180, 135},         {1, 2, 4, 3, 4, -12, 180, 135},
    {2, 0, -7.2, 9.6, 0, 0, 172.8, 129.6},  {2, 1, 0, 0, 7.2, -9.6, 172.8, 129.6},
    {2, 2, 4, 3, 11.2, -6.6, 172.8, 129.6}, {3, 0, 0, 15, 0, 0, 167.2, 125.4},
    {3, 1, 0, 0, 0, -15, 167.2, 125.4},     {3, 2, 4, 3, 4, -12, 167.2, 125.4},
    {4, 0, 0, 0, 0, 0, 160, 120},           {4, 1, 0, 0, 0, 0, 160, 120},
    {-1, 2, 4, 3, 4, 3, 160, 120},          {1, 3, 0, 0, 0, -15, 180, 135},
};

class RoofLayers : public WindowOutlinesTest, public testing::WithParamInterface<Layered> {
 protected:
  void ComputeLayered(std::int16_t slopeSide) {
    record.heightReference = GetParam().mode;
    record.roofBuildUp = GetParam().buildUp;
    record.layerThickness = 12;
    record.slopeOffset = 5;
    Compute(round_record::SLOPE, slopeSide);
  }
  void ExpectOutlines(double side) {
    const Layered& p = GetParam();
    ExpectPoint(outer[0], 0, side * p.outerY, p.outerZ);
    ExpectPoint(outer[2], 100, side * (p.outerY + 160), p.outerZ + 120);
    ExpectPoint(inner[0], 10, side * (p.outerY + 8), p.outerZ + 6);
    ExpectPoint(opening[0], 0, side * p.openingY, p.openingZ);
    ExpectPoint(opening[1], 0, side * (p.openingY + p.runY), p.openingZ + p.runZ);
    ExpectPoint(opening[2], 100, side * (p.openingY + p.runY), p.openingZ + p.runZ);
    ExpectPoint(opening[3], 100, side * p.openingY, p.openingZ);
  }
};

TEST_P(RoofLayers, DisplaceAndLengthenTheOpening) {
  ComputeLayered(1);
  ExpectOutlines(1);
}

TEST_P(RoofLayers, AreMirroredOnAFallingSlope) {
  ComputeLayered(-1);
  ExpectOutlines(-1);
}

INSTANTIATE_TEST_SUITE_P(All, RoofLayers, testing::ValuesIn(LAYERS));

TEST_F(WindowOutlinesTest, NoLayerLeavesTheOpeningOnTheOuterOutline) {
  record.heightReference = 2;
  record.roofBuildUp = BUILD_UP_SECOND_PLANE;
  for (const double thickness : {0.0, -12.0}) {
    record.layerThickness = thickness;
    Compute();
  }
  ASSERT_EQ(opening.Length(), 8);
  for (int k = 0; k < 8; ++k)
    ExpectPoint(opening[k], outer[k].x, outer[k].y, outer[k].z);
}

TEST_F(WindowOutlinesTest, SlopeOffsetKeepsTheSignOfTheCosine) {
  record.roofBuildUp = BUILD_UP_SLOPE_OFFSET;
  record.slopeOffset = 5;
  const double steep = 2.498091544796509;  // pi - atan(0.75): cosine -0.8, sine 0.6
  Compute(steep);
  ExpectPoint(outer[0], 0, -4, 3);
  ExpectPoint(outer[1], 0, 156, 123);  // every other displacement is absolute
}

TEST_F(WindowOutlinesTest, SlopeOffsetCountsOnlyInItsBuildUp) {
  record.slopeOffset = 5;
  Compute();
  ExpectPoint(outer[0], 0, 0, 0);
}

TEST_F(WindowOutlinesTest, SquareCutOnAFlatRoofIsInfinitelyLong) {
  record.heightReference = 2;
  record.layerThickness = 12;
  Compute(0.0);
  EXPECT_TRUE(std::isinf(opening[1].y));
  EXPECT_TRUE(std::isinf(opening[2].y));
  ExpectPoint(opening[0], 0, 0, -12);
  ExpectPoint(outer[2], 100, 200, 0);
}

TEST_F(WindowOutlinesTest, OuterCornersComeBackInDrawingCoordinates) {
  // A quarter turn about z and a shift by (1000, 0, 50).
  maker.roofTransform = {{{0, -1, 0, 1000}, {1, 0, 0, 0}, {0, 0, 1, 50}, {0, 0, 0, 1}}};
  insertion = {0, 20, 0};
  Compute();
  ExpectPoint(corner0World, 980, 0, 50);
  ExpectPoint(corner3World, 980, 100, 50);
}

TEST_F(WindowOutlinesTest, CornersAreAppendedInTurnBehindWhatIsThere) {
  record.heightReference = 1;
  record.layerThickness = 12;
  Point3dArray all;
  ComputeWindowOutlines(maker, insertion, round_record::SLOPE, 1, 1, all, all, all, corner0World,
                        corner3World);
  ASSERT_EQ(all.Length(), 12);
  ExpectPoint(all[0], 0, 0, -15);  // opening, outer, inner
  ExpectPoint(all[1], 0, 0, 0);
  ExpectPoint(all[2], 10, 8, 6);
  ExpectPoint(all[9], 100, 0, -15);
  ExpectPoint(all[10], 100, 0, 0);
  ExpectPoint(all[11], 90, 8, 6);
}

}  // namespace
}  // namespace brevanta
