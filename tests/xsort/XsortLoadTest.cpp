// XsortLoadTest.cpp - loading and unloading the collation table, malformed files included.
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/xsort/XsortFixture.h"

namespace xsort {
namespace {

using XsortLoadTest = XsortTest;

TEST_F(XsortLoadTest, RanksFollowTheOrderOfTheFile) {
  EXPECT_EQ(LoadText("a b c h ch d"), 0);
  EXPECT_EQ(Key("abchd"), "\1\2\5\6");
}

TEST_F(XsortLoadTest, AnyRunOfSeparatorsSplits) {
  EXPECT_EQ(LoadText("\n\n a,b;;c\t\td , ; e\n"), 0);
  EXPECT_EQ(Key("abcde"), "\1\2\3\4\5");
}

TEST_F(XsortLoadTest, SecondLoadIsRefusedAndKeepsTheFirstTable) {
  ASSERT_EQ(LoadText("a b"), 0);
  EXPECT_EQ(LoadText("b a"), -1);
  EXPECT_EQ(Key("ab"), "\1\2");
}

TEST_F(XsortLoadTest, UnloadedTableCanBeReplaced) {
  ASSERT_EQ(LoadText("a b"), 0);
  EXPECT_EQ(XsortUnload(), 0);
  EXPECT_EQ(LoadText("b a"), 0);
  EXPECT_EQ(Key("ab"), "\2\1");
}

TEST_F(XsortLoadTest, UnloadWithoutTableIsRefused) {
  EXPECT_EQ(XsortUnload(), -1);
  ASSERT_EQ(LoadText("a b"), 0);
  EXPECT_EQ(XsortUnload(), 0);
  EXPECT_EQ(XsortUnload(), -1);
}

TEST_F(XsortLoadTest, MissingFileIsRefused) {
  EXPECT_EQ(Load(), -1);
  EXPECT_EQ(XsortUnload(), -1);
}

TEST_F(XsortLoadTest, EmptyFileIsRefused) {
  EXPECT_EQ(LoadText(""), -1);
  EXPECT_EQ(XsortUnload(), -1);
}

TEST_F(XsortLoadTest, FolderIsRefused) {
  std::filesystem::create_directory(Path());
  EXPECT_EQ(Load(), -1);
  EXPECT_EQ(XsortUnload(), -1);
}

TEST_F(XsortLoadTest, SeparatorsAloneLoadNoTable) {
  EXPECT_EQ(LoadText(" ,;\n\t"), 0);
  EXPECT_EQ(XsortUnload(), -1);
  EXPECT_EQ(LoadText("a b"), 0);
}

TEST_F(XsortLoadTest, OneTokenLoads) {
  EXPECT_EQ(LoadText("a"), 0);
  EXPECT_EQ(Key("ab"), "\1\3");
}

TEST_F(XsortLoadTest, LongerElementsComeFirst) {
  EXPECT_EQ(LoadText("c ch chk h k"), 0);
  EXPECT_EQ(Key("chkchc"), "\3\2\1");
}

TEST_F(XsortLoadTest, EqualTokensKeepTheFirstRank) {
  EXPECT_EQ(LoadText("a b a x"), 0);
  EXPECT_EQ(Key("a"), "\1");
}

TEST_F(XsortLoadTest, LastElementIsNeverSorted) {
  // "ch" stays behind "c", which therefore always wins.
  EXPECT_EQ(LoadText("c h ch"), 0);
  EXPECT_EQ(Key("ch"), "\1\2");
}

TEST_F(XsortLoadTest, TwoTokensAreNotSortedEither) {
  EXPECT_EQ(LoadText("c ch"), 0);
  EXPECT_EQ(Key("ch"), "\1\4");
}

TEST_F(XsortLoadTest, TokensBeyondThe256thAreIgnored) {
  EXPECT_EQ(LoadText(Tokens(256) + "zz yy"), 0);
  EXPECT_EQ(Key("zz"), "\2\2");  // 256 + 2 wraps to 2
  XsortUnload();
  EXPECT_EQ(LoadText(Tokens(300)), 0);
  EXPECT_EQ(Key("jUjVjU"), "\xff");  // the 255th; the 256th's rank wraps to 0 and ends the key
}

TEST_F(XsortLoadTest, NulEndsTheTable) {
  EXPECT_EQ(LoadText(std::string("a b\0c d", 7)), 0);
  EXPECT_EQ(Key("abc"), "\1\2\4");
}

TEST_F(XsortLoadTest, NulInFrontLoadsNoTable) {
  EXPECT_EQ(LoadText(std::string("\0a b", 4)), 0);
  EXPECT_EQ(XsortUnload(), -1);
}

TEST_F(XsortLoadTest, ElementOf127CharactersMatches) {
  EXPECT_EQ(LoadText(std::string(127, 'a') + " b c"), 0);
  EXPECT_EQ(Key(std::string(127, 'a') + "b"), "\1\2");
}

TEST_F(XsortLoadTest, LengthsThatWrapBelowOneNeverMatch) {
  for (const std::size_t length : {128U, 200U, 255U, 256U}) {
    EXPECT_EQ(LoadText(std::string(length, 'a') + " b c"), 0);
    EXPECT_EQ(Key(std::string(length, 'a') + "b"), std::string(length, '\5') + "\2");
    XsortUnload();
  }
}

TEST_F(XsortLoadTest, LengthsThatWrapAboveZeroMatchTheirFirstCharacters) {
  EXPECT_EQ(LoadText(std::string(257, 'a') + " b c"), 0);
  EXPECT_EQ(Key("aab"), "\1\1\2");
  XsortUnload();
  EXPECT_EQ(LoadText(std::string(300, 'a') + " b c"), 0);
  EXPECT_EQ(Key(std::string(44, 'a') + "b"), "\1\2");
  XsortUnload();
  EXPECT_EQ(LoadText(std::string(383, 'a') + " b c"), 0);
  EXPECT_EQ(Key(std::string(127, 'a') + "b"), "\1\2");
}

TEST_F(XsortLoadTest, WrappedLastElementNeverMatches) {
  EXPECT_EQ(LoadText("a " + std::string(256, 'b')), 0);
  EXPECT_EQ(Key("ab"), "\1\4");
}

TEST_F(XsortLoadTest, LowMemoryIsRefusedAndLeavesNothing) {
  Write("a b");
  counting_heap::FailAllocation(1);
  EXPECT_EQ(Load(), -1);
  EXPECT_EQ(XsortUnload(), -1);
  EXPECT_EQ(Load(), 0);
}

TEST_F(XsortLoadTest, AllocatesTheFilesSizeAndOneByteMore) {
  std::size_t size = 0;
  counting_heap::Watch([&](std::size_t asked) { size = asked; });
  EXPECT_EQ(LoadText("a b c"), 0);
  EXPECT_EQ(size, 6U);
}

TEST_F(XsortLoadTest, FileThatGrowsWhileReadIsCutAtItsFirstSize) {
  // The memory is asked for between the measuring and the reading.
  Write("a b c");
  counting_heap::Watch(
      [&](std::size_t) { std::ofstream(Path(), std::ios::binary | std::ios::app) << "d e f"; });
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(Key("abcd"), "\1\2\3\5");
}

TEST_F(XsortLoadTest, FileThatShrinksWhileReadGivesWhatIsLeft) {
  Write("a b c " + std::string(100000, 'x'));
  counting_heap::Watch([&](std::size_t) { std::filesystem::resize_file(Path(), 5); });
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(Key("abcx"), "\1\2\3\5");
}

TEST_F(XsortLoadTest, FileThatIsEmptiedWhileReadIsRefusedOrReadFromTheBuffer) {
  // The measuring may have left the text in the stream's buffer.
  Write("a b c");
  counting_heap::Watch([&](std::size_t) { std::filesystem::resize_file(Path(), 0); });
  if (Load() == 0) {
    EXPECT_EQ(Key("abcd"), "\1\2\3\5");
  } else {
    EXPECT_EQ(XsortUnload(), -1);
  }
}

}  // namespace
}  // namespace xsort
