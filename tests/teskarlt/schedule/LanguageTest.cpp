// LanguageTest.cpp - what a schedule says in words.
#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/schedule/Columns.h"
#include "teskarlt/schedule/Language.h"

namespace teskarlt::schedule {
namespace {

using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAreArray;

std::vector<std::string_view> KeysOf(const Language& language) {
  std::vector<std::string_view> keys;
  for (const auto& [key, text] : language.words)
    keys.push_back(key);
  return keys;
}

TEST(Language, EachHasTheKeysOfTheOthers) {
  for (const Language* const language : LANGUAGES)
    EXPECT_THAT(KeysOf(*language), UnorderedElementsAreArray(KeysOf(ENGLISH))) << language->name;
}

TEST(Language, EachHasTextsForAllColumns) {
  for (const Language* const language : LANGUAGES) {
    const std::vector<std::string_view> keys = KeysOf(*language);
    for (const Column& column : COLUMNS)
      EXPECT_EQ(std::count(keys.begin(), keys.end(), column.name), 1) << language->name << " " << column.name;
    for (const auto& [key, text] : language->words)
      EXPECT_THAT(text, Not(IsEmpty())) << language->name << " " << key;
  }
}

TEST(Language, NameOfWorkbookIsShortEnoughForSpreadsheets) {
  for (const Language* const language : LANGUAGES)
    EXPECT_LE((*language)["schedule"].size(), 31U) << language->name;
}

TEST(Language, IsKnownByItsName) {
  EXPECT_EQ(LanguageNamed("de")["sill"], "Brüstungshöhe");
  EXPECT_EQ(LanguageNamed("cs")["sill"], "Výška parapetu");
  EXPECT_EQ(LanguageNamed("en")["sill"], "Sill height");
}

TEST(Language, KeyThatIsMissingGivesItself) {
  EXPECT_EQ(ENGLISH["no such key"], "no such key");
}

TEST(OpeningWords, EachLetterHasItsWords) {
  EXPECT_EQ(OpeningWords("B", ENGLISH), "top-hung");
  EXPECT_EQ(OpeningWords("CI", ENGLISH), "bottom-hung, opens inward");
  EXPECT_EQ(OpeningWords("D", GERMAN), "Schwingfenster");
  EXPECT_EQ(OpeningWords("D", CZECH), "kyvné");
}

TEST(OpeningWords, HingesAtASideAreOnTheLeftWithoutAWord) {
  const std::string left = "side-hung, hinges on the left seen from inside";
  EXPECT_EQ(OpeningWords("E", ENGLISH), left);
  EXPECT_EQ(OpeningWords("EOL", ENGLISH), left + ", opens outward");
  EXPECT_EQ(OpeningWords("ERI", ENGLISH), "side-hung, hinges on the right seen from inside, opens inward");
}

TEST(OpeningWords, LettersStandTogether) {
  EXPECT_EQ(OpeningWords("BOD", ENGLISH), "top-hung, opens outward + centre-pivot");
  EXPECT_EQ(OpeningWords("DBO", ENGLISH), "top-hung, opens outward + centre-pivot");
}

TEST(OpeningWords, EmptyCodeIsFixedGlazing) {
  EXPECT_EQ(OpeningWords("", GERMAN), "Festverglasung");
  EXPECT_EQ(OpeningWords("-", GERMAN), "Festverglasung");
}

TEST(OpeningWords, CodeThatStandsForNothingIsGivenAsItIs) {
  EXPECT_EQ(OpeningWords("XY", ENGLISH), "XY");
}

TEST(CompassWords, LettersAreThoseOfTheLanguage) {
  EXPECT_EQ(CompassWords("NNE, SSW", ENGLISH), "NNE, SSW");
  EXPECT_EQ(CompassWords("NNE, SSW", GERMAN), "NNO, SSW");
  EXPECT_EQ(CompassWords("NNE, SSW", CZECH), "SSV, JJZ");
}

}  // namespace
}  // namespace teskarlt::schedule
