// OpeningSymbolTest.cpp - the lines of the opening symbol.
//
// The frame is 100 x 200, the sash inset by 10: its side
// middles are (10, 100), (50, 190), (90, 100) and (50, 10).
#include <cstring>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "arx/BvMakeWindow/OpeningSymbol.h"
#include "tests/arx/BvMakeWindow/DrawnLines.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RoundRecord.h"

namespace brevanta {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OpeningSymbolTest : public testing::Test {
 protected:
  void SetUp() override {
    recording_host::Reset();
    maker.params = &record;
    maker.hostTable = recording_host::Table();
    for (const GcGePoint3d& p : {GcGePoint3d{10, 10, 1}, {10, 190, 2}, {90, 190, 3}, {90, 10, 4}})
      maker.innerOutline.Append(p);
    // Entries 1 and 2 are read by nothing.
    for (const GcGePoint3d& p :
         {GcGePoint3d{0, 0, 5}, {-1, -1, -1}, {-2, -2, -2}, {100, 0, 8}, {0, 200, 6}, {100, 200, 7}})
      maker.outerOutline.Append(p);
  }

  void Draw(const char* code) {
    round_record::SetText(code, record.openingCode);
    DrawOpeningSymbol(maker);
  }
  // The lines behind those of the two outlines.
  std::vector<std::string> Marks(const char* code) {
    Draw(code);
    return DrawnLines(8);
  }

  WindowParams record = round_record::OnSlope();
  CbvMakeWindow maker;
};

TEST_F(OpeningSymbolTest, EmptyCodeDrawsFrameAndSashOnly) {
  Draw("");
  EXPECT_THAT(DrawnLines(), ElementsAre("0,200,6 > 0,0,5", "0,0,5 > 100,0,8", "100,0,8 > 100,200,7",
                                        "100,200,7 > 0,200,6", "10,10,1 > 10,190,2", "10,190,2 > 90,190,3",
                                        "90,190,3 > 90,10,4", "90,10,4 > 10,10,1"));
}

TEST_F(OpeningSymbolTest, SashOutlineIsClosedByAFifthPoint) {
  Draw("");
  ASSERT_EQ(maker.innerOutline.Length(), 5);
  EXPECT_EQ(maker.innerOutline[4].y, 10);
  EXPECT_EQ(maker.innerOutline[4].z, 1);
}

TEST_F(OpeningSymbolTest, LetterBPointsUpTheSlope) {
  EXPECT_THAT(Marks("B"), ElementsAre("10,10,1 > 50,190,2.5", "50,190,2.5 > 90,10,4"));
}

TEST_F(OpeningSymbolTest, LetterBWithIIsDashed) {
  EXPECT_THAT(Marks("BI"), ElementsAre("10,10,1 > 50,190,2.5 DASHED", "50,190,2.5 > 90,10,4 DASHED"));
}

TEST_F(OpeningSymbolTest, LetterBWithOIsSolidBesideADashedLetter) {
  EXPECT_THAT(Marks("BOCI"), ElementsAre("10,10,1 > 50,190,2.5", "50,190,2.5 > 90,10,4",
                                         "10,190,2 > 50,10,2.5 DASHED", "50,10,2.5 > 90,190,3 DASHED"));
}

TEST_F(OpeningSymbolTest, LetterCPointsDownTheSlope) {
  EXPECT_THAT(Marks("C"), ElementsAre("10,190,2 > 50,10,2.5", "50,10,2.5 > 90,190,3"));
}

TEST_F(OpeningSymbolTest, LetterDIsADiamondDashedByHalf) {
  EXPECT_THAT(Marks("D"), ElementsAre("10,100,1.5 > 50,190,2.5 DASHED", "50,190,2.5 > 90,100,3.5 DASHED",
                                      "90,100,3.5 > 50,10,2.5", "50,10,2.5 > 10,100,1.5"));
}

TEST_F(OpeningSymbolTest, LetterEIsHungOnTheLeft) {
  const auto left = ElementsAre("10,10,1 > 90,100,3.5", "90,100,3.5 > 10,190,2");
  EXPECT_THAT(Marks("E"), left);
}

TEST_F(OpeningSymbolTest, LetterEWithLIsHungOnTheLeft) {
  EXPECT_THAT(Marks("EL"), ElementsAre("10,10,1 > 90,100,3.5", "90,100,3.5 > 10,190,2"));
}

TEST_F(OpeningSymbolTest, LetterEWithRIsHungOnTheRight) {
  EXPECT_THAT(Marks("ER"), ElementsAre("90,190,3 > 10,100,1.5", "10,100,1.5 > 90,10,4"));
}

TEST_F(OpeningSymbolTest, LetterEWithSideAndIIsDashed) {
  EXPECT_THAT(Marks("ERI"), ElementsAre("90,190,3 > 10,100,1.5 DASHED", "10,100,1.5 > 90,10,4 DASHED"));
}

TEST_F(OpeningSymbolTest, SeveralLettersDrawSeveralMarksInTheOrderBCDE) {
  EXPECT_THAT(Marks("ECB"),
              ElementsAre("10,10,1 > 50,190,2.5", "50,190,2.5 > 90,10,4", "10,190,2 > 50,10,2.5",
                          "50,10,2.5 > 90,190,3", "10,10,1 > 90,100,3.5", "90,100,3.5 > 10,190,2"));
}

TEST_F(OpeningSymbolTest, LetterDLeavesTheMarksOfPlainLettersSolid) {
  Marks("BD");
  EXPECT_THAT(DrawnLines(8)[0], "10,10,1 > 50,190,2.5");
}

TEST_F(OpeningSymbolTest, UnknownLettersDrawNothing) {
  EXPECT_THAT(Marks("AXZ"), IsEmpty());
}

TEST_F(OpeningSymbolTest, CodeThatFillsItsFieldIsReadToTheFieldsEnd) {
  std::memcpy(record.openingCode, "XXXXXXXXXXB", 11);  // no terminator
  record.padding727 = 'I';
  DrawOpeningSymbol(maker);
  EXPECT_THAT(DrawnLines(8), ElementsAre("10,10,1 > 50,190,2.5", "50,190,2.5 > 90,10,4"));
}

TEST_F(OpeningSymbolTest, LinetypesOfAnEarlierSymbolAreForgotten) {
  std::strcpy(maker.currentLinetype, "OLD");
  std::strcpy(maker.symbolLinetype, "OLD");
  Draw("B");
  EXPECT_THAT(DrawnLines(), testing::Each(testing::Not(testing::HasSubstr("OLD"))));
  EXPECT_STREQ(maker.symbolLinetype, "");
}

TEST_F(OpeningSymbolTest, LastLetterLeavesItsLinetypeAndHinge) {
  Draw("ERI");
  EXPECT_STREQ(maker.currentLinetype, "DASHED");
  EXPECT_STREQ(maker.symbolLinetype, "DASHED");
  EXPECT_STREQ(maker.hingeSide, "R");
}

TEST_F(OpeningSymbolTest, LinesHaveNoColour) {
  Draw("D");
  for (const auto& line : recording_host::Lines())
    EXPECT_FALSE(node_list::Has(line, 62));
}

}  // namespace
}  // namespace brevanta
