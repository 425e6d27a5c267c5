// WindowTagTest.cpp - tags of windows as they stand in drawings.
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/WindowTag.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

// The data of a part of the tag of window 7 that was put at (100, 50).
std::string Data(int role) {
  return fmt::format("|1001 TK_LT_TAG|1070 {}|1071 7|1010 100|1020 50|1030 0", role);
}

std::string Text(double x, const std::string& data = Data(0)) {
  return fmt::format("0 TEXT|8 0|10 0|20 0|11 {}|21 50|40 10|1 W07|72 1|73 2", x) + data;
}

std::string Circle(double x) {
  return fmt::format("|0 CIRCLE|8 0|10 {}|20 50|40 20", x) + Data(2);
}

std::string Leader(double x) {
  return fmt::format("|0 LINE|8 0|10 {}|20 50|11 {}|21 50", x - 20, x - 40) + Data(1);
}

std::vector<WindowTag> TagsIn(const dxf::Document& drawing) {
  return FindWindowTags(drawing);
}

TEST(WindowTag, IsReadWithItsPlaces) {
  const dxf::Document drawing = Drawing("", Groups(Text(100) + Circle(100) + Leader(100)));
  const std::vector<WindowTag> tags = TagsIn(drawing);
  ASSERT_EQ(tags.size(), 1U);
  EXPECT_EQ(tags[0].number, 7);
  EXPECT_EQ(tags[0].text, "W07");
  EXPECT_EQ(tags[0].height, 10);
  EXPECT_EQ(tags[0].place.x, 100);
  EXPECT_FALSE(tags[0].IsMoved());
  EXPECT_EQ(tags[0].Shape(), TagShape::Circle);
  ASSERT_TRUE(tags[0].leaderEnd);
  EXPECT_EQ(tags[0].leaderEnd->x, 60);
  EXPECT_EQ(tags[0].parts.size(), 3U);
}

TEST(WindowTag, IsMovedWhereItsTextLiesElsewhere) {
  const dxf::Document drawing = Drawing("", Groups(Text(130)));
  const std::vector<WindowTag> tags = TagsIn(drawing);
  ASSERT_EQ(tags.size(), 1U);
  EXPECT_TRUE(tags[0].IsMoved());
  EXPECT_EQ(tags[0].put.x, 100);
  EXPECT_FALSE(tags[0].leaderEnd);
  EXPECT_EQ(tags[0].Shape(), TagShape::None);
}

TEST(WindowTag, HasABoxByItsLowerEdge) {
  const dxf::Document drawing =
      Drawing("", Groups(Text(100) + "|0 LINE|8 0|10 80|20 40|11 120|21 40" + Data(3)));
  EXPECT_EQ(TagsIn(drawing)[0].Shape(), TagShape::Box);
}

TEST(WindowTag, PartsOfCopiesAreThoseOfTheNearestText) {
  const dxf::Document drawing = Drawing(
      "", Groups(Text(100) + "|" + Text(500) + Circle(500) + Leader(500) + Circle(100) + Leader(100)));
  const std::vector<WindowTag> tags = TagsIn(drawing);
  ASSERT_EQ(tags.size(), 2U);
  for (const WindowTag& tag : tags) {
    EXPECT_EQ(tag.parts.size(), 3U);
    ASSERT_TRUE(tag.leaderEnd);
    EXPECT_EQ(tag.leaderEnd->x, tag.place.x - 40);
  }
}

TEST(WindowTag, PartsWithoutATextAreATagThatHasLostIt) {
  const dxf::Document drawing = Drawing("", Groups((Circle(100) + Leader(100)).substr(1)));
  const std::vector<WindowTag> tags = TagsIn(drawing);
  ASSERT_EQ(tags.size(), 1U);
  EXPECT_FALSE(tags[0].HasText());
  EXPECT_EQ(tags[0].parts.size(), 2U);
}

TEST(WindowTag, IsMadeOfNothingElse) {
  for (const std::string& data : {Data(9), Data(-1), Data(1), std::string("|1001 TK_LT_TAG|1071 7"),
                                  std::string("|1001 OTHER|1000 TK_LT_TAG")}) {
    const dxf::Document drawing = Drawing("", Groups(Text(100, data)));
    EXPECT_TRUE(TagsIn(drawing).empty()) << data;
  }
}

}  // namespace
}  // namespace teskarlt
