// EdgeHeightsTest.cpp - edge heights against numbers worked out by hand.
//
// Pitch of 3 in 4: a length of 200 rises by 120, a slope offset of 5 by 3; a layer of 12 is 15 plumb (12 /
// 0.8) and counts 9.6 square (12 * 0.8).
#include <ostream>

#include <gtest/gtest.h>

#include "tests/support/RoundRecord.h"
#include "window/EdgeHeights.h"

namespace brevanta {
namespace {

WindowParams LayeredRecord(std::int32_t reference, std::int32_t buildUp) {
  WindowParams record = round_record::OnSlope();
  record.heightReference = reference;
  record.roofBuildUp = buildUp;
  record.layerThickness = 12;
  record.slopeOffset = 5;
  record.lowerEdgeHeight = 1000;
  record.upperEdgeHeight = 1000;
  return record;
}

struct Heights {
  std::int32_t reference;
  std::int32_t buildUp;
  double upper;  // from a lower edge at 1000
  double lower;  // from an upper edge at 1000
};

void PrintTo(const Heights& p, std::ostream* out) {
  *out << "reference " << p.reference << ", build-up " << p.buildUp;
}

constexpr Heights HEIGHTS[] = {
    {0, 0, 1120, 880},      // skipped
    {0, 1, 1110.4, 889.6},  // - 9.6
    {0, 2, 1113.4, 886.6},  // + 3 - 9.6
    {1, 0, 1135, 865},      // + 15
    {1, 1, 1120, 880},      // skipped
    {1, 2, 1123, 877},      // + 3
    {2, 0, 1129.6, 870.4},  // + 9.6
    {2, 1, 1120, 880},      // skipped
    {2, 2, 1123, 877},      // + 3
    {3, 0, 1125.4, 874.6},  // - 9.6 + 15
    {3, 1, 1110.4, 889.6},  // - 9.6
    {3, 2, 1113.4, 886.6},  // + 3 - 9.6
    {4, 0, 1120, 880},      // no such reference
    {3, 3, 1110.4, 889.6},  // no such build-up
};

class EdgeHeights : public testing::TestWithParam<Heights> {};

TEST_P(EdgeHeights, UpperFollowsFromLower) {
  EXPECT_NEAR(EdgeHeight(LayeredRecord(GetParam().reference, GetParam().buildUp), 1, 1), GetParam().upper,
              1e-9);
}

TEST_P(EdgeHeights, LowerFollowsFromUpper) {
  EXPECT_NEAR(EdgeHeight(LayeredRecord(GetParam().reference, GetParam().buildUp), -1, 1), GetParam().lower,
              1e-9);
}

TEST_P(EdgeHeights, EveryLengthTakesTheUnitFactor) {
  const WindowParams record = LayeredRecord(GetParam().reference, GetParam().buildUp);
  EXPECT_NEAR(EdgeHeight(record, 1, 1000), 1000 * GetParam().upper, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(All, EdgeHeights, testing::ValuesIn(HEIGHTS));

TEST(EdgeHeight, NoLayerCountsForNothing) {
  WindowParams record = LayeredRecord(3, 0);
  for (const double thickness : {0.0, -12.0}) {
    record.layerThickness = thickness;
    EXPECT_NEAR(EdgeHeight(record, 1, 1), 1120, 1e-9);
  }
}

TEST(EdgeHeight, AnotherModeWeighsTheLayerByItsNumber) {
  EXPECT_NEAR(EdgeHeight(LayeredRecord(0, 1), 2, 1), 880 - 2 * 9.6, 1e-9);
  EXPECT_NEAR(EdgeHeight(LayeredRecord(1, 2), 0, 1), 880, 1e-9);
}

TEST(EdgeHeight, PartsOfTheLayerAreAddedOneAfterTheOther) {
  WindowParams record = LayeredRecord(3, 0);
  record.length = 0;
  record.pitch = 0;                    // both parts are the layer's thickness
  record.lowerEdgeHeight = 1e17 + 16;  // doubles are 16 apart there, and this one is odd
  record.layerThickness = 8;
  // Both - 8 and + 8 lie in the middle and go to the even one, 1e17. Together the two would be nothing.
  EXPECT_EQ(EdgeHeight(record, 1, 1), 1e17);
}

// What the record's heights mean: those of the anchor and of the opening's upper edge.
TEST(RecordedEdges, AreTheAnchorAndTheUpperEdgeOfTheOpening) {
  for (const std::int32_t buildUp : {0, 1, 2}) {
    for (const std::int32_t reference : {0, 1, 2, 3}) {
      const WindowParams record = LayeredRecord(reference, buildUp);
      const Outline opening = OutlinesAt({0, 0, 1000}, record, 1, {round_record::SLOPE}).opening;
      EXPECT_EQ(RecordedEdges(record).lower, 1000);
      EXPECT_NEAR(RecordedEdges(record).upper, opening[1].z, 1e-9) << buildUp << ' ' << reference;
    }
  }
}

TEST(EdgesOf, AreTheFramesInMetres) {
  const Edges edges = EdgesOf({{{0, 0, 6244}, {0, 800, 7047}, {940, 800, 7047}, {940, 0, 6244}}}, 1000);
  EXPECT_EQ(edges.lower, 6.244);
  EXPECT_EQ(edges.upper, 7.047);
}

}  // namespace
}  // namespace brevanta
