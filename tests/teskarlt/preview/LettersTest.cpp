// LettersTest.cpp - letters as strokes.
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "teskarlt/preview/Letters.h"

namespace teskarlt::preview {
namespace {

TEST(StrokesOf, EveryKnownLetterIsDrawnWithinItsPlace) {
  for (const char letter : std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-./_")) {
    const auto strokes = StrokesOf(std::string(1, letter));
    EXPECT_FALSE(strokes.empty()) << letter;
    for (const auto& stroke : strokes) {
      EXPECT_GE(stroke.size(), 2U) << letter;
      EXPECT_TRUE(std::all_of(stroke.begin(), stroke.end(), [](const geometry::Vec3& point) {
        return std::abs(point.x) <= 0.5 && std::abs(point.y) <= 0.5;
      })) << letter;
    }
  }
}

TEST(StrokesOf, SmallLettersAreCapitals) {
  EXPECT_EQ(StrokesOf("w").size(), StrokesOf("W").size());
  EXPECT_EQ(StrokesOf("h").size(), 3U);
}

TEST(StrokesOf, OtherCharactersAreLeftBlank) {
  EXPECT_TRUE(StrokesOf("?").empty());
  EXPECT_EQ(StrokesOf("L?").size(), 1U);
}

}  // namespace
}  // namespace teskarlt::preview
