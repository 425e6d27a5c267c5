// ItemRulesTest.cpp - what a window of a catalogue must keep to.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/catalogue/ItemRules.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Each as "kind: message", a warning with a question mark before it.
std::vector<std::string> Told(const ItemTexts& texts) {
  const std::vector<CatalogueFinding> findings = FindingsOf(texts);
  std::vector<std::string> told;
  told.reserve(findings.size());
  for (const CatalogueFinding& finding : findings) {
    told.push_back((finding.isError ? "" : "?") + std::string(KindName(finding.kind)) + ": " +
                   finding.message);
  }
  return told;
}

TEST(ItemRules, SoundWindowHasNoFindings) {
  EXPECT_THAT(Told({"A1", "78", "118.5", "+8", "10", "BICO", "text"}), IsEmpty());
  EXPECT_THAT(Told({"A1"}), IsEmpty());
  EXPECT_THAT(Told({"A1", "", "", "", "", "-"}), IsEmpty());
}

TEST(ItemRules, SizesAreNumbersAboveZero) {
  EXPECT_THAT(Told({"A1", "-5"}), ElementsAre("size: width must be greater than 0 cm, not -5"));
  EXPECT_THAT(Told({"A1", "", "0"}), ElementsAre("size: length must be greater than 0 cm, not 0"));
  EXPECT_THAT(Told({"A1", "", "", "abc"}), ElementsAre("size: frameWidth: \"abc\" is not a number"));
  EXPECT_THAT(Told({"A1", "", "", "", "7,5"}),
              ElementsAre("size: frameDepth: \"7,5\" is not a number; decimals stand behind a point"));
  EXPECT_THAT(Told({"A1", "1e7"}), ElementsAre("size: width must be at most 1000000 cm, not 1e7"));
  for (const char* text : {"inf", "nan", "+-5", "1D2", "78 "})
    EXPECT_FALSE(SizeIn(text)) << text;
}

TEST(ItemRules, FrameLeavesRoomForGlass) {
  EXPECT_THAT(Told({"A1", "78", "118", "39"}),
              ElementsAre("size: frameWidth must be less than half the window (39 cm), not 39"));
  EXPECT_THAT(Told({"A1", "18"}),  // the usual frame is 10 cm wide
              ElementsAre("size: frameWidth must be less than half the window (9 cm), not 10"));
}

TEST(ItemRules, SizesInOtherUnitsAreDoubtful) {
  EXPECT_THAT(Told({"A1", "780"}),
              ElementsAre("?doubtful-size: width of 780 cm: sizes are centimetres; is that meant in "
                          "millimetres (78 cm)?"));
  EXPECT_THAT(Told({"A1", "", "", "0.08"}),
              ElementsAre("?doubtful-size: frameWidth of 0.08 cm: sizes are centimetres; is that meant in "
                          "metres (8 cm)?"));
}

TEST(ItemRules, OpeningCodesAreThoseOfTheDialog) {
  EXPECT_THAT(Told({"A1", "", "", "", "", "QQ"}),
              ElementsAre("opening-code: the opening code \"QQ\" is not understood from \"QQ\" on; teskarlt "
                          "catalogue --help tells the letters"));
  EXPECT_THAT(
      Told({"A1", "", "", "", "", "DDDDDDDDDDD"}),
      ElementsAre("opening-code: the opening code \"DDDDDDDDDDD\" has 11 letters; a window holds 10"));
}

TEST(ItemRules, KeyIsThereAndIsNoHeading) {
  EXPECT_THAT(Told({""}), ElementsAre("key: the window has no key"));
  EXPECT_THAT(Told({"VYROBCE"}),
              ElementsAre("key: the key \"VYROBCE\" begins with VYROBCE, as the heading of a section does"));
  EXPECT_THAT(Told({"A1 "}), ElementsAre("?key: the key \"A1 \" ends with a blank, which belongs to it"));
  EXPECT_THAT(Told({"# old"}), ElementsAre("key: the key \"# old\" begins with #, as a comment does"));
}

TEST(ItemRules, TextsFitIntoAWindow) {
  EXPECT_THAT(Told({"A1", "", "", "", "", "", std::string(199, 'x')}), IsEmpty());
  EXPECT_THAT(Told({"A1", "", "", "", "", "", std::string(200, 'x')}),
              ElementsAre("text: the description has 200 bytes in UTF-8; a window holds 199"));
  EXPECT_THAT(Told({"A\t1"}), ElementsAre("text: the key holds the control character 09"));
}

}  // namespace
}  // namespace teskarlt
