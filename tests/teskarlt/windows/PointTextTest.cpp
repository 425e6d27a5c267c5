// PointTextTest.cpp - points as users write them.
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/PointText.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

TEST(ParsePlanPoint, TakesTwoNumbers) {
  const PlanPoint point = ParsePlanPoint("--at", " -3000.5, 2e3");
  EXPECT_EQ(point.x, -3000.5);
  EXPECT_EQ(point.y, 2000.0);
  EXPECT_EQ(point.text, " -3000.5, 2e3");
}

TEST(ParsePlanPoint, AnythingElseIsAnErrorThatNamesTheOption) {
  for (const char* text : {"", "1", "1,", "1,2,3", "a,b", "1;2", "nan,1", "inf,1", "1e999,1"}) {
    EXPECT_THROW(ParsePlanPoint("--at", text), Error) << text;
  }
  try {
    ParsePlanPoint("--at", "1");
    FAIL();
  } catch (const Error& error) {
    EXPECT_STREQ(error.what(), "--at 1: a point is two finite numbers, X,Y, in drawing units");
  }
}

TEST(ParsePlanPoint, ExplainsADecimalComma) {
  for (const char* text : {"3000,5 2000", "3000,5,2000,5", "3000,5;2000"}) {
    try {
      ParsePlanPoint("--at", text);
      FAIL();
    } catch (const Error& error) {
      EXPECT_STREQ(error.what(), (std::string("--at ") + text +
                                  ": a point is two finite numbers, X,Y, in drawing units; decimals stand "
                                  "behind a point, as in 3000.5,2000")
                                     .c_str());
    }
  }
}

TEST(ParseLength, TakesMetresFeetAndMarks) {
  EXPECT_EQ(ParseLength("--sill", "2.5", LengthStyle::Metres), 2.5);
  EXPECT_EQ(ParseLength("--sill", "10", LengthStyle::FeetAndInches), 3.048);
  EXPECT_EQ(ParseLength("--sill", "10'", LengthStyle::Metres), 3.048);
  EXPECT_THROW(ParseLength("--sill", "0,5", LengthStyle::Metres), Error);
}

TEST(ParsePoint, TakesThreeNumbers) {
  const geometry::Vec3 point = ParsePoint("--roof", "1,2,-3");
  EXPECT_EQ(point.x, 1);
  EXPECT_EQ(point.y, 2);
  EXPECT_EQ(point.z, -3);
  EXPECT_THROW(ParsePoint("--roof", "1,2"), Error);
}

TEST(ParseSlopeMove, TakesTwoNumbers) {
  EXPECT_EQ(ParseSlopeMove("--by", "0.2,-1", LengthStyle::Metres).across, 0.2);
  EXPECT_EQ(ParseSlopeMove("--by", "0.2,-1", LengthStyle::Metres).up, -1);
  EXPECT_EQ(RefusalOf([] { ParseSlopeMove("--by", "0.2", LengthStyle::Metres); }),
            "--by 0.2: a move is two lengths, ALONG,UP, along the eaves and up the slope");
  EXPECT_THAT(RefusalOf([] { ParseSlopeMove("--by", "0,2,0", LengthStyle::Metres); }),
              testing::HasSubstr("decimals stand behind a point, as in 0.2,0"));
}

TEST(ParseSlopeMove, TakesFeetAndInches) {
  EXPECT_EQ(ParseSlopeMove("--by", "2,-1", LengthStyle::FeetAndInches).across, 2 * METRES_PER_FOOT);
  EXPECT_DOUBLE_EQ(ParseSlopeMove("--by", "2,-1'-6\"", LengthStyle::FeetAndInches).up,
                   -1.5 * METRES_PER_FOOT);
  EXPECT_EQ(ParseSlopeMove("--by", "8 1/2\",0", LengthStyle::Metres).across, 8.5 * METRES_PER_INCH);
}

TEST(ParseDistance, IsAtLeastNothing) {
  EXPECT_EQ(ParseDistance("--gap", "0", LengthStyle::Metres), 0);
  EXPECT_EQ(ParseDistance("--gap", "2", LengthStyle::FeetAndInches), 2 * METRES_PER_FOOT);
  EXPECT_EQ(RefusalOf([] { ParseDistance("--gap", "-0.1", LengthStyle::Metres); }),
            "--gap -0.1: a distance is not negative");
  EXPECT_EQ(
      RefusalOf([] { ParseDistance("--gap", "x", LengthStyle::FeetAndInches); }),
      "--gap x: a length is a finite number of feet, or feet and inches with their marks, as 5'-4 1/2\"");
}

}  // namespace
}  // namespace teskarlt
