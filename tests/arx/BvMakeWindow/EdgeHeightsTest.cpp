// EdgeHeightsTest.cpp - which edge height the maker stores, and in which unit.
//
// Pitch of 3 in 4: the length of 200 rises by 120.
#include <gtest/gtest.h>

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "tests/support/RoundRecord.h"
#include "window/Choices.h"

namespace brevanta {
namespace {

WindowParams RecordAt1000() {
  WindowParams record = round_record::OnSlope();
  record.heightReference = REVEALS_PLUMB_AND_LEVEL;
  record.roofBuildUp = BUILD_UP_PLAIN;
  record.layerThickness = 12;
  record.lowerEdgeHeight = 1000;
  record.upperEdgeHeight = 1000;
  return record;
}

TEST(ComputeEdgeHeights, Mode1StoresTheUpperEdgeInDrawingUnits) {
  WindowParams record = RecordAt1000();
  CbvMakeWindow maker;
  maker.params = &record;
  maker.unitFactor = 10;
  maker.ComputeEdgeHeights(1);
  EXPECT_NEAR(record.upperEdgeHeight, 11200, 1e-9);
  EXPECT_EQ(record.lowerEdgeHeight, 1000);  // still metres
}

TEST(ComputeEdgeHeights, OtherModesStoreTheLowerEdge) {
  for (const int mode : {-1, 0, 2}) {
    WindowParams record = RecordAt1000();
    CbvMakeWindow maker;
    maker.params = &record;
    maker.ComputeEdgeHeights(mode);
    EXPECT_NEAR(record.lowerEdgeHeight, 880, 1e-9);
    EXPECT_EQ(record.upperEdgeHeight, 1000);
  }
}

}  // namespace
}  // namespace brevanta
