// MatchWildcardTest.cpp - wildcard patterns and lists of them.
#include <random>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "lttools/SUPP.h"

namespace lttools {
namespace {

TEST(MatchWildcard, HashMatchesOneDigit) {
  EXPECT_EQ(MatchWildcard("12", "##"), 1);
  EXPECT_EQ(MatchWildcard("1a", "##"), 0);
  EXPECT_EQ(MatchWildcard("123", "##"), 0);
}

TEST(MatchWildcard, AtMatchesOneLetterAndQuestionMarkAnything) {
  EXPECT_EQ(MatchWildcard("ab", "@?"), 1);
  EXPECT_EQ(MatchWildcard("1b", "@?"), 0);
}

TEST(MatchWildcard, DotMatchesWhatIsNeitherLetterNorDigit) {
  EXPECT_EQ(MatchWildcard("a-", "@."), 1);
  EXPECT_EQ(MatchWildcard("ab", "@."), 0);
  EXPECT_EQ(MatchWildcard("a1", "@."), 0);
}

TEST(MatchWildcard, BytesBeyondAsciiAreNeitherLettersNorDigits) {
  EXPECT_EQ(MatchWildcard("\xC1", "@"), 0);
  EXPECT_EQ(MatchWildcard("\xC1", "."), 1);
}

TEST(MatchWildcard, LastStarMatchesAnyRestAndNothing) {
  EXPECT_EQ(MatchWildcard("ab", "a*"), 1);
  EXPECT_EQ(MatchWildcard("a", "a*"), 1);
  EXPECT_EQ(MatchWildcard("", "*"), 1);
}

TEST(MatchWildcard, StarInFrontSkipsARun) {
  EXPECT_EQ(MatchWildcard("abc", "*c"), 1);
  EXPECT_EQ(MatchWildcard("c", "*c"), 1);
  EXPECT_EQ(MatchWildcard("ab", "*c"), 0);
}

TEST(MatchWildcard, StarNeverTriesTheEmptyRest) {
  EXPECT_EQ(MatchWildcard("a", "a**"), 0);
  EXPECT_EQ(MatchWildcard("ab", "a**"), 1);
  EXPECT_EQ(MatchWildcard("ab", "ab*b"), 0);
}

TEST(MatchWildcard, PatternMatchesItsOwnText) {
  EXPECT_EQ(MatchWildcard("#", "#"), 1);
  EXPECT_EQ(MatchWildcard("@", "@"), 1);
  EXPECT_EQ(MatchWildcard("a**", "a**"), 1);
}

TEST(MatchWildcard, RestBehindAStarMayEqualThePatternToo) {
  EXPECT_EQ(MatchWildcard("x#", "*#"), 1);
  EXPECT_EQ(MatchWildcard("#x", "#x"), 1);
  EXPECT_EQ(MatchWildcard("x#y", "*#y"), 1);
  EXPECT_EQ(MatchWildcard("x#y", "?#y"), 0);
}

TEST(MatchWildcard, EmptyPatternMatchesTheEmptyTextOnly) {
  EXPECT_EQ(MatchWildcard("", ""), 1);
  EXPECT_EQ(MatchWildcard("a", ""), 0);
  EXPECT_EQ(MatchWildcard("", "a"), 0);
}

TEST(MatchWildcard, CaseCounts) {
  EXPECT_EQ(MatchWildcard("a", "A"), 0);
}

TEST(MatchWildcard, TextsAreCutToTheWorkingBuffer) {
  const std::string longest(511, 'a');
  EXPECT_EQ(MatchWildcard(longest + "b", longest), 1);
  EXPECT_EQ(MatchWildcard(longest, longest + "b"), 1);
  EXPECT_EQ(MatchWildcard(std::string(1000000, 'a'), std::string(1000000, '?')), 1);
}

TEST(MatchWildcard, ManyStarsStayQuick) {
  std::string pattern;
  for (int i = 0; i < 100; ++i)
    pattern += "*a";
  EXPECT_EQ(MatchWildcard(std::string(511, 'a'), pattern + "b"), 0);
}

// The rules one by one, without regard to time.
bool SlowMatch(std::string_view text, std::string_view pattern) {
  if (text == pattern) return true;
  if (pattern.empty()) return false;
  std::size_t i = 0;
  for (std::size_t j = 0;; ++i, ++j) {
    if (j == pattern.size()) return i == text.size();
    if (i == text.size()) return pattern.substr(j) == "*";
    const auto c = static_cast<unsigned char>(text[i]);
    switch (pattern[j]) {
      case '#':
        if (std::isdigit(c) == 0) return false;
        break;
      case '@':
        if (std::isalpha(c) == 0) return false;
        break;
      case '.':
        if (std::isalnum(c) != 0) return false;
        break;
      case '?':
        break;
      case '*':
        if (j + 1 == pattern.size()) return true;
        for (; i < text.size(); ++i)
          if (SlowMatch(text.substr(i), pattern.substr(j + 1))) return true;
        return false;
      default:
        if (pattern[j] != text[i]) return false;
    }
  }
}

TEST(MatchWildcard, AgreesWithTheSlowRulesOnRandomTexts) {
  constexpr std::string_view alphabet = "ab1-*#@.?*";
  std::mt19937 random(20);
  const auto make = [&](std::size_t longest, std::size_t letters) {
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text)
      c = alphabet[random() % letters];
    return text;
  };
  int matches = 0;
  for (int i = 0; i < 200000; ++i) {
    const std::string text = make(7, random() % 2 == 0 ? 4 : 7);
    const std::string pattern = make(6, alphabet.size());
    const bool expected = SlowMatch(text, pattern);
    ASSERT_EQ(MatchWildcard(text, pattern), expected ? 1 : 0) << "'" << text << "' '" << pattern << "'";
    matches += expected ? 1 : 0;
  }
  EXPECT_GT(matches, 10000);
}

TEST(MatchPatternList, OneOfThePatternsIsEnough) {
  EXPECT_EQ(MatchPatternList("X1", "Y*,X#"), 5100);
  EXPECT_EQ(MatchPatternList("Yes", "Y*,X#"), 5100);
  EXPECT_EQ(MatchPatternList("Z", "Y*,X#"), 0);
}

TEST(MatchPatternList, BlanksAroundCommasBelongToThePatterns) {
  EXPECT_EQ(MatchPatternList("X1", "Y*, X#"), 0);
  EXPECT_EQ(MatchPatternList(" X1", "Y*, X#"), 5100);
}

TEST(MatchPatternList, PatternBehindTheLastCommaMayBeEmpty) {
  EXPECT_EQ(MatchPatternList("", "A,"), 5100);
  EXPECT_EQ(MatchPatternList("B", "A,"), 0);
}

TEST(MatchPatternList, ListIsCutToTheWorkingBuffer) {
  const std::string list = std::string(510, 'x') + ",b";
  EXPECT_EQ(MatchPatternList("b", list), 0);
  EXPECT_EQ(MatchPatternList("", list), 5100);  // the cut left an empty second pattern
}

}  // namespace
}  // namespace lttools
