// WindowConditionTest.cpp - what the fields of windows must be for a command to work on them.
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/windows/WindowCondition.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

// Whether the condition holds for a window 0.78 m wide and 1.4 m long with the opening code D and the texts
// "Maker and Son" and "OL 78x118".
bool Holds(const std::string& condition, bool isComplete = true, LengthStyle lengths = LengthStyle::Metres) {
  const dxf::Document drawing = House();
  DrawnWindow window;
  window.isComplete = isComplete;
  window.text1 = "Maker and Son";
  window.text2 = "OL 78x118";
  WindowReading reading;
  reading.params.width = 0.78;
  reading.params.length = 1.4;
  reading.params.widthAnchor = 2;
  reading.params.openingCode[0] = 'D';
  return WindowCondition(condition, lengths).Holds(drawing, window, reading);
}

std::string RefusalOfCondition(const std::string& condition) {
  return RefusalOf([&] { WindowCondition{condition}; });
}

TEST(WindowCondition, EachSignComparesNumbers) {
  EXPECT_TRUE(Holds("width<0.8"));
  EXPECT_FALSE(Holds("width<0.78"));
  EXPECT_TRUE(Holds("width<=0.78"));
  EXPECT_TRUE(Holds("width>=0.78"));
  EXPECT_FALSE(Holds("width>0.78"));
  EXPECT_TRUE(Holds("width!=0.8"));
}

TEST(WindowCondition, NumbersWithinAMicrometreAreEqual) {
  EXPECT_TRUE(Holds("width=0.7800001"));
  EXPECT_FALSE(Holds("width=0.78001"));
}

// 0.78 m are 2'-6.7".
TEST(WindowCondition, LengthsMayBeFeetAndInches) {
  EXPECT_TRUE(Holds("width<2'-7\" and width>30.5\""));
  EXPECT_FALSE(Holds("width<2'-6\""));
  EXPECT_TRUE(Holds("width<2.6 and width>2.5 and widthAnchor=2", true, LengthStyle::FeetAndInches));
}

TEST(WindowCondition, WholeNumbersAreCompared) {
  EXPECT_TRUE(Holds("widthAnchor = 2"));
  EXPECT_FALSE(Holds("widthAnchor > 2"));
}

TEST(WindowCondition, TextsAreEqualOrNot) {
  EXPECT_TRUE(Holds("openingCode=D"));
  EXPECT_TRUE(Holds("text2!=OL 78x140"));
  EXPECT_FALSE(Holds("text2 = OL"));
}

TEST(WindowCondition, AllComparisonsMustHold) {
  EXPECT_TRUE(Holds("width<0.8 and length>1 and openingCode=D"));
  EXPECT_FALSE(Holds("width<0.8 and length>2"));
}

TEST(WindowCondition, TextInQuotationMarksMayHoldTheWordAnd) {
  EXPECT_TRUE(Holds("text1=\"Maker and Son\" and width<1"));
  EXPECT_TRUE(Holds("text1='Maker and Son'"));
}

TEST(WindowCondition, WindowWithADamagedDescriptionMeetsNone) {
  EXPECT_FALSE(Holds("width!=2", false));
}

TEST(WindowCondition, UnknownFieldIsRefusedByName) {
  EXPECT_EQ(RefusalOfCondition("widht<0.8"),
            "--where widht<0.8: there is no field \"widht\"; teskarlt insert --fields lists them");
}

TEST(WindowCondition, TextIsNotComparedAsNumber) {
  EXPECT_THAT(RefusalOfCondition("text1<5"), HasSubstr("text1 is a text, which can only be = or != another"));
  EXPECT_THAT(RefusalOfCondition("width<wide"), HasSubstr("width is a number, and \"wide\" is none"));
  EXPECT_THAT(RefusalOfCondition("width=0,8"), HasSubstr("\"0,8\" is none"));
}

TEST(WindowCondition, PointIsNotCompared) {
  EXPECT_THAT(RefusalOfCondition("storedPoint=0"), HasSubstr("storedPoint is a point"));
}

TEST(WindowCondition, MalformedConditionIsRefused) {
  for (const char* text : {"width", "<0.8", "width!0.8", "width<0.8 and", "width<0.8 and ", " "})
    EXPECT_THAT(RefusalOfCondition(text), HasSubstr("--where")) << text;
  EXPECT_THAT(RefusalOfCondition("text1=\"a"), HasSubstr("a quotation mark is not closed"));
  EXPECT_THAT(RefusalOfCondition("text1=\"a\" b"), HasSubstr("comes \"and\""));
}

}  // namespace
}  // namespace teskarlt
