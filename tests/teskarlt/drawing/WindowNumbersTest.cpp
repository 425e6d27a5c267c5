// WindowNumbersTest.cpp - the numbers that windows carry.
#include <limits>

#include <gtest/gtest.h>

#include "teskarlt/drawing/WindowNumbers.h"

namespace teskarlt {
namespace {

TEST(WindowNumbers, FirstFreeNumberOfNoneIsOne) {
  EXPECT_EQ(WindowNumbers().Free(), 1);
}

TEST(WindowNumbers, NumberOfAGapIsNotGivenAgain) {
  WindowNumbers numbers{1, 2, 5};
  EXPECT_EQ(numbers.Free(), 6);
  numbers.Take(6);
  EXPECT_EQ(numbers.Free(), 7);
}

TEST(WindowNumbers, NumberThatIsKeptTakenIsNotGivenAgain) {
  WindowNumbers numbers{2};
  numbers.KeepTaken(5);
  numbers.KeepTaken(1);
  EXPECT_EQ(numbers.Free(), 6);
  EXPECT_FALSE(numbers.IsTaken(5));
}

TEST(WindowNumbers, NumberOfAWindowThatIsGoneIsFreeAndNotGivenOut) {
  WindowNumbers numbers{1, 2};
  numbers.Release(2);
  EXPECT_FALSE(numbers.IsTaken(2));
  EXPECT_EQ(numbers.Highest(), 2);
  EXPECT_EQ(numbers.Free(), 3);
}

TEST(WindowNumbers, GapIsTheLastResort) {
  EXPECT_EQ((WindowNumbers{1, 2, std::numeric_limits<std::int32_t>::max()}.Free()), 3);
}

TEST(WindowNumbers, NumberBelowOneIsTakenAndNeverGivenOut) {
  WindowNumbers numbers{0, -7};
  EXPECT_TRUE(numbers.IsTaken(0));
  EXPECT_TRUE(numbers.IsTaken(-7));
  EXPECT_EQ(numbers.Free(), 1);
}

}  // namespace
}  // namespace teskarlt
