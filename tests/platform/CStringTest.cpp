// CStringTest.cpp - shared texts.
#include <utility>

#include <gtest/gtest.h>

#include "platform/CString.h"

namespace {

TEST(CString, NewTextIsEmpty) {
  const CString text;
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(text.GetLength(), 0);
  EXPECT_STREQ(text.GetString(), "");
}

TEST(CString, NullAndEmptyTextsAreEmpty) {
  EXPECT_TRUE(CString(static_cast<const char*>(nullptr)).IsEmpty());
  EXPECT_TRUE(CString("").IsEmpty());
  EXPECT_EQ(CString(""), CString());
}

TEST(CString, KeepsItsCharactersTerminated) {
  const CString text(std::string_view("abcdef").substr(0, 3));
  EXPECT_STREQ(text.GetString(), "abc");
  EXPECT_EQ(text.GetLength(), 3);
}

TEST(CString, CopiesShareTheirCharacters) {
  const CString text("abc");
  CString copy;
  copy = text;
  EXPECT_EQ(copy.GetString(), text.GetString());
}

TEST(CString, CopyOutlivesTheOriginal) {
  CString copy;
  {
    const CString text("abc");
    copy = text;
  }
  EXPECT_STREQ(copy.GetString(), "abc");
}

TEST(CString, AssigningATextToItselfKeepsIt) {
  CString text("abc");
  const CString& same = text;
  text = same;
  EXPECT_STREQ(text.GetString(), "abc");
}

TEST(CString, MovedTextIsTakenOver) {
  CString text("abc");
  const CString taken = std::move(text);
  EXPECT_STREQ(taken.GetString(), "abc");
  CString other("xyz");
  other = CString("def");
  EXPECT_STREQ(other.GetString(), "def");
}

TEST(CString, ComparesByteByByte) {
  EXPECT_EQ(CString("\xC8"
                    "a"),
            CString("\xC8"
                    "a"));
  EXPECT_FALSE(CString("a") == CString("A"));
  EXPECT_FALSE(CString("a") == CString("ab"));
}

}  // namespace
