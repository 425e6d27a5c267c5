// NamesTest.cpp - names in use that the tables lack, and tables and entries that a version needs.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

TEST(Names, LayerThatIsNotInTheTableIsAnError) {
  const std::string text = Damaged(Sound(Line("100")), "8|ROOF|100|AcDbLine", "8|ATTIC|100|AcDbLine");
  EXPECT_THAT(Found(text), ElementsAre("error layer-undefined ATTIC"));
  EXPECT_EQ(Checked(text).findings[0].handle, 0x100U);
}

TEST(Names, LayerThatIsNotInTheTableIsDoubtfulInR12) {
  EXPECT_THAT(Found(SoundOld("0|POINT|8|ATTIC|10|0|20|0|")), ElementsAre("warning layer-undefined ATTIC"));
}

TEST(Names, CompareWithoutRegardToCase) {
  EXPECT_THAT(Found(Damaged(Sound(Line("100")), "8|ROOF|100|AcDbLine", "8|Roof|100|AcDbLine")), IsEmpty());
}

TEST(Names, EachIsToldOnceWithTheNumberOfItsUses) {
  const Verdict verdict = Checked(SoundOld("0|POINT|8|ATTIC|10|0|20|0|0|POINT|8|ATTIC|10|0|20|0|"));
  ASSERT_EQ(verdict.findings.size(), 1U);
  EXPECT_EQ(verdict.findings[0].message,
            "the layer \"ATTIC\" is not in the table LAYER; it is used 2 times, here first");
}

TEST(Names, AreToldInTheirOwnCharacters) {
  const Verdict verdict = Checked(Damaged(Sound(Line("100")), "8|ROOF|100|AcDbLine",
                                          "8|st\xF8"
                                          "echa|100|AcDbLine"));
  ASSERT_EQ(verdict.findings.size(), 1U);
  EXPECT_EQ(verdict.findings[0].message,
            "the layer \"st\xC5\x99"
            "echa\" is not in the table LAYER; it is used here");
}

TEST(Names, LinetypeThatIsNotInTheTableIsAnError) {
  EXPECT_THAT(Found(Sound(Line("100", "6|DASHED|"))), ElementsAre("error linetype-undefined DASHED"));
  EXPECT_THAT(Found(SoundOld(OldLine("6|DASHED|"))), ElementsAre("error linetype-undefined DASHED"));
  EXPECT_THAT(Found(SoundOld(OldLine("6|BYBLOCK|"))), IsEmpty());
}

TEST(Names, LinetypeOfALayerThatIsNotInTheTableIsAnError) {
  EXPECT_THAT(Found(Damaged(Sound(), "2|ROOF|70|0|62|7|6|Continuous", "2|ROOF|70|0|62|7|6|HIDDEN")),
              ElementsAre("error linetype-undefined HIDDEN"));
}

TEST(Names, TextStyleThatIsNotInTheTableIsAnError) {
  EXPECT_THAT(Found(SoundOld("0|TEXT|8|ROOF|10|0|20|0|40|1|1|x|7|ROMANS|")),
              ElementsAre("error text-style-undefined ROMANS"));
}

TEST(Names, DimensionStyleThatIsNotInTheTableIsAnError) {
  EXPECT_THAT(Found(SoundOld("0|DIMENSION|8|ROOF|3|ARCH|10|0|20|0|")),
              ElementsAre("error dimension-style-undefined ARCH"));
}

TEST(Names, BlockThatIsNotThereIsAnError) {
  EXPECT_THAT(Found(SoundOld("0|INSERT|8|ROOF|2|TREE|10|0|20|0|")),
              ElementsAre("error block-undefined TREE"));
}

TEST(Names, BlockAndItsEntryNeedEachOther) {
  const std::string entry = "2|*Paper_Space|70|0|0|ENDTAB";
  const std::string more = Entry("BLOCK_RECORD", "1", "1D", "AcDbBlockTableRecord", "TREE");
  EXPECT_THAT(Found(Damaged(Sound(), entry, "2|*Paper_Space|70|0|" + more + "0|ENDTAB")),
              ElementsAre("warning table-count 0", "error block-undefined TREE"));
}

TEST(Names, ApplicationThatIsNotInTheTableIsAnError) {
  EXPECT_THAT(Found(Sound(Line("100", "1001|STRANGER|1070|1|"))),
              ElementsAre("error application-undefined STRANGER"));
  EXPECT_THAT(Found(SoundOld(OldLine("1001|STRANGER|1070|1|"))),
              ElementsAre("error application-undefined STRANGER"));
}

TEST(Names, TableThatTheVersionNeedsIsMissedOnce) {
  const std::string table = Table("UCS", "7", 0, "");
  EXPECT_THAT(
      Found(Damaged(Sound(), table.substr(0, table.size() - 1) + "|0|TABLE|2|APPID", "0|TABLE|2|APPID")),
      ElementsAre("error table-missing ENDSEC"));
}

TEST(Names, EntryThatTheVersionNeedsIsMissedAtTheEndOfItsTable) {
  EXPECT_THAT(Found(Damaged(Sound(), "2|Continuous|70|0", "2|DOTS|70|0")),
              ElementsAre("error record-missing ENDTAB"));
  EXPECT_THAT(Found(Damaged(Sound(), "2|ACAD|70|0", "2|OTHER|70|0")),
              ElementsAre("error record-missing ENDTAB"));
}

TEST(Names, SecondEntryOfANameIsAnError) {
  const std::string text = Damaged(Sound(), "2|FOREIGN|70|0", "2|Acad|70|0");
  EXPECT_THAT(Found(text), ElementsAre("error record-twice Acad"));
}

TEST(Names, TableWithMoreEntriesThanItAnnouncesIsDoubtful) {
  EXPECT_THAT(Found(Damaged(Sound(), "2|LAYER|5|2|330|0|100|AcDbSymbolTable|70|2",
                            "2|LAYER|5|2|330|0|100|AcDbSymbolTable|70|1")),
              ElementsAre("warning table-count 1"));
  EXPECT_THAT(Found(Damaged(Sound(), "2|LAYER|5|2|330|0|100|AcDbSymbolTable|70|2",
                            "2|LAYER|5|2|330|0|100|AcDbSymbolTable|70|9")),
              IsEmpty());
}

TEST(Names, NameWithAForbiddenCharacterIsDoubtful) {
  EXPECT_THAT(Found(Damaged(Sound(), "2|ROOF|70|0", "2|RO/OF|70|0")),
              ElementsAre("warning record-name RO/OF"));
}

TEST(Names, NameOfAnOldDrawingHasNoBlank) {
  EXPECT_THAT(Found(Damaged(Sound(), "2|ROOF|70|0", "2|ROOF TOP|70|0")), IsEmpty());
  EXPECT_THAT(Found(Damaged(SoundOld(""), "2|ROOF|70|0", "2|ROOF TOP|70|0")),
              ElementsAre("warning record-name ROOF TOP"));
}

TEST(Names, NameOfAnOldDrawingHasAtMost31Characters) {
  const std::string name(32, 'A');
  EXPECT_THAT(Found(Damaged(SoundOld(""), "2|ROOF|70|0", "2|" + name + "|70|0")),
              ElementsAre("warning record-name " + name));
}

}  // namespace
}  // namespace teskarlt::check
