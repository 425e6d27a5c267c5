// TextCodecTest.cpp - escapes and code pages of texts.
#include "teskarlt/dxf/tags/TextCodec.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

const TextCodec CZECH("roof.dxf", "ANSI_1250", false);
const TextCodec UNICODE("roof.dxf", "ANSI_1250", true);
const TextCodec JAPANESE("roof.dxf", "dos932", false);

std::string Encoded(const TextCodec& codec, std::string_view bytes) {
  std::string raw;
  codec.Encode(bytes, raw);
  return raw;
}

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

TEST(TextCodecEncode, BytesOfTheCodePageStay) {
  EXPECT_EQ(Encoded(CZECH, "okn\xED"), "okn\xED");
}

TEST(TextCodecEncode, NewerVersionsGetUtf8) {
  EXPECT_EQ(Encoded(UNICODE, "okn\xED \xF8"), "okní ř");
}

TEST(TextCodecEncode, ControlCharactersAndCaret) {
  EXPECT_EQ(Encoded(CZECH, "a\nb\tc^d"), "a^Jb^Ic^ d");
}

TEST(TextCodecEncode, BlanksAtBothEndsStay) {
  EXPECT_EQ(Encoded(CZECH, "  a "), "  a ");
  EXPECT_EQ(Encoded(CZECH, ""), "");
}

TEST(TextCodecEncode, WhatLooksLikeAnEscapeIsEscaped) {
  EXPECT_EQ(Encoded(CZECH, "\\U+0159"), "\\U+005CU+0159");
  EXPECT_EQ(CZECH.Decode("\\U+005CU+0159"), "\\U+0159");
}

TEST(TextCodecEncode, SecondByteOfADoubleByteCharacterIsNoCaret) {
  const std::string bytes = JAPANESE.ToCodePage("ソ構ポ十^");  // second bytes 5C, 5C, 5C and 5C
  EXPECT_EQ(Encoded(JAPANESE, bytes), bytes + " ");
  EXPECT_EQ(Encoded(JAPANESE, "\x83\x5E"), "\x83\x5E");  // タ
}

TEST(TextCodec, EveryTextOfThePageComesBack) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text = "^" + std::string(1, static_cast<char>(byte)) + "\\U+0041";
    for (const TextCodec* codec : {&CZECH, &UNICODE})
      EXPECT_EQ(codec->ToCodePage(codec->Decode(Encoded(*codec, text))), text) << byte;
  }
}

TEST(TextCodec, CharacterThatThePageLacksIsNamed) {
  EXPECT_EQ(ErrorOf([] { return CZECH.ToCodePage("a日b"); }),
            "roof.dxf: the character \"日\" (U+65E5) does not exist in code page 1250");
}

TEST(TextCodec, UnknownCodePageMattersOnlyBeyondAscii) {
  const TextCodec codec("roof.dxf", "EBCDIC", false);
  EXPECT_EQ(codec.Decode("Roof"), "Roof");
  EXPECT_EQ(codec.ToCodePage("Roof"), "Roof");
  EXPECT_EQ(ErrorOf([&] { return codec.Decode("\xED"); }), "roof.dxf: the code page \"EBCDIC\" is not known");
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
