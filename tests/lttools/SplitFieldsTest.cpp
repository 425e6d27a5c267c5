// SplitFieldsTest.cpp - copies of parts of a text.
#include <cstring>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lttools/SUPP.h"
#include "platform/Heap.h"

namespace lttools {
namespace {

using testing::ElementsAre;

std::vector<std::string> Texts(const TextList& list) {
  std::vector<std::string> texts;
  texts.reserve(static_cast<std::size_t>(list.GetCount()));
  for (std::int32_t i = 0; i < list.GetCount(); ++i)
    texts.emplace_back(list[i]);
  return texts;
}

std::vector<std::string> Split(const char* text, const char* delimiters) {
  TextList fields;
  EXPECT_EQ(SplitFields(text, delimiters, fields), 0);
  return Texts(fields);
}

TEST(SplitFields, EmptyFieldsStay) {
  EXPECT_THAT(Split("a;;b;", ";"), ElementsAre("a", "", "b", ""));
  EXPECT_THAT(Split("a;;b", ";"), ElementsAre("a", "", "b"));
}

TEST(SplitFields, RunsOfBlanksCountAsOneDelimiter) {
  EXPECT_THAT(Split(" a  b ", " "), ElementsAre("a", "b"));
  EXPECT_THAT(Split("   ", " "), ElementsAre());
}

TEST(SplitFields, TextWithoutDelimiterIsOneField) {
  EXPECT_THAT(Split("abc", ";"), ElementsAre("abc"));
}

TEST(SplitFields, OnlyTheFirstDelimiterCharacterCounts) {
  EXPECT_THAT(Split("a;b,c", ";,"), ElementsAre("a", "b,c"));
}

TEST(SplitFields, NothingToSplitAppendsNothing) {
  EXPECT_THAT(Split(nullptr, ";"), ElementsAre());
  EXPECT_THAT(Split("", ";"), ElementsAre());
  EXPECT_THAT(Split("a;b", nullptr), ElementsAre());
  EXPECT_THAT(Split("a;b", ""), ElementsAre());
}

TEST(SplitFields, FieldsAreAppendedToTheList) {
  TextList fields;
  SplitFields("a;;b", ";", fields);
  SplitFields("c;d", ";", fields);
  EXPECT_THAT(Texts(fields), ElementsAre("a", "", "b", "c", "d"));
}

TEST(SplitFields, BlankDelimiterRemovesEveryEmptyFieldOfTheList) {
  TextList fields;
  SplitFields("a;;b", ";", fields);
  SplitFields("c  d", " ", fields);
  EXPECT_THAT(Texts(fields), ElementsAre("a", "b", "c", "d"));
}

TEST(SplitFields, ManyFieldsGrowTheList) {
  const std::string text(99, ';');
  EXPECT_EQ(Split(text.c_str(), ";").size(), 100U);
}

TEST(TextList, EmptiedListCanBeUsedAgain) {
  TextList fields;
  SplitFields("a;b", ";", fields);
  fields.Empty();
  EXPECT_EQ(fields.GetCount(), 0);
  SplitFields("c", ";", fields);
  EXPECT_THAT(Texts(fields), ElementsAre("c"));
}

TEST(DupSubstring, CopiesTheFirstCharactersAndTerminatesThem) {
  char* copy = DupSubstring("abcdef", 3);
  EXPECT_STREQ(copy, "abc");
  HeapRelease(copy);
}

TEST(DupSubstring, ShorterTextIsCopiedWhole) {
  char* copy = DupSubstring("ab", 100);
  EXPECT_STREQ(copy, "ab");
  HeapRelease(copy);
}

TEST(DupSubstring, NoCharactersGiveAnEmptyText) {
  char* copy = DupSubstring("ab", 0);
  EXPECT_STREQ(copy, "");
  HeapRelease(copy);
}

}  // namespace
}  // namespace lttools
