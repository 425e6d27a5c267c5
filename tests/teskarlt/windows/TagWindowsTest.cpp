// TagWindowsTest.cpp - tags beside windows that the real module draws.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/PlanOutline.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/windows/EraseWindows.h"
#include "teskarlt/windows/MarkWindows.h"
#include "teskarlt/windows/RenumberCopies.h"
#include "teskarlt/windows/TagDrawing.h"
#include "teskarlt/windows/TagWindows.h"
#include "teskarlt/windows/WindowEditor.h"
#include "teskarlt/windows/WindowInserter.h"
#include "teskarlt/windows/WindowMarks.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;

std::vector<std::string> TextsOf(const dxf::Document& drawing) {
  std::vector<std::string> texts;
  for (const WindowTag& tag : FindWindowTags(drawing))
    texts.push_back(tag.text);
  return texts;
}

// Whether the tag leads to the window.
bool Leads(const dxf::Document& drawing, const WindowTag& tag, const DrawnWindow& window) {
  return tag.leaderEnd &&
         PlanDistance(NearestOn(PlanOutlineOf(drawing, window), *tag.leaderEnd), *tag.leaderEnd) < 0.001;
}

// The drawing in which the entity of that role of each tag has moved by `x`, as CAD programs move it.
dxf::Document WithMoved(const dxf::Document& drawing, TagRole role, double x) {
  dxf::Document moved = Reloaded(drawing);
  for (const WindowTag& tag : FindWindowTags(moved)) {
    for (const TagPart& part : tag.parts) {
      if (part.role != role) continue;
      dxf::TagReader reader = moved.Reader(*part.entity);
      for (dxf::Tag value; reader.Next(value) && !dxf::IsExtendedData(value.code);) {
        if (value.code == 10 || value.code == 11)
          moved.ReplaceValue(value, std::to_string(reader.Real(value) + x));
      }
    }
  }
  return Reloaded(moved);
}

class TagWindowsTest : public testing::Test {
 protected:
  // Windows 1 and 2 beside each other, of which 2 is called KITCHEN.
  dxf::Document HouseWithTwo() const {
    dxf::Document house = House();
    WindowInserter inserter(module, house, Millimetres());
    inserter.Insert(OrderAt(2000, 2000));
    WindowOrder named = OrderAt(5000, 2000);
    named.mark = "KITCHEN";
    inserter.Insert(named);
    return Reloaded(house);
  }

  std::size_t Tag(const TagOrder& order = {}) {
    const std::size_t tags = TagWindows(drawing, Millimetres().working, order);
    drawing = Reloaded(drawing);
    return tags;
  }

  void Move(int number, double x, double y) {
    WindowOrder order;
    order.at = PlanPoint{x, y, ""};
    WindowEditor(module, drawing, Millimetres(), {.numbers = {{number, number}}}, false).Edit(order);
  }

  void Follow() {
    LetTagsFollow(drawing);
    drawing = Reloaded(drawing);
  }

  WindowTag TagOf(int number) const {
    for (WindowTag& tag : FindWindowTags(drawing))
      if (tag.number == number) return tag;
    return {};
  }

  const WindowModule module;
  dxf::Document drawing = HouseWithTwo();
};

TEST_F(TagWindowsTest, EachWindowGetsItsMarkOrItsNumber) {
  EXPECT_EQ(Tag(), 2U);
  EXPECT_THAT(TextsOf(drawing), ElementsAre("W01", "KITCHEN"));
  const std::vector<DrawnWindow> windows = FindWindows(drawing, Millimetres().working);
  ASSERT_EQ(windows.size(), 2U);  // tags are none
  for (const DrawnWindow& window : windows) {
    const WindowTag tag = TagOf(window.number);
    EXPECT_EQ(tag.height, 200);
    EXPECT_EQ(tag.Shape(), TagShape::Circle);
    EXPECT_TRUE(Leads(drawing, tag, window));
    EXPECT_FALSE(tag.IsMoved());
  }
}

TEST_F(TagWindowsTest, ShownMarkIsThatOfTheUsualPattern) {
  for (const std::int32_t number : {1, 42, 1234, 0, -3}) {
    DrawnWindow window;
    window.number = number;
    EXPECT_EQ(ShownMark(window), MarkPattern(USUAL_MARK).MarkOf({.number = number}, 0));
  }
}

TEST_F(TagWindowsTest, TagsStandOnTheirLayerInAGroup) {
  Tag();
  const std::string text = drawing.Serialize();
  EXPECT_TRUE(drawing.HasLayer(TAG_LAYER));
  EXPECT_NE(text.find("BREVANTA_TAG_1\n"), std::string::npos);
  EXPECT_NE(text.find("BREVANTA_TAG_2\n"), std::string::npos);
}

TEST_F(TagWindowsTest, SecondTimeNothingChanges) {
  Tag();
  EXPECT_EQ(TagWindows(drawing, Millimetres().working, {}), 0U);
  EXPECT_FALSE(drawing.IsChanged());
}

TEST_F(TagWindowsTest, HeightAndShapeAreThoseOrdered) {
  Tag();
  EXPECT_EQ(Tag({.selection = {.numbers = {{1, 1}}}, .height = 0.3, .shape = TagShape::Box}), 1U);
  EXPECT_EQ(FindWindowTags(drawing).size(), 2U);
  EXPECT_EQ(TagOf(1).height, 300);
  EXPECT_EQ(TagOf(1).Shape(), TagShape::Box);
  EXPECT_EQ(TagOf(1).parts.size(), 6U);
  EXPECT_EQ(TagOf(2).Shape(), TagShape::Circle);
  EXPECT_EQ(Tag({.shape = TagShape::None}), 2U);
  EXPECT_EQ(TagOf(1).parts.size(), 2U);
  EXPECT_EQ(TagOf(1).height, 300);
}

// The tag of a window without anything around it lies to its right.
TEST_F(TagWindowsTest, TagGivesWayToALine) {
  Tag();
  const geometry::Vec3 free = TagOf(1).place;
  dxf::Document other = HouseWithTwo();
  const std::vector<dxf::TypedTag> line = {{0, std::string_view("LINE")},
                                           {100, std::string_view("AcDbEntity")},
                                           {8, std::string_view("ROOF")},
                                           {100, std::string_view("AcDbLine")},
                                           {10, dxf::Point{free.x, free.y - 50, 0}},
                                           {11, dxf::Point{free.x, free.y + 50, 0}}};
  other.AddEntity(line);
  drawing = Reloaded(other);
  Tag();
  EXPECT_GT(PlanDistance(TagOf(1).place, free), 100);
}

TEST_F(TagWindowsTest, TagsLieOverNoOtherTagOrWindow) {
  drawing = House();
  WindowInserter inserter(module, drawing, Millimetres());
  for (int i = 0; i < 5; ++i)
    inserter.Insert(OrderAt(1500 + 1100 * i, 2000));
  drawing = Reloaded(drawing);
  Tag();
  const std::vector<WindowTag> tags = FindWindowTags(drawing);
  ASSERT_EQ(tags.size(), 5U);
  for (const WindowTag& tag : tags) {
    const double radius = ExtentOf(PlanAsDrawn(tag)).across;
    for (const WindowTag& other : tags) {
      if (other.number == tag.number) continue;
      EXPECT_GT(PlanDistance(tag.place, other.place), 2 * radius);
    }
    for (const DrawnWindow& window : FindWindows(drawing, Millimetres().working))
      EXPECT_GT(PlanDistance(NearestOn(PlanOutlineOf(drawing, window), tag.place), tag.place), radius);
  }
}

TEST_F(TagWindowsTest, DrawingWithoutTagsIsLeftAlone) {
  EXPECT_FALSE(LetTagsFollow(drawing));
  EXPECT_FALSE(drawing.IsChanged());
}

TEST_F(TagWindowsTest, NothingFollowsWhereNothingMoved) {
  Tag();
  EXPECT_FALSE(LetTagsFollow(drawing));
}

TEST_F(TagWindowsTest, TagMovesWithItsWindowAndKeepsItsEntities) {
  Tag();
  const WindowTag before = TagOf(1);
  const std::uint64_t handle = before.parts.front().entity->handle;
  Move(1, 2000, 3000);
  Follow();
  const WindowTag after = TagOf(1);
  EXPECT_GT(after.place.y, before.place.y + 500);
  EXPECT_EQ(after.parts.front().entity->handle, handle);
  EXPECT_FALSE(after.IsMoved());
  for (const DrawnWindow& window : FindWindows(drawing, Millimetres().working))
    EXPECT_TRUE(Leads(drawing, TagOf(window.number), window));
}

TEST_F(TagWindowsTest, TagThatSomebodyMovedStaysAndLeadsToTheNewPlace) {
  Tag();
  drawing = WithMoved(WithMoved(drawing, TagRole::Text, 500), TagRole::Circle, 500);
  const geometry::Vec3 place = TagOf(1).place;
  EXPECT_TRUE(TagOf(1).IsMoved());
  Move(1, 2000, 3000);
  Follow();
  EXPECT_LT(PlanDistance(TagOf(1).place, place), 0.01);
  EXPECT_TRUE(TagOf(1).IsMoved());
  EXPECT_TRUE(Leads(drawing, TagOf(1), FindWindows(drawing, Millimetres().working).front()) ||
              Leads(drawing, TagOf(1), FindWindows(drawing, Millimetres().working).back()));
  Tag({.height = 0.1});  // another height, and still there
  EXPECT_LT(PlanDistance(TagOf(1).place, place), 0.01);
}

TEST_F(TagWindowsTest, ErasedWindowTakesItsTagAlong) {
  Tag();
  EraseWindows(module, drawing, {.numbers = {{1, 1}}}, Millimetres().working, false);
  EXPECT_TRUE(LetTagsFollow(drawing));
  drawing = Reloaded(drawing);
  EXPECT_THAT(TextsOf(drawing), ElementsAre("KITCHEN"));
  EXPECT_EQ(drawing.Serialize().find("BREVANTA_TAG_1\n"), std::string::npos);
}

TEST_F(TagWindowsTest, TagReadsAsItsWindowIsMarked) {
  Tag();
  const geometry::Vec3 place = TagOf(1).place;
  MarkWindows(drawing, Millimetres().working, {.selection = {.numbers = {{1, 1}}}, .mark = "STAIRS"});
  Follow();
  EXPECT_EQ(TagOf(1).text, "STAIRS");
  EXPECT_LT(PlanDistance(TagOf(1).place, place), 0.01);
  TagPlan plan = PlanAsDrawn(TagOf(1));
  const dxf::Entity* const circle = TagOf(1).parts[1].entity;
  EXPECT_NEAR(drawing.TagLists(circle->text).front().Real(dxf::CODE_CIRCLE_RADIUS), ExtentOf(plan).across,
              1e-9);
}

TEST_F(TagWindowsTest, TagsGoWhereTheyAreErased) {
  Tag();
  EXPECT_EQ(EraseTags(drawing, Millimetres().working, {.numbers = {{2, 2}}}), 1U);
  drawing = Reloaded(drawing);
  EXPECT_THAT(TextsOf(drawing), ElementsAre("W01"));
}

TEST_F(TagWindowsTest, TagThatLostItsTextIsDrawnAnew) {
  Tag();
  drawing.RemoveEntity(*TagOf(1).parts.front().entity);
  drawing = Reloaded(drawing);
  EXPECT_FALSE(LetTagsFollow(drawing));  // it is left as somebody made it
  EXPECT_EQ(Tag(), 1U);
  EXPECT_EQ(FindWindowTags(drawing).size(), 2U);
  EXPECT_EQ(TagOf(1).text, "W01");
  EXPECT_EQ(TagOf(1).parts.size(), 3U);
}

TEST_F(TagWindowsTest, CurrentStyleOfTheDrawingIsTheTags) {
  std::string text = drawing.Serialize();
  const std::string version = "$ACADVER\n  1\nAC1015\n";
  const std::size_t at = text.find(version);
  ASSERT_NE(at, std::string::npos);
  drawing = dxf::Document::FromText("house.dxf",
                                    text.insert(at + version.size(), "  9\n$TEXTSTYLE\n  7\nSTANDARD\n"));
  Tag();
  EXPECT_EQ(CurrentTextStyle(drawing), "STANDARD");
  EXPECT_NE(TagOf(1).parts.front().entity->text.find("  7\nSTANDARD\n"), std::string_view::npos);
}

TEST_F(TagWindowsTest, StyleThatTheDrawingLacksIsNotNamed) {
  EXPECT_EQ(CurrentTextStyle(drawing), "");
  std::string text = drawing.Serialize();
  const std::string version = "$ACADVER\n  1\nAC1015\n";
  text.insert(text.find(version) + version.size(), "  9\n$TEXTSTYLE\n  7\nFANCY\n");
  EXPECT_EQ(CurrentTextStyle(dxf::Document::FromText("house.dxf", text)), "");
}

// The texts of all entities but the roof, 3 m to the right.
std::string CopyOfAllButTheRoof(const dxf::Document& drawing) {
  dxf::Document moved = Reloaded(drawing);
  for (const dxf::Entity& entity : moved.Entities().subspan(1)) {
    dxf::TagReader reader = moved.Reader(entity);
    for (dxf::Tag tag; reader.Next(tag) && !dxf::IsExtendedData(tag.code);)
      if (tag.code >= 10 && tag.code <= 13) moved.ReplaceValue(tag, std::to_string(reader.Real(tag) + 3000));
  }
  std::string copy;
  const dxf::Document settled = Reloaded(moved);
  for (const dxf::Entity& entity : settled.Entities().subspan(1))
    copy += entity.text;
  return copy;
}

TEST_F(TagWindowsTest, CopyOfATaggedWindowGetsTheTagThatWasCopiedWithIt) {
  drawing = House();
  WindowInserter(module, drawing, Millimetres()).Insert(OrderAt(2000, 2000));
  drawing = Reloaded(drawing);
  Tag();
  std::string text = drawing.Serialize();
  const std::size_t end = text.find("  0\nENDSEC", text.find("ENTITIES\n"));
  drawing = dxf::Document::FromText("house.dxf", text.insert(end, CopyOfAllButTheRoof(drawing)));
  EXPECT_EQ(FindWindowTags(drawing).size(), 2U);
  EXPECT_FALSE(LetTagsFollow(drawing));  // nobody knows yet whose they are
  EXPECT_EQ(RenumberCopies(drawing).size(), 1U);
  Follow();
  EXPECT_THAT(TextsOf(drawing), ElementsAre("W01", "W02"));
  const std::vector<DrawnWindow> windows = FindWindows(drawing, Millimetres().working);
  ASSERT_EQ(windows.size(), 2U);
  for (const DrawnWindow& window : windows) {
    EXPECT_TRUE(Leads(drawing, TagOf(window.number), window));
    EXPECT_FALSE(TagOf(window.number).IsMoved());
  }
}

}  // namespace
}  // namespace teskarlt
