// FeetInchesTest.cpp - lengths in feet and inches.
#include <gtest/gtest.h>

#include "teskarlt/drawing/FeetInches.h"

namespace teskarlt {
namespace {

TEST(ParseFeetInches, TakesTheFormsThatPeopleWrite) {
  const double length = 64.5 * 0.0254;  // five feet four and a half inches
  for (const char* text :
       {"5'-4 1/2\"", "5' 4 1/2\"", "5'4.5\"", "64.5\"", "64 1/2\"", "64-1/2\"", "5.375'", " 5'-4 1/2 \" "})
    EXPECT_NEAR(ParseFeetInches(text).value_or(0), length, 1e-12) << text;
}

TEST(ParseFeetInches, TakesFeetOrInchesAlone) {
  EXPECT_EQ(ParseFeetInches("5'"), 5 * 0.3048);
  EXPECT_EQ(ParseFeetInches("1/2\""), 0.5 * 0.0254);
  EXPECT_EQ(ParseFeetInches("-3\""), -3 * 0.0254);
}

TEST(ParseFeetInches, LeavesWhatHasNoMark) {
  for (const char* text : {"", "0.94", "5", "5 1/2", "-"})
    EXPECT_EQ(ParseFeetInches(text), std::nullopt) << text;
}

TEST(ParseFeetInches, RefusesWhatIsNoLength) {
  for (const char* text :
       {"'", "\"", "5'x\"", "5'4'", "1/0\"", "/2\"", "--3\"", "5' 4\"\"", "1e3'", "5'-", "3'-14\""})
    EXPECT_EQ(ParseFeetInches(text), std::nullopt) << text;
}

TEST(ParseLengthWithUnit, TakesANumberWithItsUnit) {
  EXPECT_EQ(ParseLengthWithUnit("36in"), 36 * 0.0254);
  EXPECT_EQ(ParseLengthWithUnit("3 ft"), 3 * 0.3048);
  EXPECT_EQ(ParseLengthWithUnit(" 762mm"), 762 * 0.001);
  EXPECT_EQ(ParseLengthWithUnit("76.2 cm"), 76.2 * 0.01);
  EXPECT_EQ(ParseLengthWithUnit("-0.762m"), -0.762);
  EXPECT_EQ(ParseLengthWithUnit("5'-4 1/2\""), 64.5 * 0.0254);
}

TEST(ParseLengthWithUnit, LeavesWhatHasNoUnitOrNoNumber) {
  for (const char* text : {"36", "in", "mm", "36 yd", "3x6in", "m36", "infin", "1/2in"})
    EXPECT_EQ(ParseLengthWithUnit(text), std::nullopt) << text;
}

TEST(FeetInchesText, WritesFeetInchesAndTheShortestFraction) {
  EXPECT_EQ(FeetInchesText(64.5 * 0.0254), "5'-4 1/2\"");
  EXPECT_EQ(FeetInchesText(0.3048), "1'-0\"");
  EXPECT_EQ(FeetInchesText(0.0254 / 64), "0 1/64\"");
  EXPECT_EQ(FeetInchesText(0), "0\"");
  EXPECT_EQ(FeetInchesText(-13 * 0.0254), "-1'-1\"");
}

TEST(FeetInchesText, MarksWhatIsRounded) {
  EXPECT_EQ(FeetInchesText(0.94), "~3'-1 1/64\"");  // 37.0079 inches, nearest 37 1/64 = 37.0156
}

TEST(FeetInchesText, CarriesIntoTheNextFoot) {
  EXPECT_EQ(FeetInchesText(12 * 0.0254 - 1e-9), "1'-0\"");
}

TEST(FeetInchesText, IsReadBackAsItWasWritten) {
  for (int parts = 0; parts < 2000; parts += 7) {
    const double metres = parts * 0.0254 / 64;
    EXPECT_NEAR(ParseFeetInches(FeetInchesText(metres)).value_or(-1), metres, 1e-12) << parts;
  }
}

}  // namespace
}  // namespace teskarlt
