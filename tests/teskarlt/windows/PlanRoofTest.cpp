// PlanRoofTest.cpp - the plane of a roof that is only drawn in plan.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/RoofFace.h"
#include "teskarlt/windows/PlanRoof.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

// Eaves from (0, 0) to (8000, 0) at 2.5 m, in millimetres; 45 degrees.
PlanRoof Eaves() {
  PlanRoof roof;
  roof.eaves = {{0, 0, "0,0"}, {8000, 0, "8000,0"}};
  roof.pitch = 45;
  roof.eavesHeight = 2.5;
  return roof;
}

double HeightOver(const PlanRoof& roof, double x, double y) {
  return HeightAt(MakeRoofFace(PlaneOf(roof, 1000), 1.0).value().plane, x, y);
}

TEST(PlanRoof, RisesToTheLeftOfItsEaves) {
  EXPECT_NEAR(HeightOver(Eaves(), 3000, 0), 2500, 1e-6);
  EXPECT_NEAR(HeightOver(Eaves(), 3000, 1000), 3500, 1e-6);
}

TEST(PlanRoof, RisesToThePointThatIsSaid) {
  PlanRoof roof = Eaves();
  roof.risesTo = PlanPoint{4000, -1, "4000,-1"};
  EXPECT_NEAR(HeightOver(roof, 3000, -1000), 3500, 1e-6);
}

TEST(PlanRoof, LiesToTheLeftOfItsRidgeAndFallsThere) {
  PlanRoof roof = Eaves();
  roof.ridge = std::move(roof.eaves);
  roof.eaves.clear();
  roof.ridgeHeight = 6;
  EXPECT_NEAR(HeightOver(roof, 3000, 1000), 5000, 1e-6);
  roof.risesTo = PlanPoint{4000, 1, "4000,1"};
  EXPECT_NEAR(HeightOver(roof, 3000, -1000), 5000, 1e-6);
}

TEST(PlanRoof, HeightsAreMetresWhateverTheUnit) {
  EXPECT_NEAR(PlaneOf(Eaves(), 100)[0].z, 250, 1e-9);
}

TEST(PlanRoof, WhatIsMissingIsAskedFor) {
  PlanRoof roof = Eaves();
  roof.eavesHeight.reset();
  EXPECT_EQ(RefusalOf([&] { PlaneOf(roof, 1); }),
            "--eaves alone is no plane; say the pitch in degrees with --pitch and the height of the eaves in "
            "metres "
            "with --eaves-height");
  roof.eaves.clear();
  EXPECT_THAT(RefusalOf([&] { PlaneOf(roof, 1); }), HasSubstr("need --eaves X,Y X,Y or --ridge"));
}

TEST(PlanRoof, TooMuchAndNoLengthAreRefused) {
  PlanRoof both = Eaves();
  both.ridge = both.eaves;
  EXPECT_EQ(RefusalOf([&] { PlaneOf(both, 1); }), "--eaves and --ridge both give the roof; leave one out");
  PlanRoof point = Eaves();
  point.eaves[1] = point.eaves[0];
  EXPECT_EQ(RefusalOf([&] { PlaneOf(point, 1); }), "--eaves 0,0 0,0: the ends are one point");
  PlanRoof onLine = Eaves();
  onLine.risesTo = PlanPoint{-5, 0, "-5,0"};
  EXPECT_THAT(RefusalOf([&] { PlaneOf(onLine, 1); }),
              HasSubstr("--rises-to -5,0: the point lies on the line of the eaves"));
}

}  // namespace
}  // namespace teskarlt
