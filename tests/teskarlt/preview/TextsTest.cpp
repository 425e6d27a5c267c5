// TextsTest.cpp - the lines of texts and where they stand.
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/preview/Texts.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double ROUNDING = 1e-9;

// The texts of a drawing with a line, so that there is something to be seen, and these entities.
std::vector<SceneText> TextsWith(const std::string& entities, const std::string& blocks = "") {
  return SceneOf({.blocks = blocks, .entities = Line("A", 0, 0, 10, 5) + entities}).texts;
}

void ExpectAt(const Vec3& point, double x, double y) {
  EXPECT_NEAR(point.x, x, ROUNDING);
  EXPECT_NEAR(point.y, y, ROUNDING);
}

TEST(Texts, TextStandsAtItsPoint) {
  const auto texts = TextsWith("0 TEXT|8 A|10 2|20 3|40 0.5|1 Kitchen|");
  ASSERT_THAT(texts, SizeIs(1));
  EXPECT_EQ(texts[0].text, "Kitchen");
  EXPECT_EQ(texts[0].anchor, TextAnchor::Start);
  ExpectAt(texts[0].at, 2, 3);
  ExpectAt(texts[0].along, 0.5, 0);
  ExpectAt(texts[0].up, 0, 0.5);
}

TEST(Texts, RotationAndWidthTurnAndStretch) {
  const auto texts = TextsWith("0 TEXT|8 A|10 2|20 3|40 0.5|41 2|50 90|1 Kitchen|");
  ASSERT_THAT(texts, SizeIs(1));
  ExpectAt(texts[0].along, 0, 1);
  ExpectAt(texts[0].up, -0.5, 0);
}

TEST(Texts, AlignedTextStandsAtItsSecondPoint) {
  // To the right of the point and below its upper edge.
  const auto texts = TextsWith("0 TEXT|8 A|10 2|20 3|11 7|21 8|40 0.5|72 2|73 3|1 Kitchen|");
  ASSERT_THAT(texts, SizeIs(1));
  EXPECT_EQ(texts[0].anchor, TextAnchor::End);
  ExpectAt(texts[0].at, 7, 7.5);
}

TEST(Texts, FittedTextLiesBetweenItsPoints) {
  const auto texts = TextsWith("0 TEXT|8 A|10 2|20 3|11 2|21 7|40 0.5|72 5|1 Kitchen|");
  ASSERT_THAT(texts, SizeIs(1));
  EXPECT_EQ(texts[0].anchor, TextAnchor::Middle);
  ExpectAt(texts[0].at, 2, 5);
  ExpectAt(texts[0].along, 0, 0.5);
}

TEST(Texts, MirroredTextRunsBackwards) {
  const auto texts = TextsWith("0 TEXT|8 A|10 2|20 3|40 0.5|71 2|1 Kitchen|");
  ASSERT_THAT(texts, SizeIs(1));
  ExpectAt(texts[0].along, -0.5, 0);
}

TEST(Texts, TextInABlockIsTurnedAndScaledWithIt) {
  const auto texts = TextsWith("0 INSERT|8 A|2 B|10 5|20 5|41 2|42 2|50 90|",
                               "0 BLOCK|8 0|2 B|10 0|20 0|0 TEXT|8 0|10 1|20 0|40 0.5|1 D|0 ENDBLK|");
  ASSERT_THAT(texts, SizeIs(1));
  ExpectAt(texts[0].at, 5, 7);
  ExpectAt(texts[0].along, 0, 1);
}

TEST(Texts, AttributesOfAnInsertStandWhereTheySay) {
  const auto texts = TextsWith(
      "0 INSERT|8 A|2 B|66 1|10 5|20 5|50 90|"
      "0 ATTRIB|8 A|10 1|20 2|40 0.5|1 D 17|2 NO|70 0|0 ATTRIB|8 A|10 1|20 2|40 0.5|1 secret|2 ID|70 1|0 "
      "SEQEND|8 A|",
      "0 BLOCK|8 0|2 B|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|0 ENDBLK|");
  ASSERT_THAT(texts, SizeIs(1));
  EXPECT_EQ(texts[0].text, "D 17");
  ExpectAt(texts[0].at, 1, 2);
}

TEST(Texts, LinesOfAnMtextStandBelowOneAnother) {
  const auto texts = TextsWith("0 MTEXT|8 A|10 2|20 8|40 0.3|71 1|1 Bath\\Ph = 2.50|");
  ASSERT_THAT(texts, SizeIs(2));
  EXPECT_EQ(texts[0].text, "Bath");
  ExpectAt(texts[0].at, 2, 7.7);
  EXPECT_EQ(texts[1].text, "h = 2.50");
  ExpectAt(texts[1].at, 2, 7.2);  // 5/3 of the height further down
}

TEST(Texts, MtextIsAttachedByItsMiddle) {
  const auto texts = TextsWith("0 MTEXT|8 A|10 2|20 8|40 0.3|71 5|1 Bath|");
  ASSERT_THAT(texts, SizeIs(1));
  EXPECT_EQ(texts[0].anchor, TextAnchor::Middle);
  ExpectAt(texts[0].at, 2, 7.85);
}

TEST(Texts, MtextRunsAlongItsDirection) {
  const auto texts = TextsWith("0 MTEXT|8 A|10 2|20 8|11 0|21 3|40 0.3|71 7|1 Bath|");
  ASSERT_THAT(texts, SizeIs(1));
  ExpectAt(texts[0].along, 0, 0.3);
}

TEST(Texts, LongLinesOfAnMtextAreBrokenAtBlanks) {
  // 2.5 wide are a little more than 10 letters of 0.24 each.
  const auto texts = TextsWith("0 MTEXT|8 A|10 2|20 8|40 0.3|41 2.5|71 1|1 one two three four|");
  ASSERT_THAT(texts, SizeIs(2));
  EXPECT_EQ(texts[0].text, "one two");
  EXPECT_EQ(texts[1].text, "three four");
}

TEST(Texts, LongContentIsReadInItsChunks) {
  const auto texts = TextsWith("0 MTEXT|8 A|10 2|20 8|40 0.3|3 Living |1 room|");
  ASSERT_THAT(texts, SizeIs(1));
  EXPECT_EQ(texts[0].text, "Living room");
}

TEST(Texts, FormattingOfAnMtextIsLeftOut) {
  EXPECT_THAT(PlainLines(R"({\fArial|b1|i0;Bath} \H0.7x;\C1;7\S1/2; m\~x)"), ElementsAre("Bath 71/2 m x"));
  EXPECT_THAT(PlainLines(R"(a\\b \{c\} \Lunder\l \S3^4;)"), ElementsAre(R"(a\b {c} under 3/4)"));
  EXPECT_THAT(PlainLines(R"(\pi0,l2;item\Pnext\H1)"), ElementsAre("item", "next"));
}

TEST(Texts, PercentCodesAreTheirSigns) {
  EXPECT_EQ(PlainText("35%%d %%p0.00 %%c20 5%%% %%uline%%u"), "35° ±0.00 ⌀20 5% line");
  EXPECT_EQ(PlainText("100%%"), "100%%");
}

TEST(Texts, WhatShowsNothingIsNone) {
  EXPECT_THAT(TextsWith("0 TEXT|8 A|10 2|20 3|40 0.5|1  |"), IsEmpty());
  EXPECT_THAT(TextsWith("0 TEXT|8 A|10 2|20 3|40 0|1 x|"), IsEmpty());
}

TEST(Texts, LevelHatchIsAFilling) {
  const Scene scene =
      SceneOf({.entities = Line("A", 0, 0, 10, 5) + "0 HATCH|8 A|10 0|20 0|30 0|2 SOLID|70 1|71 0|91 1|92 "
                                                    "2|72 0|73 1|93 3|10 1|20 1|10 3|20 1|10 3|20 2|"
                                                    "97 0|75 0|76 1|98 0|"});
  ASSERT_THAT(scene.fillings, SizeIs(1));
  EXPECT_THAT(scene.fillings[0].rings.at(0), SizeIs(3));
  EXPECT_EQ(scene.planOnly.at("HATCH"), 1);
  EXPECT_THAT(scene.leftOut, IsEmpty());
}

}  // namespace
}  // namespace teskarlt::preview
