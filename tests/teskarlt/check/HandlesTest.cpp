// HandlesTest.cpp - handles, owners and references that lead nowhere.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

TEST(Handles, ObjectWithoutHandleIsAnError) {
  EXPECT_THAT(Found(Damaged(Sound(Line("100")), "5|100|330|1F", "330|1F")),
              ElementsAre("error handle-missing LINE"));
  EXPECT_THAT(Found(Damaged(Sound(), "105|A1|330|A", "330|A")), ElementsAre("error handle-missing DIMSTYLE"));
  EXPECT_THAT(Found(Damaged(Sound(Line("100")), "5|100|330|1F", "5|0|330|1F")),
              ElementsAre("error handle-missing 0"));
}

TEST(Handles, OldDrawingNeedsNone) {
  EXPECT_THAT(Found(SoundOld(OldLine())), IsEmpty());
}

TEST(Handles, HandleUsedTwiceIsFoundAtItsSecondUse) {
  const std::string text = Sound(Line("100") + Line("22"));
  EXPECT_THAT(Found(text), ElementsAre("error handle-twice 22"));
  EXPECT_EQ(Checked(text).findings[0].message, "the LINE has the handle 22, and so has the LAYER before it");
}

TEST(Handles, HandlesWithAndWithoutLeadingZeroAreTheSame) {
  EXPECT_THAT(Found(SoundOld("0|POINT|5|A0|8|ROOF|10|0|20|0|0|POINT|5|0a0|8|ROOF|10|0|20|0|")),
              ElementsAre("error handle-twice 0a0"));
}

TEST(Handles, SeedHasToBeAboveTheHighestHandle) {
  EXPECT_THAT(Found(Damaged(Sound(Line("100")), "5|FFFF", "5|101")), IsEmpty());
  EXPECT_THAT(Found(Damaged(Sound(Line("100")), "5|FFFF", "5|100")), ElementsAre("error handle-seed 100"));
}

TEST(Handles, EntityWithoutOwnerIsAnError) {
  EXPECT_THAT(Found(Damaged(Sound(Line("100")), "5|100|330|1F", "5|100")),
              ElementsAre("error owner-missing LINE"));
  EXPECT_THAT(Found(Damaged(Sound(Line("100")), "5|100|330|1F", "5|100|330|0")),
              ElementsAre("error owner-missing 0"));
}

TEST(Handles, OwnerThatDoesNotExistIsAnError) {
  EXPECT_THAT(Found(Damaged(Sound(Line("100")), "5|100|330|1F", "5|100|330|77")),
              ElementsAre("error owner-dangling 77"));
  EXPECT_THAT(Found(Damaged(Sound(), "5|D|330|C", "5|D|330|77")), ElementsAre("error owner-dangling 77"));
}

TEST(Handles, OwnerOfTheWrongKindIsAnError) {
  EXPECT_THAT(Found(Damaged(Sound(Line("100")), "5|100|330|1F", "5|100|330|22")),
              ElementsAre("error owner-kind 22"));
  EXPECT_THAT(Found(Damaged(Sound(), "5|22|330|2", "5|22|330|21")), ElementsAre("error owner-kind 21"));
}

TEST(Handles, OwnersAreNotAskedForBeforeR2000) {
  const std::string text = Damaged(Sound(Line("100")), "1|AC1015", "1|AC1012");
  EXPECT_THAT(Found(Damaged(text, "5|100|330|1F", "5|100")), IsEmpty());
}

TEST(Handles, MemberOfAGroupHasToExist) {
  const std::string group = "0|GROUP|5|101|330|D|100|AcDbGroup|300||70|1|71|1|340|100|340|";
  EXPECT_THAT(Found(Sound(Line("100"), group + "100|")), IsEmpty());
  EXPECT_THAT(Found(Sound(Line("100"), group + "1AB|")), ElementsAre("error group-member 1AB"));
}

TEST(Handles, EntryOfADictionaryHasToExist) {
  EXPECT_THAT(Found(Damaged(Sound(), "3|ACAD_GROUP|350|D", "3|ACAD_GROUP|350|D|3|GONE|360|1AB")),
              ElementsAre("error dictionary-entry 1AB"));
}

TEST(Handles, ReactorHasToExist) {
  const std::string line = Sound(Line("100"));
  EXPECT_THAT(Found(Damaged(line, "5|100|330|1F", "5|100|102|{ACAD_REACTORS|330|D|102|}|330|1F")), IsEmpty());
  EXPECT_THAT(Found(Damaged(line, "5|100|330|1F", "5|100|102|{ACAD_REACTORS|330|1AB|102|}|330|1F")),
              ElementsAre("error reactor 1AB"));
}

TEST(Handles, ExtensionDictionaryHasToExist) {
  EXPECT_THAT(
      Found(Damaged(Sound(Line("100")), "5|100|330|1F", "5|100|102|{ACAD_XDICTIONARY|360|1AB|102|}|330|1F")),
      ElementsAre("error extension-dictionary 1AB"));
}

TEST(Handles, EntityOfADrawingOrderHasToExistButItsSortHandleNeedNot) {
  const std::string order = "0|SORTENTSTABLE|5|101|330|D|100|AcDbSortentsTable|330|1F|331|100|5|1AC|331|";
  EXPECT_THAT(Found(Sound(Line("100"), order + "1AB|5|1AD|")), ElementsAre("error draw-order 1AB"));
}

TEST(Handles, PlotStyleOfALayerHasToExist) {
  EXPECT_THAT(Found(Damaged(Sound(), "2|ROOF|70|0|62|7", "2|ROOF|70|0|390|1AB|62|7")),
              ElementsAre("error plot-style 1AB"));
}

}  // namespace
}  // namespace teskarlt::check
