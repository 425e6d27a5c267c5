// ExtendedDataTest.cpp - the bytes that tags of extended data take.
#include <gtest/gtest.h>

#include "teskarlt/dxf/tags/ExtendedData.h"

namespace teskarlt::dxf {
namespace {

// Each takes 2 bytes for its code.

TEST(ExtendedSize, TextTakesItsBytesAndAZero) {
  EXPECT_EQ(ExtendedSize(1000, 5), 2 + 5 + 1U);
  EXPECT_EQ(ExtendedSize(1001, 4), 2 + 4 + 1U);
  EXPECT_EQ(ExtendedSize(1002, 1), 2 + 1 + 1U);
}

TEST(ExtendedSize, NumbersTakeWhatTheyNeedAsBytes) {
  EXPECT_EQ(ExtendedSize(1040, 3), 2 + 8U);
  EXPECT_EQ(ExtendedSize(1041, 17), 2 + 8U);
  EXPECT_EQ(ExtendedSize(1070, 1), 2 + 2U);
  EXPECT_EQ(ExtendedSize(1071, 1), 2 + 4U);
}

TEST(ExtendedSize, PointIsCountedAtItsX) {
  for (const int x : {1010, 1011, 1012, 1013}) {
    EXPECT_EQ(ExtendedSize(x, 3), 2 + 3 * 8U) << x;
    EXPECT_EQ(ExtendedSize(x + 10, 3), 0U) << x;
    EXPECT_EQ(ExtendedSize(x + 20, 3), 0U) << x;
  }
}

TEST(ExtendedSize, HandleTakesEightBytes) {
  EXPECT_EQ(ExtendedSize(1005, 2), 2 + 8U);
}

TEST(ExtendedSize, TwoDigitsOfABinaryValueAreAByte) {
  EXPECT_EQ(ExtendedSize(1004, 254), 2 + 127U);
}

}  // namespace
}  // namespace teskarlt::dxf
