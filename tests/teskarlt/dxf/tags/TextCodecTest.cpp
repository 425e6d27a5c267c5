// TextCodecTest.cpp - escapes and code pages of texts.
#include "teskarlt/dxf/tags/TextCodec.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

const TextCodec CZECH("ANSI_1250", false);
const TextCodec UNICODE("ANSI_1250", true);
const TextCodec JAPANESE("dos932", false);

TEST(TextCodecDecode, PlainTextIsItself) {
  EXPECT_EQ(CZECH.Decode("  Roof 1 "), "  Roof 1 ");
}

TEST(TextCodecDecode, BytesOfTheCodePageBecomeUtf8) {
  EXPECT_EQ(CZECH.Decode("okn\xED \xF8"), "okní ř");
}

TEST(TextCodecDecode, Utf8FileIsTakenAsItIs) {
  EXPECT_EQ(UNICODE.Decode("okní ř"), "okní ř");
}

TEST(TextCodecDecode, MalformedUtf8BecomesTheReplacementCharacter) {
  EXPECT_EQ(UNICODE.Decode("a\xED"
                           "b"),
            "a\xEF\xBF\xBD"
            "b");
}

TEST(TextCodecDecode, UnicodeEscapes) {
  EXPECT_EQ(CZECH.Decode("\\U+0159\\U+00ed!"), "ří!");
  EXPECT_EQ(UNICODE.Decode("\\U+0159"), "ř");
}

TEST(TextCodecDecode, PairOfEscapesIsOneCharacter) {
  EXPECT_EQ(CZECH.Decode("\\U+D83C\\U+DFE0"), "\xF0\x9F\x8F\xA0");
}

TEST(TextCodecDecode, HalfOfAPairIsReplaced) {
  EXPECT_EQ(CZECH.Decode("\\U+D83C-\\U+DFE0"), "\xEF\xBF\xBD-\xEF\xBF\xBD");
}

TEST(TextCodecDecode, IncompleteEscapesAreText) {
  for (const char* text : {"\\U+015", "\\U+015x", "\\U", "\\", "\\P", "^", "x^2"})
    EXPECT_EQ(CZECH.Decode(text), text);
}

TEST(TextCodecDecode, ControlCharacters) {
  EXPECT_EQ(CZECH.Decode("a^Jb^Ic^ d"), "a\nb\tc^d");
}

TEST(TextCodecEncode, CharactersOfTheCodePageAreItsBytes) {
  EXPECT_EQ(CZECH.Encode("okní ř"), "okn\xED \xF8");
}

TEST(TextCodecEncode, Utf8FileHoldsEveryCharacter) {
  EXPECT_EQ(UNICODE.Encode("okní 天窓 \xF0\x9F\x8F\xA0"), "okní 天窓 \xF0\x9F\x8F\xA0");
}

TEST(TextCodecEncode, CharactersThatThePageLacksAreEscaped) {
  EXPECT_EQ(CZECH.Encode("ř天"), "\xF8\\U+5929");
  EXPECT_EQ(CZECH.Encode("ř\xF0\x9F\x8F\xA0"), "\xF8\\U+D83C\\U+DFE0");
}

TEST(TextCodecEncode, ControlCharactersAndCaret) {
  EXPECT_EQ(CZECH.Encode("a\nb\tc^d"), "a^Jb^Ic^ d");
}

TEST(TextCodecEncode, BlanksAtBothEndsStay) {
  EXPECT_EQ(CZECH.Encode("  a "), "  a ");
  EXPECT_EQ(CZECH.Encode(""), "");
}

TEST(TextCodecEncode, WhatLooksLikeAnEscapeIsEscaped) {
  EXPECT_EQ(CZECH.Encode("\\U+0159"), "\\U+005CU+0159");
  EXPECT_EQ(CZECH.Decode("\\U+005CU+0159"), "\\U+0159");
}

TEST(TextCodecEncode, SecondByteOfADoubleByteCharacterIsNoCaret) {
  EXPECT_EQ(JAPANESE.Encode("ソ構^"), "\x83\x5C\x8D\x5C^ ");
  EXPECT_EQ(JAPANESE.Encode("タ"), "\x83\x5E");
}

// Bytes that are UTF-8 by chance would make the whole drawing be read as UTF-8.
TEST(TextCodecEncode, BytesThatLookLikeUtf8AreEscaped) {
  EXPECT_EQ(TextCodec("ANSI_1252", false).Encode("Ã©"), "\\U+00C3\\U+00A9");  // C3 A9, an "é" in UTF-8
}

TEST(TextCodecEncode, MalformedUtf8IsRefused) {
  for (const TextCodec* codec : {&CZECH, &UNICODE})
    EXPECT_EQ(ErrorOf([&] { return codec->Encode("a\xED"); }), "the text is not UTF-8");
}

TEST(TextCodec, EveryCharacterComesBack) {
  const TextCodec unknown("UNDEFINED", false);
  for (char32_t character = 0; character <= 0x10FFFF; character += character < 0x500 ? 1 : 0x101) {
    if (character >= 0xD800 && character < 0xE000) continue;  // halves of pairs are no characters
    std::string text = "^";
    platform::AppendUtf8(text, character);
    text += "\\U+0041";
    for (const TextCodec* codec : {&CZECH, &UNICODE, &JAPANESE, &unknown})
      EXPECT_EQ(codec->Decode(codec->Encode(text)), text) << std::uint32_t{character};
  }
}

TEST(TextCodec, UnknownCodePageIsTakenForTheWesternOneWithANote) {
  const TextCodec codec("UNDEFINED", false);
  EXPECT_EQ(codec.Decode("Roof"), "Roof");
  EXPECT_EQ(codec.Note(), "");  // nothing was doubtful yet
  EXPECT_EQ(codec.Decode("\xE9"), "é");
  EXPECT_EQ(codec.Encode("é"), "\xE9");
  EXPECT_EQ(codec.Note(),
            "the code page \"UNDEFINED\" is not known; texts beyond ASCII are taken to be in ANSI_1252");
}

TEST(TextCodec, KnownCodePageNeedsNoNote) {
  EXPECT_EQ(CZECH.Decode("\xE8"), "č");
  EXPECT_EQ(CZECH.Note(), "");
}

TEST(FoldedName, CaseDoesNotMatterInLatinGreekAndCyrillic) {
  EXPECT_EQ(FoldedName("Střešní Okno"), "STŘEŠNÍ OKNO");
  EXPECT_EQ(FoldedName("žluťoučký kůň ľĺŕ"), "ŽLUŤOUČKÝ KŮŇ ĽĹŔ");
  EXPECT_EQ(FoldedName("στέγη"), FoldedName("ΣΤέΓΗ"));
  EXPECT_EQ(FoldedName("крыша ё"), "КРЫША Ё");
  EXPECT_EQ(FoldedName("a÷b_$"), "A÷B_$");
}

}  // namespace
}  // namespace teskarlt::dxf
