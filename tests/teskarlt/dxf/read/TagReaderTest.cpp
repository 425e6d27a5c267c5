// TagReaderTest.cpp - walking over pairs of lines.

#include "teskarlt/dxf/read/TagReader.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

SourceText Source(std::string_view text) {
  platform::FileBytes bytes;
  bytes.bytes = std::make_unique<char[]>(text.size() + 1);
  bytes.size = text.copy(bytes.bytes.get(), text.size());
  return {"roof.dxf", std::move(bytes)};
}

// The tags as "code=value ...".
std::string Walk(std::string_view text) {
  const SourceText source = Source(text);
  TagReader reader(source, source.Text());
  std::string walk;
  for (Tag tag; reader.Next(tag);)
    walk += std::to_string(tag.code) + "=" + std::string(tag.value) + " ";
  return walk;
}

std::string WalkError(std::string_view text) {
  return ErrorOf([&] { Walk(text); });
}

TEST(TagReader, CodeAndValueLinesMakeTags) {
  EXPECT_EQ(Walk("0\nLINE\n8\nRoof\n"), "0=LINE 8=Roof ");
}

TEST(TagReader, CodesMayBePadded) {
  EXPECT_EQ(Walk("  0\nLINE\n\t62 \n     7\n1071\n         1\n"), "0=LINE 62=     7 1071=         1 ");
}

TEST(TagReader, CarriageReturnsBelongToTheLineEnd) {
  EXPECT_EQ(Walk("  0\r\nLINE\r\n  8\r\n\r\n"), "0=LINE 8= ");
}

TEST(TagReader, LineEndsMayBeMixed) {
  EXPECT_EQ(Walk("0\r\nLINE\n8\nRoof\r\n"), "0=LINE 8=Roof ");
}

TEST(TagReader, BlanksOfAValueAreKept) {
  EXPECT_EQ(Walk("1\n  a b  \n"), "1=  a b   ");
}

TEST(TagReader, CommentsArePassedOver) {
  EXPECT_EQ(Walk("999\nmade by hand\n0\nEOF\n999\nend\n"), "0=EOF ");
}

TEST(TagReader, LastLineNeedsNoLineEnd) {
  EXPECT_EQ(Walk("0\nEOF"), "0=EOF ");
}

TEST(TagReader, NegativeCodesAreRead) {
  EXPECT_EQ(Walk("-3\nx\n"), "-3=x ");
}

TEST(TagReader, BadGroupCodeIsToldWithItsLine) {
  EXPECT_EQ(WalkError("0\nLINE\nten\n1.0\n"), "roof.dxf:3: \"ten\" is not a group code");
}

TEST(TagReader, BinaryGarbageInAMessageIsMasked) {
  EXPECT_EQ(WalkError("0\nLINE\n\x01\x7Fgarbage\xFF\n1.0\n"),
            "roof.dxf:3: \"??garbage?\" is not a group code");
}

TEST(TagReader, LongGarbageInAMessageIsCut) {
  EXPECT_EQ(WalkError(std::string(50, 'x') + "\n1\n"),
            "roof.dxf:1: \"" + std::string(40, 'x') + "...\" is not a group code");
}

TEST(TagReader, EmptyCodeLineIsRefused) {
  EXPECT_EQ(WalkError("0\nLINE\n\n1.0\n"), "roof.dxf:3: \"\" is not a group code");
}

TEST(TagReader, HugeGroupCodeIsRefused) {
  EXPECT_EQ(WalkError("99999999999\nx\n"), "roof.dxf:1: \"99999999999\" is not a group code");
}

TEST(TagReader, CodeWithoutValueIsACutFile) {
  EXPECT_EQ(WalkError("0\nLINE\n8\n"),
            "roof.dxf:3: the file is cut short: the value of this group code is missing");
  EXPECT_EQ(WalkError("0\nLINE\n8"),
            "roof.dxf:3: the file is cut short: the value of this group code is missing");
}

TEST(TagReader, MalformedNumberIsToldWithTheLineOfTheValue) {
  const SourceText source = Source("10\n1.5\n20\n1,5\n");
  TagReader reader(source, source.Text());
  Tag tag;
  ASSERT_TRUE(reader.Next(tag));
  EXPECT_EQ(reader.Real(tag), 1.5);
  ASSERT_TRUE(reader.Next(tag));
  EXPECT_EQ(ErrorOf([&] { reader.Real(tag); }), "roof.dxf:4: \"1,5\" is not a number (group 20)");
  EXPECT_EQ(ErrorOf([&] { reader.Integer(tag); }), "roof.dxf:4: \"1,5\" is not a whole number (group 20)");
}

}  // namespace
}  // namespace teskarlt::dxf
