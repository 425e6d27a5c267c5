// TextsTest.cpp - texts that are too long or that cannot be read.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

std::string Text(const std::string& text, std::string_view version = "AC1015") {
  return Sound(
      "0|TEXT|5|100|330|1F|100|AcDbEntity|8|ROOF|100|AcDbText|10|0|20|0|40|1|1|" + text + "|100|AcDbText|",
      "", version);
}

TEST(Texts, LongTextIsDoubtful) {
  EXPECT_THAT(Found(Text(std::string(2049, 'x'))), IsEmpty());
  const std::string text(2050, 'x');
  EXPECT_THAT(Found(Text(text)), ElementsAre("warning text-length " + text));
}

TEST(Texts, OldTextIsLongFrom256BytesOn) {
  const std::string text(256, 'x');
  EXPECT_THAT(Found(SoundOld("0|TEXT|8|ROOF|10|0|20|0|40|1|1|" + text + "|")),
              ElementsAre("warning text-length " + text));
}

TEST(Texts, BytesThatAreNoUtf8AreAnErrorFromR2007On) {
  EXPECT_THAT(Found(Text("st\xC5\x99"
                         "echa",
                         "AC1021")),
              IsEmpty());
  EXPECT_THAT(Found(Text("st\xF8"
                         "echa",
                         "AC1021")),
              ElementsAre("error text-bytes st\xF8"
                          "echa"));
}

TEST(Texts, Utf8InADrawingWithACodePageIsDoubtful) {
  EXPECT_THAT(Found(Text("st\xF8"
                         "echa")),
              IsEmpty());
  EXPECT_THAT(Found(Text("st\xC5\x99"
                         "echa")),
              ElementsAre("warning text-bytes st\xC5\x99"
                          "echa"));
}

TEST(Texts, ByteThatTheCodePageDoesNotHaveIsDoubtful) {
  EXPECT_THAT(Found(Text("a\x81")), ElementsAre("warning text-bytes a\x81"));
}

TEST(Texts, UnknownCodePageIsToldOnceAndOnlyWhereItMatters) {
  EXPECT_THAT(Found(Damaged(Text("plain"), "3|ANSI_1250", "3|MARTIAN")), IsEmpty());
  EXPECT_THAT(
      Found(Damaged(Damaged(Text("\xF8"), "3|ANSI_1250", "3|MARTIAN"), "40|1|1|\xF8", "40|1|1|\xF8|1|\xE1")),
      ElementsAre("warning code-page \xF8"));
}

}  // namespace
}  // namespace teskarlt::check
