// PlanLinesTest.cpp - the lines of entities of all kinds, where they lie near something.
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/PlanLines.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const PlanIndex EVERYWHERE({{-1e6, -1e6, 1e6, 1e6}});

// "0,0 10,5", with a "t" behind for the box around a text, rounded.
std::vector<std::string> Told(const std::vector<PlanLine>& lines) {
  std::vector<std::string> told;
  told.reserve(lines.size());
  for (const PlanLine& line : lines) {
    told.push_back(fmt::format("{:.0f},{:.0f} {:.0f},{:.0f}{}", line.from.x, line.from.y, line.to.x,
                               line.to.y, line.isText ? " t" : ""));
  }
  return told;
}

std::vector<std::string> LinesIn(const std::string& entities) {
  return Told(PlanLinesIn(Drawing("", Groups(entities)), {}, EVERYWHERE));
}

TEST(PlanLines, LineAndEdgesOfAFace) {
  EXPECT_THAT(LinesIn("0 LINE|8 0|10 0|20 0|11 10|21 5"), ElementsAre("0,0 10,5"));
  EXPECT_THAT(LinesIn("0 3DFACE|8 0|10 0|20 0|11 10|21 0|12 10|22 10|13 0|23 10"),
              ElementsAre("0,0 10,0", "10,0 10,10", "10,10 0,10", "0,10 0,0"));
}

TEST(PlanLines, HolesOfAHatchHaveEdgesToo) {
  EXPECT_EQ(
      LinesIn("0 HATCH|8 0|10 0|20 0|30 0|2 SOLID|70 1|71 0|91 2|92 3|72 0|73 1|93 4|10 0|20 0|10 9|20 0|"
              "10 9|20 9|10 0|20 9|97 0|92 2|72 0|73 1|93 4|10 3|20 3|10 6|20 3|10 6|20 6|10 3|20 6|97 0|"
              "75 0|76 1|98 0")
          .size(),
      8U);
}

// A letter counts for 0.9 of the height: three of them, 10 high, are 27 wide.
TEST(PlanLines, TextIsABoxThatTurnsWithIt) {
  EXPECT_THAT(LinesIn("0 TEXT|8 0|10 100|20 50|40 10|1 ABC"), ElementsAre("100,50 127,60 t"));
  EXPECT_THAT(LinesIn("0 TEXT|8 0|10 100|20 50|40 10|1 ABC|50 90"), ElementsAre("90,50 100,77 t"));
}

// Rows are 1.6 heights: two of them, 10 high, 32; "ABC\PDEF" has 8 letters, 4 a row or 36 wide.
TEST(PlanLines, TextOfSeveralRowsLiesAroundItsPoint) {
  EXPECT_THAT(LinesIn("0 MTEXT|8 0|10 100|20 50|40 10|71 1|1 ABC\\PDEF"), ElementsAre("100,18 136,50 t"));
  EXPECT_THAT(LinesIn("0 MTEXT|8 0|10 100|20 50|40 10|71 5|1 ABC\\PDEF"), ElementsAre("82,34 118,66 t"));
}

TEST(PlanLines, EntitiesWithoutLinesHaveNone) {
  EXPECT_THAT(LinesIn("0 POINT|8 0|10 1|20 1"), IsEmpty());
  EXPECT_THAT(LinesIn("0 INSERT|8 0|2 MISSING|10 0|20 0"), IsEmpty());
}

TEST(PlanLines, OnlyThoseNearAnAreaAndNotPassedAreGiven) {
  const dxf::Document drawing = Drawing(
      "", Groups("0 LINE|8 0|10 0|20 0|11 1|21 0|0 LINE|8 0|10 50|20 0|11 51|21 0|0 LINE|8 0|10 0|20 1|"
                 "11 1|21 1"));
  const PlanIndex near(std::vector<PlanBox>{{0, 0, 10, 10}});
  EXPECT_THAT(Told(PlanLinesIn(drawing, {&drawing.Entities()[2]}, near)), ElementsAre("0,0 1,0"));
}

class PlanLinesOfBlocks : public testing::Test {
 protected:
  // A block SIGN with a line, a block TWICE that inserts it at 100, and one that inserts itself.
  static std::vector<std::string> LinesIn(const std::string& entities) {
    const std::string sections =
        "0 SECTION|2 HEADER|9 $ACADVER|1 AC1015|0 ENDSEC|0 SECTION|2 BLOCKS|"
        "0 BLOCK|2 SIGN|10 0|20 0|30 0|0 LINE|8 0|10 0|20 0|11 5|21 5|0 ENDBLK|"
        "0 BLOCK|2 TWICE|10 0|20 0|30 0|0 INSERT|8 0|2 SIGN|10 100|20 0|0 ENDBLK|"
        "0 BLOCK|2 SELF|10 0|20 0|30 0|0 INSERT|8 0|2 SELF|10 1|20 0|0 ENDBLK|0 ENDSEC|"
        "0 SECTION|2 ENTITIES|" +
        entities + "|0 ENDSEC|0 EOF";
    return Told(PlanLinesIn(dxf::Document::FromText("test.dxf", Groups(sections)), {}, EVERYWHERE));
  }
};

TEST_F(PlanLinesOfBlocks, AreWhereTheBlockIsInserted) {
  EXPECT_THAT(LinesIn("0 INSERT|8 0|2 SIGN|10 10|20 20|70 2|44 50"),
              ElementsAre("10,20 15,25", "60,20 65,25"));
  EXPECT_THAT(LinesIn("0 INSERT|8 0|2 TWICE|10 10|20 20"), ElementsAre("110,20 115,25"));
  EXPECT_THAT(LinesIn("0 DIMENSION|8 0|2 SIGN|10 10|20 20"), ElementsAre("0,0 5,5"));
}

TEST_F(PlanLinesOfBlocks, BlockThatInsertsItselfComesToAnEnd) {
  EXPECT_THAT(LinesIn("0 INSERT|8 0|2 SELF|10 0|20 0"), IsEmpty());
}

}  // namespace
}  // namespace teskarlt
