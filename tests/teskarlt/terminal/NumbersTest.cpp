// NumbersTest.cpp - coordinates on the command line.
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/terminal/Numbers.h"

namespace teskarlt {
namespace {

TEST(ParsePlanPoint, TakesTwoNumbers) {
  EXPECT_EQ(ParsePlanPoint("--at", "-3000.5,2e3"), (std::array{-3000.5, 2000.0}));
  EXPECT_EQ(ParsePlanPoint("--at", " 1 , 2 "), (std::array{1.0, 2.0}));
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

TEST(ParsePoint, TakesThreeNumbers) {
  const geometry::Vec3 point = ParsePoint("--roof", "1,2,-3");
  EXPECT_EQ(point.x, 1);
  EXPECT_EQ(point.y, 2);
  EXPECT_EQ(point.z, -3);
  EXPECT_THROW(ParsePoint("--roof", "1,2"), Error);
}

TEST(PlanExtents, FarFromTheOriginEveryUnitIsTold) {
  RoofFace face;
  face.corners = {{-743000000, -1043000000.5, 0}, {-742992000, -1042996000, 0}, {-742999000, -1043000000, 0}};
  EXPECT_EQ(PlanExtents({face}), "x -743000000 to -742992000, y -1043000000.5 to -1042996000");
}

}  // namespace
}  // namespace teskarlt
