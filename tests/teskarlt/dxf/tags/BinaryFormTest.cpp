// BinaryFormTest.cpp - binary drawings are read as text and keep the bytes of all that is not touched.
#include <bit>
#include <cstdint>

#include "teskarlt/dxf/tags/BinaryForm.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

using namespace std::string_literals;

// Writes a binary drawing tag by tag.
class Writer {
 public:
  explicit Writer(bool hasShortCodes) : hasShortCodes_(hasShortCodes) {}

  Writer& Text(int code, const std::string& text) { return Value(code, text + '\0'); }
  Writer& Integer(int code, std::uint64_t value, int size) { return Value(code, Bytes(value, size)); }
  Writer& Real(int code, double value) { return Value(code, Bytes(std::bit_cast<std::uint64_t>(value), 8)); }
  Writer& Value(int code, const std::string& bytes) {
    if (hasShortCodes_ && code < 255) {
      bytes_ += static_cast<char>(code);
    } else {
      bytes_ += (hasShortCodes_ ? "\xFF" : "") + Bytes(static_cast<std::uint64_t>(code), 2);
    }
    bytes_ += bytes;
    return *this;
  }
  const std::string& Out() const { return bytes_; }

 private:
  static std::string Bytes(std::uint64_t value, int size) {
    std::string bytes;
    for (; size > 0; --size, value >>= 8U)
      bytes += static_cast<char>(value & 0xFFU);
    return bytes;
  }

  bool hasShortCodes_;
  std::string bytes_ = "AutoCAD Binary DXF\r\n\x1A\0"s;
};

Writer WithEntities(bool hasShortCodes = false) {
  Writer writer(hasShortCodes);
  writer.Text(0, "SECTION").Text(2, "ENTITIES");
  return writer;
}

std::string Ended(Writer writer) {
  return writer.Text(0, "ENDSEC").Text(0, "EOF").Out();
}

// The lines that the entities of a drawing become, with "|" for line ends.
std::string Lines(const std::string& drawing) {
  const Document document = Parsed(drawing);
  const std::string_view text = document.SectionText("ENTITIES");
  std::string lines;
  for (const char byte : text.substr(std::string_view("0\nSECTION\n2\nENTITIES\n").size()))
    lines += byte == '\n' ? '|' : byte;
  return lines;
}

class BinaryForm : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(CodesOfOneByteAndOfTwo, BinaryForm, testing::Bool());

TEST_P(BinaryForm, NumbersHaveTheWidthOfTheirCode) {
  Writer writer = WithEntities(GetParam());
  writer.Text(0, "LINE").Real(10, -0.1).Integer(62, 0xFFFF, 2).Integer(92, 0xFFFFFFFE, 4).Integer(160, 7, 8);
  writer.Integer(290, 200, 1).Real(210, 1e300).Real(1040, 2.5).Integer(1070, 3, 2).Integer(1071, 4, 4);
  EXPECT_EQ(Lines(Ended(writer)),
            "0|LINE|10|-0.1|62|-1|92|-2|160|7|290|200|210|1e+300|1040|2.5|1070|3|1071|4|");
}

TEST_P(BinaryForm, ChunksAreHexadecimalDigits) {
  Writer writer = WithEntities(GetParam());
  writer.Text(0, "LINE").Value(310, "\x02\x00\xFF"s).Value(1004, "\x00"s);
  EXPECT_EQ(Lines(Ended(writer)), "0|LINE|310|00FF|1004||");
}

TEST_P(BinaryForm, LineEndInATextIsEscaped) {
  Writer writer = WithEntities(GetParam());
  writer.Text(0, "TEXT").Text(1, "a\nb\r");
  EXPECT_EQ(Lines(Ended(writer)), "0|TEXT|1|a^Jb^M|");
}

TEST_P(BinaryForm, UnchangedDrawingKeepsItsBytes) {
  Writer writer = WithEntities(GetParam());
  writer.Text(999, "made by hand").Text(0, "TEXT").Text(1, "a\nb").Real(40, std::bit_cast<double>(~0ULL));
  const std::string drawing = Ended(writer) + "behind\0EOF"s;
  EXPECT_EQ(Parsed(drawing).Serialize(), drawing);
}

TEST_P(BinaryForm, RemovedEntityLeavesTheBytesOfTheOthers) {
  Writer writer = WithEntities(GetParam());
  const std::string kept = Writer(writer).Text(0, "POINT").Real(10, 0.1).Out();
  Writer both = writer.Text(0, "POINT").Real(10, 0.1).Text(0, "LINE").Real(10, 0.2);
  Document document = Parsed(Ended(both) + "rest");
  document.RemoveEntity(document.Entities()[1]);
  Writer end(GetParam());
  const std::size_t begin = end.Out().size();
  EXPECT_EQ(document.Serialize(), kept + Ended(end).substr(begin) + "rest");
}

TEST_P(BinaryForm, AddedEntityIsBinary) {
  Document document = Parsed(Ended(WithEntities(GetParam())));
  const TypedTag groups[] = {{0, "POINT"}, {8, "0"}, {10, Point{1, 2, 0.1}}, {62, std::int64_t{-3}}};
  document.AddEntity(groups);
  Writer point(GetParam());
  const std::size_t begin = point.Out().size();
  point.Text(0, "POINT").Text(8, "0").Real(10, 1).Real(20, 2).Real(30, 0.1).Integer(62, 0xFFFD, 2);
  EXPECT_THAT(document.Serialize(), testing::HasSubstr(Ended(point).substr(begin)));
}

TEST_P(BinaryForm, DrawingCutInAnyPlaceIsRefusedWithTheOffsetOfTheCutTag) {
  Writer writer = WithEntities(GetParam());
  const std::string drawing = Ended(writer.Text(0, "LINE").Real(10, 1).Value(310, "\x02zz"));
  for (std::size_t size = 22; size < drawing.size(); ++size) {
    EXPECT_THAT(LoadError(drawing.substr(0, size)),
                testing::AllOf(testing::StartsWith("roof.dxf: byte "),
                               testing::HasSubstr(": the file is cut short")));
  }
}

TEST(BinaryReader, CutValueIsNamedByTheOffsetOfItsTag) {
  // 22 bytes of the beginning, 10 of the section, 11 of its name.
  const std::string drawing = WithEntities().Value(10, "1234567").Out();
  EXPECT_EQ(LoadError(drawing), "roof.dxf: byte 43: the file is cut short in the tag that begins here");
}

TEST(BinaryReader, MissingEndIsNamedByTheOffset) {
  EXPECT_EQ(LoadError(WithEntities().Text(0, "ENDSEC").Out()),
            "roof.dxf: byte 52: the file is cut short: EOF is missing at its end");
}

TEST(BinaryReader, UnknownGroupCodeIsNamedByTheOffset) {
  EXPECT_EQ(LoadError(Ended(WithEntities().Text(5000, "x"))), "roof.dxf: byte 43: 5000 is not a group code");
}

TEST(BinaryReader, DamagedBeginningIsNamedByTheOffset) {
  EXPECT_EQ(LoadError("AutoCAD Binary DXF\n\x1A\0\0SECTION\0"s),
            "roof.dxf: is a binary DXF drawing with damage at byte 18: its first 22 bytes are not as they "
            "should be");
}

TEST(BinaryReader, DrawingMayBeginWithAComment) {
  for (const bool hasShortCodes : {false, true}) {
    Writer writer(hasShortCodes);
    writer.Text(999, "hello").Text(0, "SECTION").Text(2, "ENTITIES").Text(0, "POINT");
    EXPECT_EQ(Parsed(Ended(writer)).Entities().size(), 1U);
  }
}

TEST(BinaryReader, DamagedPlaceOfTheTextIsNamedByItsOffset) {
  EXPECT_EQ(LoadError(Writer(false).Text(0, "TABLE").Text(0, "EOF").Out()),
            "roof.dxf: byte 22: a section should begin here, not \"TABLE\" (group 0)");
}

TEST(WriteBinary, NumberThatTheCodeCannotHoldIsRefused) {
  std::string out;
  EXPECT_EQ(ErrorOf([&] { AppendBinary("roof.dxf", "70\n40000\n", true, out); }),
            "roof.dxf: group 70 of a binary drawing cannot hold \"40000\"");
}

TEST(WriteBinary, ChunkIsItsSizeAndItsBytes) {
  std::string out;
  AppendBinary("roof.dxf", "310\n0aFF\n", false, out);
  EXPECT_EQ(out, "\x36\x01\x02\x0A\xFF"s);  // 310 is 0x136
}

TEST(WriteBinary, TextThatIsNoChunkIsRefused) {
  // Its size is one byte: 255 bytes are the most.
  for (const std::string& digits : {"0"s, "0g"s, "zz"s, std::string(512, '0')}) {
    std::string out;
    EXPECT_THAT(
        ErrorOf([&] { AppendBinary("roof.dxf", "310\n" + digits + "\n", false, out); }),
        testing::StartsWith("roof.dxf: group 310 of a binary drawing cannot hold \"" + digits.substr(0, 20)));
  }
}

TEST(WriteBinary, TextThatIsNoNumberIsRefused) {
  for (const std::string_view tag : {"40\nx\n", "70\nx\n", "290\n256\n"}) {
    std::string out;
    EXPECT_THAT(ErrorOf([&] { AppendBinary("roof.dxf", tag, true, out); }),
                testing::HasSubstr("cannot hold"));
  }
}

}  // namespace
}  // namespace teskarlt::dxf
