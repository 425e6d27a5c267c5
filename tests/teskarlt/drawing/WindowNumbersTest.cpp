// WindowNumbersTest.cpp - the numbers that windows carry.
#include <gtest/gtest.h>

#include "teskarlt/drawing/WindowNumbers.h"

namespace teskarlt {
namespace {

TEST(WindowNumbers, FirstFreeNumberOfNoneIsOne) {
  EXPECT_EQ(WindowNumbers().Free(), 1);
}

TEST(WindowNumbers, GapIsFilledFirst) {
  WindowNumbers numbers{1, 2, 5};
  EXPECT_EQ(numbers.Free(), 3);
  numbers.Take(3);
  numbers.Take(4);
  EXPECT_EQ(numbers.Free(), 6);
}

TEST(WindowNumbers, NumberBelowOneIsTakenAndNeverGivenOut) {
  WindowNumbers numbers{0, -7};
  EXPECT_TRUE(numbers.IsTaken(0));
  EXPECT_TRUE(numbers.IsTaken(-7));
  EXPECT_EQ(numbers.Free(), 1);
}

}  // namespace
}  // namespace teskarlt
