// LengthWordsTest.cpp - lengths for people.
#include <gtest/gtest.h>

#include "teskarlt/commands/LengthWords.h"

namespace teskarlt {
namespace {

TEST(LengthWords, MetresAreToTheMillimetre) {
  const LengthWords words(LengthStyle::Metres);
  EXPECT_EQ(words.Column("width"), "width m");
  EXPECT_EQ(words.Spoken(2.3456), "2.346 m");
  EXPECT_EQ(words.SpokenSize(0.94), "0.94 m");
  EXPECT_EQ(words.AreaCell(2), "2.00");
}

TEST(LengthWords, FeetAndInchesNeedNoSign) {
  const LengthWords words(LengthStyle::FeetAndInches);
  EXPECT_EQ(words.Column("width"), "width ft-in");
  EXPECT_EQ(words.Spoken(0.3048), "1'-0\"");
  EXPECT_EQ(words.AreaColumn(), "area sq ft");
  EXPECT_EQ(words.AreaCell(0.3048 * 0.3048), "1.00");
}

TEST(LengthWords, UnitThatIsNotStatedIsNotNamed) {
  const LengthWords words(LengthStyle::FeetAndInches, false);
  EXPECT_EQ(words.Column("width"), "width");
  EXPECT_EQ(words.AreaColumn(), "area");
  EXPECT_EQ(words.Spoken(940), "940.000 units");
}

}  // namespace
}  // namespace teskarlt
