// XsortCompareTest.cpp - collation keys and the comparison of texts.
#include <algorithm>
#include <csetjmp>
#include <random>
#include <string>
#include <vector>

#include "lttools/Err.h"
#include "tests/xsort/XsortFixture.h"

namespace xsort {
namespace {

using XsortKeyTest = XsortTest;
using XsortCompareTest = XsortTest;
using XsortDeathTest = XsortTest;
using XsortProperties = XsortTest;

const char* const ALPHABET = "a b c h ch d";

TEST_F(XsortKeyTest, ElementsOfSeveralLettersAreOneByte) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  EXPECT_EQ(Key("cx"), "\3\x8");
  EXPECT_EQ(Key("hx"), "\4\x8");
  EXPECT_EQ(Key("chx"), "\5\x8");
}

TEST_F(XsortKeyTest, EmptyTextHasAnEmptyKey) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  EXPECT_EQ(Key(""), "");
}

TEST_F(XsortKeyTest, ElementThatRunsBeyondTheTextDoesNotMatch) {
  ASSERT_EQ(LoadText("c h chch d"), 0);
  EXPECT_EQ(Key("chc"), "\1\2\1");
}

TEST_F(XsortKeyTest, WithoutTableTheBufferIsUntouched) {
  char buffer[] = "kept";
  EXPECT_EQ(XsortKey("ab", buffer), -1);
  EXPECT_STREQ(buffer, "kept");
}

TEST_F(XsortKeyTest, KeyMayReplaceItsText) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  char text[] = "chaxch";
  EXPECT_EQ(XsortKey(text, text), 0);
  EXPECT_STREQ(text, "\5\1\x8\5");
}

TEST_F(XsortKeyTest, BytesOfTheUpperHalfAreElementsToo) {
  ASSERT_EQ(LoadText("\xe8 \xf8 \xbe c"), 0);
  EXPECT_EQ(Key("\xf8\xbe\xe8"), "\2\3\1");
}

TEST_F(XsortKeyTest, CharactersInNoElementWrapWithALargeTable) {
  ASSERT_EQ(LoadText(Tokens(253)), 0);
  EXPECT_EQ(Key("?"), "\xff");
  XsortUnload();
  ASSERT_EQ(LoadText(Tokens(254)), 0);
  EXPECT_EQ(Key("?"), "");
  XsortUnload();
  ASSERT_EQ(LoadText(Tokens(255)), 0);
  EXPECT_EQ(Key("?"), "\1");
}

TEST_F(XsortCompareTest, GroupSortsAfterItsSecondLetter) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  EXPECT_EQ(Compare("chx", "hx"), 1);
  EXPECT_EQ(Compare("cx", "hx"), -1);
  EXPECT_EQ(Compare("chx", "d"), -1);
  EXPECT_EQ(Compare("chad", "chad"), 0);
}

TEST_F(XsortCompareTest, CharacterInNoElementSortsAfterEveryElement) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  EXPECT_EQ(Compare("!", "d"), 1);
  EXPECT_EQ(Compare("a!", "ad"), 1);
}

TEST_F(XsortCompareTest, CharactersInNoElementAreAllEqual) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  EXPECT_EQ(Compare("x", "y"), 0);
}

TEST_F(XsortCompareTest, ShorterTextSortsFirst) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  EXPECT_EQ(Compare("a", "ab"), -1);
  EXPECT_EQ(Compare("", "a"), -1);
}

TEST_F(XsortCompareTest, WithoutTableTheBytesAreCompared) {
  EXPECT_EQ(Compare("chx", "hx"), -1);
  EXPECT_EQ(Compare("B", "a"), -1);
  EXPECT_EQ(Compare("a", "a"), 0);
  EXPECT_EQ(Compare("\xe8", "z"), 1);
}

TEST_F(XsortCompareTest, TextsAreLeftAsTheyWere) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  const char a[] = "chad";
  XsortCompare(a, a);
  EXPECT_STREQ(a, "chad");
}

TEST_F(XsortCompareTest, CompareTextsForwards) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  EXPECT_GT(CompareTexts("chx", "hx"), 0);
  EXPECT_LT(CompareTexts("a", "b"), 0);
  EXPECT_EQ(CompareTexts("a", "a"), 0);
}

TEST_F(XsortDeathTest, LowMemoryForEitherKeyIsFatal) {
  for (int n = 1; n <= 2; ++n) {
    EXPECT_EXIT(
        {
          counting_heap::FailAllocation(n);
          XsortCompare("a", "b");
        },
        testing::ExitedWithCode(1),
        testing::StrEq("\n\nFATAL ERROR on line 152 of 'xsort'\n  'Low memory'\n\nABORTING EXECUTION\n"));
  }
}

TEST_F(XsortDeathTest, ThirdAllocationIsNotAskedFor) {
  counting_heap::FailAllocation(3);
  EXPECT_EQ(Compare("a", "b"), -1);
  EXPECT_EQ(counting_heap::Allocations(), 2);
}

// The kind of the report that a comparison raises when its n-th allocation fails, caught by the jump.
int CaughtKind(int n) {
  const int caught = setjmp(lttools::ErrJump);
  if (caught == 0) {
    lttools::ErrJumpArmed = 1;
    counting_heap::FailAllocation(n);
    XsortCompare("a", "b");
  }
  lttools::ErrJumpArmed = 0;
  return caught;
}

TEST_F(XsortDeathTest, CaughtLowMemoryLosesNoBlock) {
  for (int n = 1; n <= 2; ++n) {
    counting_heap::Reset();
    EXPECT_EQ(CaughtKind(n), lttools::ERR_FATAL);
    EXPECT_EQ(counting_heap::Allocations(), counting_heap::Releases());
  }
}

// Texts over a small alphabet, so that equal keys occur.
std::vector<std::string> Texts(std::mt19937& random, int count, const std::string& letters) {
  std::vector<std::string> texts;
  for (int i = 0; i < count; ++i) {
    std::string text;
    for (auto length = random() % 6; length > 0; --length)
      text += letters[random() % letters.size()];
    texts.push_back(text);
  }
  return texts;
}

// Antisymmetric, transitive, and equal exactly where the keys are.
void ExpectTotalPreorder(const std::vector<std::string>& texts,
                         int (*compare)(const std::string&, const std::string&)) {
  for (const std::string& a : texts) {
    for (const std::string& b : texts) {
      EXPECT_EQ(compare(a, b), -compare(b, a));
      for (const std::string& c : texts) {
        if (compare(a, b) > 0 || compare(b, c) > 0) continue;
        ASSERT_LE(compare(a, c), 0) << a << " " << b << " " << c;
      }
    }
  }
}

// Well-formed, with a longer last element, with wrapped lengths, and with so many elements that ranks wrap:
// the order is always that of the keys' bytes, so it is consistent even where it is not the file's.
TEST_F(XsortProperties, ComparisonIsATotalPreorderForEveryTable) {
  std::mt19937 random(81);
  for (const std::string& table : {std::string(ALPHABET), std::string("c h ch"), std::string(256, 'a') + " b",
                                   Tokens(254) + "c", Tokens(300)}) {
    ASSERT_EQ(LoadText(table), 0);
    ExpectTotalPreorder(Texts(random, 25, "abcdhxA"), Compare);
    XsortUnload();
  }
  ExpectTotalPreorder(Texts(random, 25, "abcdhx"), Compare);
}

TEST_F(XsortProperties, EqualKeysAreExactlyTheEqualTexts) {
  ASSERT_EQ(LoadText(ALPHABET), 0);
  std::mt19937 random(82);
  const std::vector<std::string> texts = Texts(random, 60, "abcdhx");
  for (const std::string& a : texts) {
    for (const std::string& b : texts)
      EXPECT_EQ(Compare(a, b) == 0, Key(a) == Key(b));
  }
}

// With a table as it should be, a text of one element sorts by its rank, and unknown characters come last.
TEST_F(XsortProperties, WellFormedTableSortsItsOwnElementsInTheOrderOfTheFile) {
  ASSERT_EQ(LoadText("a \xe1 b c \xe8 d e f g h ch i j"), 0);
  const std::vector<std::string> order = {"a", "\xe1", "b", "c",  "\xe8", "d", "e",
                                          "f", "g",    "h", "ch", "i",    "j", "?"};
  std::vector<std::string> sorted = order;
  std::mt19937 random(83);
  for (int i = 0; i < 100; ++i) {
    std::shuffle(sorted.begin(), sorted.end(), random);
    std::sort(sorted.begin(), sorted.end(), [](const std::string& a, const std::string& b) {
      return CompareTexts(a.c_str(), b.c_str()) < 0;
    });
    EXPECT_EQ(sorted, order);
  }
}

// Where a table is not as it should be, the order is consistent but not the file's.
TEST_F(XsortProperties, LongLastElementIsSortedByItsFirstLetter) {
  ASSERT_EQ(LoadText("c h ch"), 0);
  EXPECT_EQ(Compare("ch", "h"), -1);  // the file puts ch after h
}

TEST_F(XsortProperties, ManyElementsPutUnknownCharactersFirst) {
  ASSERT_EQ(LoadText(Tokens(254)), 0);
  EXPECT_EQ(Compare("?", "aA"), -1);
  EXPECT_EQ(Compare("?", ""), 0);  // the key ends there
  XsortUnload();
  ASSERT_EQ(LoadText(Tokens(256)), 0);
  EXPECT_EQ(Compare("jV", "aA"), -1);  // the 256th
}

TEST_F(XsortProperties, KeyIsNeverLongerThanItsText) {
  std::mt19937 random(84);
  for (const std::string& table : {std::string(ALPHABET), std::string(256, 'a') + " b a", Tokens(300)}) {
    ASSERT_EQ(LoadText(table), 0);
    for (const std::string& text : Texts(random, 500, "abcdhxA?"))
      EXPECT_LE(Key(text).size(), text.size());
    XsortUnload();
  }
}

}  // namespace
}  // namespace xsort
