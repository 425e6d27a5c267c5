// PlanOutlineTest.cpp - the outline in the roof plane.
#include <cstring>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "arx/BvMakeWindow/PlanOutline.h"
#include "tests/arx/BvMakeWindow/DrawnLines.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RoundRecord.h"

namespace brevanta {
namespace {

using testing::ElementsAre;

class PlanOutlineTest : public testing::Test {
 protected:
  void SetUp() override {
    recording_host::Reset();
    maker.params = &record;
    maker.hostTable = recording_host::Table();
    for (const GcGePoint3d& p : {GcGePoint3d{0, 0, 1}, {0, 200, 2}, {100, 200, 3}, {100, 0, 4}})
      outer.Append(p);
    for (const GcGePoint3d& p : {GcGePoint3d{0, -5, 5}, {0, 205, 6}, {100, 205, 7}, {100, -5, 8}})
      opening.Append(p);
  }

  WindowParams record = round_record::OnSlope();
  CbvMakeWindow maker;
  Point3dArray outer;
  Point3dArray opening;
};

TEST_F(PlanOutlineTest, BesideTheSymbolItIsTheOuterOutline) {
  DrawPlanOutline(maker, outer, opening, 1);
  EXPECT_THAT(DrawnLines(), ElementsAre("0,0,1 > 0,200,2", "0,200,2 > 100,200,3", "100,200,3 > 100,0,4",
                                        "100,0,4 > 0,0,1"));
}

TEST_F(PlanOutlineTest, AnyNonZeroSwitchDrawsTheSame) {
  for (const std::int32_t symbol : {2, -1, -57}) {
    recording_host::Reset();
    DrawPlanOutline(maker, outer, opening, symbol);
    EXPECT_EQ(DrawnLines().size(), 4U);
    EXPECT_EQ(DrawnLines()[0], "0,0,1 > 0,200,2");
  }
}

TEST_F(PlanOutlineTest, WithoutTheSymbolItIsTheOpeningTheTopEdgeAndTheCross) {
  DrawPlanOutline(maker, outer, opening, 0);
  EXPECT_THAT(DrawnLines(), ElementsAre("0,-5,5 > 0,205,6", "0,205,6 > 100,205,7", "100,205,7 > 100,-5,8",
                                        "100,-5,8 > 0,-5,5", "0,200,2 > 100,200,3", "0,200,2 > 100,-5,8",
                                        "100,200,3 > 0,-5,5"));
}

TEST_F(PlanOutlineTest, EqualOutlinesDrawTheTopEdgeTwice) {
  DrawPlanOutline(maker, outer, outer, 0);
  ASSERT_EQ(DrawnLines().size(), 7U);
  EXPECT_EQ(DrawnLines()[1], "0,200,2 > 100,200,3");
  EXPECT_EQ(DrawnLines()[4], "0,200,2 > 100,200,3");
  EXPECT_EQ(DrawnLines()[5], "0,200,2 > 100,0,4");
  EXPECT_EQ(DrawnLines()[6], "100,200,3 > 0,0,1");
}

TEST_F(PlanOutlineTest, LinetypesOfTheSymbolAreEmptied) {
  std::strcpy(maker.currentLinetype, "DASHED");
  std::strcpy(maker.symbolLinetype, "DASHED");
  DrawPlanOutline(maker, outer, opening, 0);
  EXPECT_STREQ(maker.currentLinetype, "");
  EXPECT_STREQ(maker.symbolLinetype, "");
  EXPECT_THAT(DrawnLines(), testing::Each(testing::Not(testing::HasSubstr("DASHED"))));
}

}  // namespace
}  // namespace brevanta
