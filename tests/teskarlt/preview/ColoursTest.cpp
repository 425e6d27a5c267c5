// ColoursTest.cpp - colours by number, and how they are shown.
#include <gtest/gtest.h>

#include "teskarlt/preview/Colours.h"

namespace teskarlt::preview {
namespace {

TEST(ColourOfNumber, FirstNineAreFixed) {
  EXPECT_EQ(Hex(ColourOfNumber(1)), "#ff0000");
  EXPECT_EQ(Hex(ColourOfNumber(4)), "#00ffff");
  EXPECT_EQ(Hex(ColourOfNumber(7)), "#ffffff");
  EXPECT_EQ(Hex(ColourOfNumber(9)), "#c0c0c0");
}

TEST(ColourOfNumber, HuesStepBy15Degrees) {
  EXPECT_EQ(Hex(ColourOfNumber(10)), "#ff0000");
  EXPECT_EQ(Hex(ColourOfNumber(20)), "#ff3f00");
  EXPECT_EQ(Hex(ColourOfNumber(30)), "#ff7f00");
  EXPECT_EQ(Hex(ColourOfNumber(130)), "#00ffff");
  EXPECT_EQ(Hex(ColourOfNumber(240)), "#ff003f");
}

TEST(ColourOfNumber, ShadesOfAHue) {
  EXPECT_EQ(Hex(ColourOfNumber(11)), "#ff7f7f");
  EXPECT_EQ(Hex(ColourOfNumber(12)), "#a50000");
  EXPECT_EQ(Hex(ColourOfNumber(23)), "#a56752");
  EXPECT_EQ(Hex(ColourOfNumber(18)), "#260000");
}

TEST(ColourOfNumber, LastSixAreGreys) {
  EXPECT_EQ(Hex(ColourOfNumber(250)), "#333333");
  EXPECT_EQ(Hex(ColourOfNumber(255)), "#ffffff");
}

TEST(ColourOfNumber, UnknownNumbersAreWhite) {
  EXPECT_EQ(ColourOfNumber(0), ColourOfNumber(7));
  EXPECT_EQ(ColourOfNumber(-3), ColourOfNumber(7));
  EXPECT_EQ(ColourOfNumber(300), ColourOfNumber(7));
}

TEST(ColourOfValue, IsRedGreenBlue) {
  EXPECT_EQ(Hex(ColourOfValue(0x123456)), "#123456");
}

TEST(Ink, WhiteTurnsDarkAndRedStays) {
  EXPECT_EQ(Hex(Ink(ColourOfNumber(7))), "#222222");
  EXPECT_EQ(Hex(Ink(ColourOfNumber(1))), "#ff0000");
}

TEST(Ink, YellowIsDarkEnoughToBeSeen) {
  const Colour ink = Ink(ColourOfNumber(2));
  EXPECT_LT(ink.red, 150);
  EXPECT_EQ(ink.red, ink.green);
  EXPECT_EQ(ink.blue, 0);
}

TEST(Lit, StopsAtWhite) {
  EXPECT_EQ(Hex(Lit({100, 200, 0}, 2)), "#c8ff00");
}

}  // namespace
}  // namespace teskarlt::preview
