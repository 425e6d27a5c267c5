// MarkWindowsTest.cpp - windows that are drawn get marks, and keep them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/windows/EraseWindows.h"
#include "teskarlt/windows/MarkWindows.h"
#include "teskarlt/windows/RenumberCopies.h"
#include "teskarlt/windows/WindowEditor.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

WindowOrder Marked(double x, const std::string& mark) {
  WindowOrder order = OrderAt(x, 2000);
  order.mark = mark;
  return order;
}

std::vector<std::string> MarksIn(const dxf::Document& drawing) {
  std::vector<std::string> marks;
  for (const DrawnWindow& window : FindWindows(drawing, Millimetres().working))
    marks.push_back(window.mark);
  return marks;
}

std::vector<std::string> NewMarks(const std::vector<MarkChange>& changes) {
  std::vector<std::string> marks;
  marks.reserve(changes.size());
  for (const MarkChange& change : changes)
    marks.push_back(change.to);
  return marks;
}

class MarkWindowsTest : public testing::Test {
 protected:
  // Windows 1 to 3 beside each other: A, one without a mark, and C.
  dxf::Document HouseWithThree() const {
    dxf::Document house = House();
    WindowInserter inserter(module, house, Millimetres());
    inserter.Insert(Marked(1500, "A"));
    inserter.Insert(OrderAt(4000, 2000));
    inserter.Insert(Marked(6500, "C"));
    return Reloaded(house);
  }

  std::vector<std::string> Mark(const MarkOrder& order) {
    return NewMarks(MarkWindows(drawing, Millimetres().working, order));
  }

  EditedWindow Edit(int number, const WindowOrder& order) {
    return WindowEditor(module, drawing, Millimetres(), {.numbers = {{number, number}}}, false)
        .Edit(order)
        .front();
  }

  WindowModule module;
  dxf::Document drawing = HouseWithThree();
};

TEST_F(MarkWindowsTest, InsertedWindowsBearTheirMarks) {
  EXPECT_THAT(MarksIn(drawing), ElementsAre("A", "", "C"));
  EXPECT_TRUE(FindWindows(drawing, Millimetres().working)[0].isComplete);
}

TEST_F(MarkWindowsTest, MarkOfAnotherWindowIsRefusedAndLeavesTheDrawing) {
  WindowInserter inserter(module, drawing, Millimetres());
  EXPECT_EQ(RefusalOf([&] { inserter.Insert(Marked(4000, "C")); }),
            "--mark: window 3 bears the mark C already; {run} in it counts");
  EXPECT_FALSE(drawing.IsChanged());
}

TEST_F(MarkWindowsTest, WindowsOfARowCountOn) {
  dxf::Document house = House();
  WindowInserter inserter(module, house, Millimetres());
  WindowOrder row = Marked(1500, "R{run}");
  row.row = {.count = 3, .gap = 0.5};
  inserter.InsertAll(row);
  EXPECT_THAT(MarksIn(Reloaded(house)), ElementsAre("R1", "R2", "R3"));
  row.at = PlanPoint{1500, 4500, ""};
  row.mark = "same";
  EXPECT_THAT(RefusalOf([&] { inserter.InsertAll(row); }), HasSubstr("window 4 bears the mark same already"));
  row.mark = "{run}";
  EXPECT_EQ(inserter.InsertAll(row)[0].mark, "1");  // nothing of the refused row is left
}

TEST_F(MarkWindowsTest, EditedWindowKeepsItsMarkOrGetsAnother) {
  WindowOrder wider;
  wider.settings = {{"width", "1.14"}, {"skirtHeight", "0"}};
  EXPECT_EQ(Edit(1, wider).placed.mark, "A");
  drawing = Reloaded(drawing);
  WindowOrder other;
  other.mark = "{roof}.{number}";
  const EditedWindow edited = Edit(1, other);
  EXPECT_EQ(edited.markBefore, "A");
  EXPECT_TRUE(edited.isRewritten);
  EXPECT_TRUE(edited.changes.empty());
  drawing = Reloaded(drawing);
  EXPECT_THAT(MarksIn(drawing), ElementsAre("R1.1", "", "C"));
  EXPECT_FALSE(Edit(1, other).isRewritten);
}

TEST_F(MarkWindowsTest, RefusedEditTakesNoMark) {
  JobSite site(module, drawing, Millimetres());
  WindowOrder both;
  both.mark = "D";
  EXPECT_THAT(RefusalOf([&] {
                WindowEditor(site, {.numbers = {{1, 2}}}, false).Edit(both);
              }),
              HasSubstr("window 1 bears the mark D already"));
  EXPECT_FALSE(drawing.IsChanged());
  EXPECT_EQ(WindowInserter(site).Insert(Marked(4000, "D")).mark, "D");
  EXPECT_THAT(RefusalOf([&] { WindowInserter(site).Insert(Marked(4000, "A")); }),
              HasSubstr("window 1 bears"));
}

TEST_F(MarkWindowsTest, MarkOfAnErasedWindowIsFree) {
  JobSite site(module, drawing, Millimetres());
  EraseWindows(site, {.numbers = {{1, 1}}}, false);
  EXPECT_EQ(WindowInserter(site).Insert(Marked(1500, "A")).mark, "A");
}

TEST_F(MarkWindowsTest, AllWindowsAreMarkedByTheirNumbers) {
  EXPECT_THAT(Mark({.mark = USUAL_MARK}), ElementsAre("W01", "W02", "W03"));
  EXPECT_THAT(MarksIn(Reloaded(drawing)), ElementsAre("W01", "W02", "W03"));
}

TEST_F(MarkWindowsTest, UnmarkedWindowsAloneAreMarked) {
  EXPECT_THAT(Mark({.mark = "{run}", .isOnlyUnmarked = true}), ElementsAre("1"));
  EXPECT_THAT(MarksIn(Reloaded(drawing)), ElementsAre("A", "1", "C"));
}

TEST_F(MarkWindowsTest, SelectedWindowsMayTakeEachOthersMarks) {
  Mark({.mark = "W{run}"});
  drawing = Reloaded(drawing);
  EXPECT_THAT(Mark({.selection = {.numbers = {{2, 3}}}, .mark = "W{run}"}), ElementsAre("W2", "W3"));
  EXPECT_FALSE(drawing.IsChanged());
  EXPECT_THAT(Mark({.selection = {.numbers = {{3, 3}}}, .mark = "{roof}-{number:03}"}),
              ElementsAre("R1-003"));
}

TEST_F(MarkWindowsTest, TwoWindowsWithOneMarkAreRefused) {
  EXPECT_THAT(RefusalOf([&] { Mark({.mark = "same"}); }), HasSubstr("window 1 bears the mark same already"));
  EXPECT_FALSE(drawing.IsChanged());
}

// Texts hold 255 bytes at the most.
TEST_F(MarkWindowsTest, MarkThatIsTooLongLeavesAllWindowsAsTheyWere) {
  const std::string pattern = std::string(254, 'x') + "{run}";
  MarkWindows(drawing, Millimetres().working, {.mark = pattern});
  drawing = HouseWithThree();
  EXPECT_NE(RefusalOf([&] { Mark({.mark = pattern + "{number}"}); }), "");
  EXPECT_FALSE(drawing.IsChanged());
}

TEST_F(MarkWindowsTest, ClearedWindowsHaveNone) {
  EXPECT_THAT(Mark({}), ElementsAre("", "", ""));
  const dxf::Document cleared = Reloaded(drawing);
  EXPECT_THAT(MarksIn(cleared), ElementsAre("", "", ""));
  EXPECT_EQ(cleared.Serialize().find("W01"), std::string::npos);
}

// CAD programs copy a window with its number and its mark.
TEST_F(MarkWindowsTest, CopyThatGetsANumberLosesTheMarkOfItsModel) {
  drawing = HouseWithWindow();
  Mark({.mark = "M"});
  std::string text = drawing.Serialize();
  const std::size_t begin = text.find("  0\n3DFACE", text.find("  0\n3DFACE") + 1);
  const std::size_t end = text.find("  0\nENDSEC", begin);
  text.insert(end, text.substr(begin, end - begin));
  drawing = dxf::Document::FromText("copies.dxf", text);
  ASSERT_THAT(MarksIn(drawing), ElementsAre("M", "M"));
  RenumberCopies(drawing);
  EXPECT_THAT(MarksIn(Reloaded(drawing)), ElementsAre("M", ""));
}

}  // namespace
}  // namespace teskarlt
