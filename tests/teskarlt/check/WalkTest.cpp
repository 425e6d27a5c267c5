// WalkTest.cpp - damage to sections, tables, blocks and to the file's end.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

TEST(Walk, GroupCodeThatIsNoNumberEndsTheCheck) {
  const std::string text = Damaged(Sound(Line("100")), "11|1.5|21|0.0", "eleven|1.5|21|x");
  EXPECT_THAT(Found(text), ElementsAre("error group-code eleven"));
}

TEST(Walk, FileThatEndsBehindAGroupCodeIsCutShort) {
  const std::string text = Sound();
  EXPECT_THAT(Found(text.substr(0, text.size() - 4)), ElementsAre("error file-cut-short 0"));
  EXPECT_THAT(Found(text.substr(0, text.size() - 5)), ElementsAre("error file-cut-short 0"));
}

TEST(Walk, MissingEndOfFileIsFoundOnTheLastLine) {
  EXPECT_THAT(Found(Damaged(Sound(), "0|ENDSEC|0|EOF", "0|ENDSEC")), ElementsAre("error eof-missing ENDSEC"));
}

TEST(Walk, BytesBehindTheEndAreDoubtful) {
  EXPECT_THAT(Found(Sound() + "rubbish\n"), ElementsAre("warning bytes-behind-eof rubbish"));
}

TEST(Walk, BlankLinesBehindTheEndAreNoFinding) {
  EXPECT_THAT(Found(Sound() + "\r\n \n\x1A"), IsEmpty());
}

TEST(Walk, EntityOutsideOfTheSectionsIsAnError) {
  const std::string text =
      Damaged(Sound(), "0|ENDSEC|0|SECTION|2|OBJECTS", "0|ENDSEC|0|POINT|0|SECTION|2|OBJECTS");
  EXPECT_THAT(Found(text), ElementsAre("error outside-section POINT"));
}

TEST(Walk, EndOfASectionThatIsNotOpenIsAnError) {
  EXPECT_THAT(Found(Damaged(Sound(), "0|ENDSEC|0|EOF", "0|ENDSEC|0|ENDSEC|0|EOF")),
              ElementsAre("error outside-section ENDSEC"));
}

TEST(Walk, SectionWithoutItsEndIsFoundWhereItBegins) {
  const std::string text = Damaged(Sound(), "0|ENDSEC|0|SECTION|2|OBJECTS", "0|SECTION|2|OBJECTS");
  EXPECT_THAT(Found(text), ElementsAre("error section-open SECTION"));
  EXPECT_EQ(Checked(text).findings[0].message,
            "the section \"ENTITIES\" that begins here is not closed by ENDSEC");
}

TEST(Walk, SecondSectionOfANameIsAnError) {
  const std::string text = Damaged(Sound(), "0|ENDSEC|0|EOF", "0|ENDSEC|0|SECTION|2|OBJECTS|0|ENDSEC|0|EOF");
  EXPECT_THAT(Found(text), ElementsAre("error section-twice OBJECTS"));
}

TEST(Walk, DrawingWithoutEntitiesSectionIsAnError) {
  EXPECT_THAT(Found(Tags("0|SECTION|2|HEADER|0|ENDSEC|0|EOF")), ElementsAre("error section-missing EOF"));
}

TEST(Walk, TableWithoutItsEndIsFoundWhereItBegins) {
  const std::string text = Damaged(Sound(), "0|ENDTAB|0|TABLE|2|UCS", "0|TABLE|2|UCS");
  EXPECT_THAT(Found(text), ElementsAre("error table-open TABLE"));
}

TEST(Walk, BlockWithoutItsEndIsFoundWhereItBegins) {
  const std::string text =
      Damaged(Sound(), "0|ENDBLK|5|44|330|1E|100|AcDbEntity|8|0|100|AcDbBlockEnd|0|ENDSEC", "0|ENDSEC");
  EXPECT_THAT(Found(text), ElementsAre("error block-open BLOCK"));
}

}  // namespace
}  // namespace teskarlt::check
