// ConcatStringsTest.cpp - joining texts within a bound.
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "lttools/SUPP.h"

namespace lttools {
namespace {

TEST(ConcatStrings, JoinsAllPieces) {
  char text[21];
  EXPECT_EQ(ConcatStrings(text, 20, false, {"VYROBCE", "+ ", "X"}), 0);
  EXPECT_STREQ(text, "VYROBCE+ X");
}

TEST(ConcatStrings, AppendsBehindWhatIsThere) {
  char text[21] = "abc";
  EXPECT_EQ(ConcatStrings(text, 20, true, {"def", "g"}), 0);
  EXPECT_STREQ(text, "abcdefg");
}

TEST(ConcatStrings, WithoutAppendWhatIsThereIsReplaced) {
  char text[21] = "abc";
  EXPECT_EQ(ConcatStrings(text, 20, false, {"x"}), 0);
  EXPECT_STREQ(text, "x");
}

TEST(ConcatStrings, PiecesThatDoNotFitAreCut) {
  char text[6];
  EXPECT_EQ(ConcatStrings(text, 5, false, {"abc", "def", "ghi"}), 0);
  EXPECT_STREQ(text, "abcde");
}

TEST(ConcatStrings, TerminatorStandsAtThePositionOfTheSizeAndNothingBehindIt) {
  char text[8];
  std::memset(text, 'z', sizeof text);
  ConcatStrings(text, 5, false, {"ab"});
  EXPECT_EQ(text[2], '\0');
  EXPECT_EQ(text[5], '\0');
  EXPECT_EQ(text[6], 'z');
}

TEST(ConcatStrings, LongerTextThanTheSizeIsCutThereWhenAppending) {
  char text[9] = "abcdefgh";
  EXPECT_EQ(ConcatStrings(text, 5, true, {"x"}), 0);
  EXPECT_STREQ(text, "abcde");
}

TEST(ConcatStrings, NoSizeOrNoPiecesAreRefused) {
  char text[4] = "abc";
  EXPECT_EQ(ConcatStrings(text, 0, false, {"x"}), -1);
  EXPECT_EQ(ConcatStrings(text, -1, false, {"x"}), -1);
  EXPECT_EQ(ConcatStrings(text, 3, false, {}), -1);
  EXPECT_STREQ(text, "abc");
}

TEST(ConcatStrings, PieceOfAMegabyteStaysWithinTheBuffer) {
  char text[WORKING_BUFFER_SIZE];
  const std::string piece(1000000, 'a');
  EXPECT_EQ(ConcatStrings(text, sizeof text - 1, false, {"*", piece.c_str(), "; *"}), 0);
  EXPECT_EQ(std::strlen(text), 511U);
}

}  // namespace
}  // namespace lttools
