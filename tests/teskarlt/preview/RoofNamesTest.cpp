// RoofNamesTest.cpp - where the names of roofs stand in a picture.
#include <gtest/gtest.h>

#include "teskarlt/preview/Letters.h"
#include "teskarlt/preview/RoofNames.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

constexpr LetterHeights HEIGHTS = {0.5, 1};  // metres

// A roof over a rectangle of the plan that rises by its depth towards +y, 45 degrees.
std::string Slope(const std::string& layer, double left, double low, double right, double high) {
  return fmt::format(
      "0 3DFACE|8 {0}|10 {1}|20 {2}|30 0|11 {3}|21 {2}|31 0|12 {3}|22 {4}|32 {5}|13 {1}|23 {4}|33 {5}|",
      layer, left, low, right, high, high - low);
}

RoofNames NamesOf(const std::string& entities, const char* view = "plan", const Zoom& zoom = {}) {
  const Scene scene = SceneOf({.entities = entities}, {.units = {}, .withRoofs = true});
  return PlaceRoofNames(scene, *FindView(view), FrameOf(scene, *FindView(view), zoom), HEIGHTS);
}

TEST(PlaceRoofNames, NameStandsInTheMiddleOfItsRoof) {
  const RoofNames names = NamesOf(Slope("A", 0, 0, 10, 10));
  ASSERT_EQ(names.shown.size(), 1U);
  EXPECT_EQ(names.shown[0].text, "R1");
  EXPECT_EQ(names.shown[0].height, HEIGHTS.most);
  EXPECT_NEAR(names.shown[0].middle.x, 5, 0.5);
  EXPECT_NEAR(names.shown[0].middle.y, 5, 0.5);
}

TEST(PlaceRoofNames, NameKeepsClearOfWhatStandsBeforeItsRoof) {
  // A level board over the middle; with the room around it "R1" is 2 * 0.93 + 0.6 = 2.46 m wide and 1.6 m
  // high.
  const RoofNames names = NamesOf(Slope("A", 0, 0, 10, 10) + Rectangle("B", 3, 3, 7, 7, 20));
  ASSERT_EQ(names.shown.size(), 1U);
  const Vec3& middle = names.shown[0].middle;
  const bool isBeside = middle.x < 3 - 1.23 || middle.x > 7 + 1.23;
  EXPECT_TRUE(isBeside || middle.y < 3 - 0.8 || middle.y > 7 + 0.8) << middle.x << ", " << middle.y;
}

TEST(PlaceRoofNames, LettersAreSmallerOnASmallRoof) {
  // 2.46 m for letters of 1 m, 1.97 m for those of 0.8 m.
  const RoofNames names = NamesOf(Slope("A", 0, 0, 2.2, 4));
  ASSERT_EQ(names.shown.size(), 1U);
  EXPECT_DOUBLE_EQ(names.shown[0].height, 0.8);
}

TEST(PlaceRoofNames, RoofsWithoutRoomAreCounted) {
  const RoofNames names = NamesOf(Slope("A", 0, 0, 10, 10) + Slope("A", 20, 0, 21, 10));
  EXPECT_EQ(names.shown.size(), 1U);
  EXPECT_EQ(names.withoutRoom, 1U);
}

TEST(PlaceRoofNames, HiddenRoofHasNoName) {
  const RoofNames names = NamesOf(Slope("A", 0, 0, 10, 10) + Rectangle("B", -1, -1, 11, 11, 20));
  EXPECT_TRUE(names.shown.empty());
  EXPECT_EQ(names.withoutRoom, 1U);
}

TEST(PlaceRoofNames, RoofThatIsSeenFromBehindIsNotCounted) {
  const RoofNames names = NamesOf(Slope("A", 0, 0, 10, 10), "north");
  EXPECT_TRUE(names.shown.empty());
  EXPECT_EQ(names.withoutRoom, 0U);
}

TEST(PlaceRoofNames, NameStaysInTheFrame) {
  // The frame around the small roof reaches 1 m beyond it, from 5 to 11 in x: less than half of the large
  // roof.
  const RoofNames names =
      NamesOf(Slope("A", 0, -20, 20, -10) + Slope("A", 6, -9, 10, -5), "plan", {.roof = 1});
  EXPECT_EQ(names.shown.size(), 1U);
  EXPECT_EQ(names.shown[0].text, "R2");
  EXPECT_EQ(names.withoutRoom, 0U);
}

TEST(ReadScene, RoofsAreThoseThatFallAndAreSeen) {
  const Parts parts = {
      .tables = "0 LAYER|2 OFF|70 1|62 1|",
      .entities = Slope("A", 0, 0, 4, 4) + Rectangle("A", 5, 0, 9, 4, 3) + Slope("OFF", 10, 0, 14, 4)};
  const Scene scene = SceneOf(parts, {.units = {}, .withRoofs = true});
  ASSERT_EQ(scene.roofs.size(), 1U);
  EXPECT_EQ(scene.roofs[0].name, "R1");
  EXPECT_TRUE(SceneOf(parts).roofs.empty());
}

TEST(FrameOf, RoofHasAQuarterMoreAroundIt) {
  const Scene scene = SceneOf({.entities = Slope("A", 0, 0, 4, 4) + Slope("A", 50, 0, 99, 4)},
                              {.units = {}, .withRoofs = true});
  const Frame frame = FrameOf(scene, *FindView("plan"), {.roof = 0});
  EXPECT_NEAR(frame.left, -1, 0.01);
  EXPECT_NEAR(frame.right, 5, 0.01);
}

TEST(StrokesOf, LettersStandAroundTheMiddle) {
  double left = 0;
  double right = 0;
  for (const std::vector<Vec3>& stroke : StrokesOf("R88")) {
    for (const Vec3& point : stroke) {
      EXPECT_LE(std::abs(point.y), 0.5);
      left = std::min(left, point.x);
      right = std::max(right, point.x);
    }
  }
  EXPECT_LT(right, 1.5 * LETTER_ADVANCE);
  EXPECT_NEAR(left, -right, 0.05);
}

TEST(StrokesOf, EachLetterOfANameHasStrokes) {
  for (const char* const letter : {"R", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9"})
    EXPECT_FALSE(StrokesOf(letter).empty()) << letter;
  EXPECT_TRUE(StrokesOf("?").empty());
}

}  // namespace
}  // namespace teskarlt::preview
