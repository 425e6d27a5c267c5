// CodePageTest.cpp - conversions between code pages and UTF-8, the same on every system.
#include <optional>

#include <gtest/gtest.h>

#include "platform/CodePage.h"
#include "platform/Error.h"

namespace platform {
namespace {

std::string ErrorOf(const CodePage& page, std::string_view utf8) {
  try {
    page.FromUtf8(utf8);
  } catch (const Error& error) {
    return error.what();
  }
  return {};
}

TEST(CodePageNumber, NamesAsDrawingsWriteThem) {
  EXPECT_EQ(CodePageNumber("ANSI_1250"), 1250);
  EXPECT_EQ(CodePageNumber("ansi_1252"), 1252);
  EXPECT_EQ(CodePageNumber("dos850"), 850);
  EXPECT_EQ(CodePageNumber("DOS932"), 932);
  EXPECT_EQ(CodePageNumber("ANSI_932"), 932);
  EXPECT_EQ(CodePageNumber("8859_2"), 28592);
  EXPECT_EQ(CodePageNumber("iso8859-1"), 28591);
  EXPECT_EQ(CodePageNumber("big5"), 950);
  EXPECT_EQ(CodePageNumber("ascii"), 1252);
}

TEST(CodePageNumber, OtherNamesAreUnknown) {
  for (const char* name : {"", "ANSI_", "ansi_x", "EBCDIC", "dos", "ANSI_1250x", "ANSI_-1"})
    EXPECT_EQ(CodePageNumber(name), std::nullopt) << name;
}

TEST(CodePage, PageThatTheSystemDoesNotKnowIsRefused) {
  EXPECT_THROW(CodePage(4711), Error);
}

TEST(CodePage, CzechText) {
  const CodePage page(1250);
  EXPECT_EQ(page.ToUtf8("P\xF8\xEDli\x9A \x9Elu\x9Dou\xE8k\xFD k\xF9\xF2"), "Příliš žluťoučký kůň");
  EXPECT_EQ(page.FromUtf8("Příliš žluťoučký kůň"), "P\xF8\xEDli\x9A \x9Elu\x9Dou\xE8k\xFD k\xF9\xF2");
}

TEST(CodePage, WesternText) {
  const CodePage page(1252);
  EXPECT_EQ(page.ToUtf8("\x80 30\xB0"), "€ 30°");
  EXPECT_EQ(page.FromUtf8("€ 30°"), "\x80 30\xB0");
}

TEST(CodePage, OldText) {
  EXPECT_EQ(CodePage(850).ToUtf8("\x81\x84"), "üä");
  EXPECT_EQ(CodePage(852).FromUtf8("ř"), "\xFD");
  EXPECT_EQ(CodePage(28592).FromUtf8("š"), "\xB9");
}

TEST(CodePage, DoubleByteText) {
  const CodePage page(932);
  EXPECT_EQ(page.ToUtf8("\x93\x56\x91\x8B ok"), "天窓 ok");
  EXPECT_EQ(page.FromUtf8("天窓 ok"), "\x93\x56\x91\x8B ok");
  EXPECT_EQ(page.ToUtf8("\xB1"), "ｱ");
}

TEST(CodePage, AsciiIsTheSameInEveryPage) {
  for (const int number : {932, 936, 949, 950, 1250, 1251, 1252, 1253, 850, 852})
    EXPECT_EQ(CodePage(number).ToUtf8("\\~ABC\x80").substr(0, 5), "\\~ABC") << number;
}

TEST(CodePage, UndefinedBytesComeBack) {
  const CodePage page(1250);
  EXPECT_EQ(page.ToUtf8("\x81\x83"), "\xC2\x81\xC2\x83");
  EXPECT_EQ(page.FromUtf8("\xC2\x81\xC2\x83"), "\x81\x83");
}

TEST(CodePage, ByteThatLeadsPairsIsNoCharacterAlone) {
  EXPECT_EQ(CodePage(932).ToUtf8("\xED"), "í");  // nothing follows
  EXPECT_NE(ErrorOf(CodePage(932), "íl"), "");   // "\xEDl" would be one character
  EXPECT_EQ(CodePage(936).FromUtf8("§"), "\xA1\xEC");
}

TEST(CodePage, EveryByteOfASingleBytePageComesBack) {
  for (const int number : {437, 850, 852, 866, 874, 1250, 1251, 1252, 1253, 1254, 1257, 28591, 28592}) {
    const CodePage page(number);
    for (int byte = 0; byte < 256; ++byte) {
      const std::string text(1, static_cast<char>(byte));
      EXPECT_EQ(page.FromUtf8(page.ToUtf8(text)), text) << number << " " << byte;
    }
  }
}

TEST(CodePage, MissingCharacterIsNamed) {
  EXPECT_EQ(ErrorOf(CodePage(1252), "č"), "the character \"č\" (U+010D) does not exist in code page 1252");
  EXPECT_EQ(ErrorOf(CodePage(1250), "\xF0\x9F\x8F\xA0"),
            "the character \"\xF0\x9F\x8F\xA0\" (U+1F3E0) does not exist in code page 1250");
}

TEST(CodePage, LookAlikesAreNotTakenInstead) {
  EXPECT_NE(ErrorOf(CodePage(1252), "Ａ"), "");
  EXPECT_NE(ErrorOf(CodePage(1250), "ﬁ"), "");
}

TEST(CodePage, MalformedUtf8IsRefused) {
  for (const char* text : {"\xFF", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x28\xA1"})
    EXPECT_EQ(ErrorOf(CodePage(1250), text), "the text is not UTF-8");
}

TEST(NextCharacter, StepsOverCharactersOfEveryLength) {
  const std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8F\xA0";
  std::size_t at = 0;
  EXPECT_EQ(NextCharacter(text, at), U'a');
  EXPECT_EQ(NextCharacter(text, at), U'é');
  EXPECT_EQ(NextCharacter(text, at), U'€');
  EXPECT_EQ(NextCharacter(text, at), char32_t{0x1F3E0});
  EXPECT_EQ(at, text.size());
}

TEST(NextCharacter, MalformedByteIsPassedAlone) {
  std::size_t at = 0;
  EXPECT_EQ(NextCharacter("\xE2\x82z", at), std::nullopt);
  EXPECT_EQ(at, 1U);
}

}  // namespace
}  // namespace platform
