// OpeningCodeTest.cpp - the parser of the opening code.
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "arx/BvMakeWindow/OpeningSymbol.h"

namespace brevanta {
namespace {

// One for all calls: making one looks for its resource module.
CbvMakeWindow& Maker() {
  static CbvMakeWindow maker;
  return maker;
}

// What a call leaves: "no", or "dashed" or "solid" with the hinge side.
std::string Parse(const char* code, const char* letter, const char* symbolLinetype = "DASHED") {
  CbvMakeWindow& maker = Maker();
  std::strcpy(maker.currentLinetype, "LEFT OVER");
  std::strcpy(maker.symbolLinetype, symbolLinetype);
  std::strcpy(maker.hingeSide, "R");
  const bool found = ParseOpeningCode(maker, code, letter);
  const std::string linetype = maker.currentLinetype;
  EXPECT_TRUE(linetype.empty() || linetype == symbolLinetype) << linetype;
  return std::string(found ? "" : "no ") + (linetype.empty() ? "solid " : "dashed ") + maker.hingeSide;
}

TEST(ParseOpeningCode, MissingLetterStillResetsLinetypeAndHinge) {
  EXPECT_EQ(Parse("BI", "C"), "no solid L");
  EXPECT_EQ(Parse("", "D"), "no solid L");
}

TEST(ParseOpeningCode, CaseIsAsWritten) {
  EXPECT_EQ(Parse("b", "B"), "no solid L");
  EXPECT_EQ(Parse("Bi", "B"), "solid L");
}

TEST(ParseOpeningCode, LetterIsFoundAnywhere) {
  EXPECT_EQ(Parse("XX-CI", "C"), "dashed L");
}

TEST(ParseOpeningCode, LettersBAndCTakeTheSymbolLinetypeWithI) {
  EXPECT_EQ(Parse("BI", "B"), "dashed L");
  EXPECT_EQ(Parse("CI", "C"), "dashed L");
  EXPECT_EQ(Parse("BICO", "C"), "solid L");
}

TEST(ParseOpeningCode, IBeatsOWhenBothOccur) {
  EXPECT_EQ(Parse("BOBI", "B"), "dashed L");
  EXPECT_EQ(Parse("EOEI", "E"), "dashed L");
}

TEST(ParseOpeningCode, LetterDHasNoSuffixes) {
  EXPECT_EQ(Parse("DI", "D"), "solid L");
  EXPECT_EQ(Parse("DR", "D"), "solid L");
}

TEST(ParseOpeningCode, LetterETakesSideAndLinetypeInEitherOrder) {
  EXPECT_EQ(Parse("E", "E"), "solid L");
  EXPECT_EQ(Parse("EIR", "E"), "dashed R");
  EXPECT_EQ(Parse("ERI", "E"), "dashed R");
  EXPECT_EQ(Parse("EOR", "E"), "solid R");
  EXPECT_EQ(Parse("ELI", "E"), "dashed L");
}

TEST(ParseOpeningCode, LinetypeSuffixShadowsALaterSide) {
  EXPECT_EQ(Parse("EIXER", "E"), "dashed L");
}

TEST(ParseOpeningCode, EmptySymbolLinetypeIsCopiedToo) {
  EXPECT_EQ(Parse("BI", "B", ""), "solid L");
}

// The first row whose text occurs in the code decides.
struct Rule {
  const char* text;
  const char* result;
};

constexpr Rule RULES_B[] = {{"BI", "dashed L"}, {"B", "solid L"}};
constexpr Rule RULES_C[] = {{"CI", "dashed L"}, {"C", "solid L"}};
constexpr Rule RULES_D[] = {{"D", "solid L"}};
constexpr Rule RULES_E[] = {
    {"EIR", "dashed R"}, {"EIL", "dashed L"}, {"EI", "dashed L"}, {"EOR", "solid R"}, {"EOL", "solid L"},
    {"EO", "solid L"},   {"ERI", "dashed R"}, {"ERO", "solid R"}, {"ER", "solid R"},  {"ELI", "dashed L"},
    {"ELO", "solid L"},  {"EL", "solid L"},   {"E", "solid L"},
};

template <std::size_t COUNT>
const char* Decide(const std::string& code, const Rule (&rules)[COUNT]) {
  for (const Rule& rule : rules) {
    if (std::strstr(code.c_str(), rule.text) != nullptr) return rule.result;
  }
  return "no solid L";
}

void CheckAllLetters(const std::string& code) {
  EXPECT_EQ(Parse(code.c_str(), "B"), Decide(code, RULES_B)) << code;
  EXPECT_EQ(Parse(code.c_str(), "C"), Decide(code, RULES_C)) << code;
  EXPECT_EQ(Parse(code.c_str(), "D"), Decide(code, RULES_D)) << code;
  EXPECT_EQ(Parse(code.c_str(), "E"), Decide(code, RULES_E)) << code;
}

void CheckExtensions(const std::string& code, std::size_t longest) {
  CheckAllLetters(code);
  if (code.size() == longest) return;
  for (const char letter : {'B', 'C', 'D', 'E', 'I', 'O', 'L', 'R'})
    CheckExtensions(code + letter, longest);
}

TEST(ParseOpeningCode, EveryCodeOfUpToFourLettersFollowsTheRules) {
  CheckExtensions("", 4);
}

TEST(ParseOpeningCode, EveryTwoSuffixedLettersFollowTheRules) {
  for (const char* first : {"B", "BI", "BO", "CI", "CO", "D", "EIR", "EOL", "ERI", "ELO", "ER", "EL"}) {
    for (const char* second :
         {"C", "EIR", "EIL", "EOR", "EOL", "ERI", "ERO", "ELI", "ELO", "EI", "EO", "D"}) {
      CheckAllLetters(std::string(first) + second);
    }
  }
}

}  // namespace
}  // namespace brevanta
