// WindowBodyTest.cpp - the faces of a window's body, their order and the outlines that they leave.
//
// On the slope of 3 in 4 a lift by 10 is (0, -6, 8), one by 5 is (0, -3, 4).
#include <array>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "arx/BvMakeWindow/WindowBody.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RoundRecord.h"

namespace brevanta {
namespace {

using node_list::NodeList;
using Point = node_list::Point;
using Corners = std::array<Point, 4>;

constexpr double RIGHT_ANGLE = 1.5707963267948966;

constexpr Corners OUTER = {{{0, 0, 0}, {0, 160, 120}, {100, 160, 120}, {100, 0, 0}}};
constexpr Corners INNER = {{{10, 8, 6}, {10, 152, 114}, {90, 152, 114}, {90, 8, 6}}};

Corners Moved(Corners corners, double dy, double dz) {
  for (Point& p : corners) {
    p[1] += dy;
    p[2] += dz;
  }
  return corners;
}

class WindowBodyTest : public testing::Test {
 protected:
  void SetUp() override {
    recording_host::Reset();
    maker.params = &record;
    maker.hostTable = recording_host::Table();
    for (const Point& p : OUTER)
      outer.Append({p[0], p[1], p[2]});
    for (const Point& p : INNER)
      inner.Append({p[0], p[1], p[2]});
  }

  std::vector<NodeList> Make(double slope = round_record::SLOPE, std::int16_t slopeSide = 1) {
    MakeWindowBody(maker, outer, inner, slope, slopeSide);
    return recording_host::Faces();
  }

  static void ExpectFace(const NodeList& face, const Corners& corners) {
    const std::vector<Point> actual = node_list::PointsOf(face);
    for (std::size_t k = 0; k < 4; ++k) {
      for (std::size_t axis = 0; axis < 3; ++axis)
        EXPECT_NEAR(actual[k][axis], corners[k][axis], 1e-9) << "corner " << k << " axis " << axis;
    }
  }

  // Four faces from the one outline to the other, all with the same edge flags and no colour.
  static void ExpectFaces(const std::vector<NodeList>& faces, std::size_t first, const Corners& from,
                          const Corners& to, std::int64_t edges) {
    ASSERT_GE(faces.size(), first + 4);
    for (std::size_t k = 0; k < 4; ++k) {
      SCOPED_TRACE("face " + std::to_string(first + k));
      const std::size_t next = k == 3 ? 0 : k + 1;
      ExpectFace(faces[first + k], {from[k], from[next], to[next], to[k]});
      EXPECT_EQ(node_list::IntegerOf(faces[first + k], 70), edges);
      EXPECT_FALSE(node_list::Has(faces[first + k], 62));
    }
  }

  static void ExpectOutline(const Point3dArray& outline, const std::vector<Point>& expected) {
    ASSERT_EQ(outline.Length(), static_cast<int>(expected.size()));
    for (int k = 0; k < outline.Length(); ++k) {
      EXPECT_NEAR(outline[k].x, expected[static_cast<std::size_t>(k)][0], 1e-9) << k;
      EXPECT_NEAR(outline[k].y, expected[static_cast<std::size_t>(k)][1], 1e-9) << k;
      EXPECT_NEAR(outline[k].z, expected[static_cast<std::size_t>(k)][2], 1e-9) << k;
    }
  }

  static double GlassHeight(const std::vector<NodeList>& faces) {
    return node_list::PointOf(faces.back(), 10)[2];
  }

  WindowParams record = round_record::OnSlope();
  CbvMakeWindow maker;
  Point3dArray outer;
  Point3dArray inner;
};

TEST_F(WindowBodyTest, FrameHasTwoBandsTwoRingsAndTheGlass) {
  const auto faces = Make();
  ASSERT_EQ(faces.size(), 17U);
  const Corners outerTop = Moved(OUTER, -3, 4);
  const Corners innerTop = Moved(INNER, -3, 4);
  ExpectFaces(faces, 0, OUTER, outerTop, 0);
  ExpectFaces(faces, 4, INNER, innerTop, 0);
  ExpectFaces(faces, 8, OUTER, INNER, 10);
  ExpectFaces(faces, 12, outerTop, innerTop, 10);
}

TEST_F(WindowBodyTest, GlassIsTheLastFaceInColour4WithAllEdges) {
  const auto faces = Make();
  // 0.02 below the top: (0, -3, 4) + (0, 0.012, -0.016)
  ExpectFace(faces[16], Moved(INNER, -2.988, 3.984));
  EXPECT_EQ(node_list::IntegerOf(faces[16], 62), 4);
  EXPECT_EQ(node_list::IntegerOf(faces[16], 70), 0);
}

TEST_F(WindowBodyTest, SkirtIsAnOuterBandBelowTheFrame) {
  record.skirtHeight = 10;
  const auto faces = Make();
  ASSERT_EQ(faces.size(), 21U);
  const Corners outerFoot = Moved(OUTER, -6, 8);
  const Corners innerFoot = Moved(INNER, -6, 8);
  const Corners outerTop = Moved(OUTER, -9, 12);
  const Corners innerTop = Moved(INNER, -9, 12);
  ExpectFaces(faces, 0, OUTER, outerFoot, 0);
  ExpectFaces(faces, 4, outerFoot, outerTop, 0);
  ExpectFaces(faces, 8, innerFoot, innerTop, 0);
  ExpectFaces(faces, 12, outerFoot, innerFoot, 10);
  ExpectFaces(faces, 16, outerTop, innerTop, 10);
}

TEST_F(WindowBodyTest, SkirtThatIsNotPositiveIsLeftOut) {
  for (const double height : {0.0, -10.0, std::numeric_limits<double>::quiet_NaN()}) {
    recording_host::Reset();
    record.skirtHeight = height;
    EXPECT_EQ(Make().size(), 17U) << height;
    ExpectFaces(recording_host::Faces(), 8, OUTER, INNER, 10);
  }
}

TEST_F(WindowBodyTest, DepthZeroStillMakesItsFaces) {
  record.frameDepth = 0;
  const auto faces = Make();
  ASSERT_EQ(faces.size(), 17U);
  ExpectFaces(faces, 0, OUTER, OUTER, 0);
  EXPECT_NEAR(GlassHeight(faces), 6, 1e-9);  // half of no depth
}

TEST_F(WindowBodyTest, NegativeDepthLiftsLikeAPositiveOne) {
  record.frameDepth = -5;
  ExpectFaces(Make(), 0, OUTER, Moved(OUTER, -3, 4), 0);
}

TEST_F(WindowBodyTest, SkirtOnAFlatRoofRisesStraightUp) {
  record.skirtHeight = 10;
  ExpectFaces(Make(0.0), 0, OUTER, Moved(OUTER, 0, 10), 0);
}

TEST_F(WindowBodyTest, UprightSlopeShiftsAlongYOnly) {
  record.frameDepth = 4;
  record.unitFactor = 50;  // glass 1 below the top
  const auto faces = Make(RIGHT_ANGLE);
  ExpectFaces(faces, 0, OUTER, Moved(OUTER, -4, 0), 0);
  ExpectFace(faces[16], Moved(INNER, -3, 0));
}

TEST_F(WindowBodyTest, FallingSlopeMirrorsYOnly) {
  const auto faces = Make(round_record::SLOPE, -1);
  ExpectFaces(faces, 0, OUTER, Moved(OUTER, 3, 4), 0);
  ExpectFace(faces[16], Moved(INNER, 2.988, 3.984));
}

TEST_F(WindowBodyTest, GlassInsetIsTakenFromTheRecordsOwnUnitFactor) {
  record.unitFactor = 100;
  record.frameDepth = 3;
  EXPECT_NEAR(GlassHeight(Make(0.0)), 6 + 3 - 2, 1e-9);
}

TEST_F(WindowBodyTest, InsetDeeperThanTheFrameIsHalfItsDepth) {
  record.unitFactor = 100;
  record.frameDepth = 1.5;
  EXPECT_NEAR(GlassHeight(Make(0.0)), 6 + 1.5 - 0.75, 1e-9);
}

TEST_F(WindowBodyTest, InsetOfExactlyTheFramesDepthReachesItsFoot) {
  record.unitFactor = 100;
  record.frameDepth = 2;
  EXPECT_NEAR(GlassHeight(Make(0.0)), 6, 1e-9);
}

TEST_F(WindowBodyTest, LengthsAreMultipliedByTheMakersUnitFactor) {
  maker.unitFactor = 10;
  record.skirtHeight = 1;
  record.frameDepth = 2;
  const auto faces = Make(0.0);
  ExpectFaces(faces, 0, OUTER, Moved(OUTER, 0, 10), 0);
  ExpectFaces(faces, 4, Moved(OUTER, 0, 10), Moved(OUTER, 0, 30), 0);
  EXPECT_NEAR(GlassHeight(faces), 6 + 30 - 0.02, 1e-9);
}

TEST_F(WindowBodyTest, FootOutlinesAreRecorded) {
  Make();
  ExpectOutline(maker.innerOutline, {INNER[0], INNER[1], INNER[2], INNER[3]});
  ExpectOutline(maker.outerOutline, {OUTER[0], OUTER[1], OUTER[2], OUTER[3], OUTER[1], OUTER[2]});
}

TEST_F(WindowBodyTest, SkirtLiftsTheRecordedOutlinesButForTheTwoInputCorners) {
  record.skirtHeight = 10;
  Make();
  const Corners foot = Moved(OUTER, -6, 8);
  const Corners innerFoot = Moved(INNER, -6, 8);
  ExpectOutline(maker.innerOutline, {innerFoot[0], innerFoot[1], innerFoot[2], innerFoot[3]});
  ExpectOutline(maker.outerOutline, {foot[0], OUTER[1], OUTER[2], foot[3], foot[1], foot[2]});
}

TEST_F(WindowBodyTest, OutlinesAreRecordedAfreshEachTime) {
  Make();
  Make();
  EXPECT_EQ(maker.innerOutline.Length(), 4);
  EXPECT_EQ(maker.outerOutline.Length(), 6);
}

TEST_F(WindowBodyTest, InputOutlinesStayAsTheyAre) {
  record.skirtHeight = 10;
  Make();
  ExpectOutline(outer, {OUTER[0], OUTER[1], OUTER[2], OUTER[3]});
  ExpectOutline(inner, {INNER[0], INNER[1], INNER[2], INNER[3]});
}

TEST_F(WindowBodyTest, WithoutFacesOutlinesAndSymbolAreStillMade) {
  for (const std::int32_t bodyAsFaces : {0, 2, -1}) {
    recording_host::Reset();
    record.bodyAsFaces = bodyAsFaces;
    record.drawOpeningSymbol = 1;
    EXPECT_EQ(Make().size(), 0U);
    EXPECT_EQ(recording_host::Lines().size(), 8U);
    EXPECT_EQ(maker.outerOutline.Length(), 6);
  }
}

TEST_F(WindowBodyTest, SymbolFollowsTheFacesForAnyNonZeroSwitch) {
  for (const std::int32_t symbol : {-1, 1, 2}) {
    recording_host::Reset();
    record.drawOpeningSymbol = symbol;
    Make();
    ASSERT_EQ(recording_host::Calls().size(), 25U);
    EXPECT_EQ(recording_host::Calls()[16], "3DFACE");
    EXPECT_EQ(recording_host::Calls()[17], "LINE");
  }
}

TEST_F(WindowBodyTest, SymbolIsLeftOutWithTheSwitchZero) {
  Make();
  EXPECT_TRUE(recording_host::Lines().empty());
}

}  // namespace
}  // namespace brevanta
