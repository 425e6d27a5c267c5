// WindowInserterTest.cpp - windows that come into a drawing, and those that do not.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class WindowInserterTest : public testing::Test {
 protected:
  WindowModule module;
  dxf::Document drawing = House();
  WindowInserter inserter{module, drawing, Millimetres()};
};

TEST_F(WindowInserterTest, WindowGoesOntoTheFaceAtItsPoint) {
  const PlacedWindow window = inserter.Insert(OrderAt(4000, 2000));
  ASSERT_TRUE(window.face);
  EXPECT_EQ(window.face->layer, "ROOF");
  EXPECT_NEAR(window.record.pitch, 45, 1e-9);
  EXPECT_NEAR(window.record.storedPoint.z, 2000, 1e-6);  // at 45 degrees as high as far from the eaves
  EXPECT_TRUE(window.misfits.empty());
}

// On the roof at 45 degrees the frame's lower edge lies as high as far from the eaves.
constexpr double ONE_METRE_UP = 1000 / 1.4142135623730951;

TEST_F(WindowInserterTest, WordsSayThePlaceOnANamedRoof) {
  WindowOrder order;
  order.roofName = "R1";
  order.placing = {.fromEaves = 1.0, .isCentred = true};
  const Outline frame = inserter.Insert(order).outline;
  EXPECT_NEAR(frame[0].y, ONE_METRE_UP, 1e-6);
  EXPECT_NEAR((frame[0].x + frame[3].x) / 2, 4000, 1e-6);
}

TEST_F(WindowInserterTest, WordsNameWindowsThatStandThere) {
  inserter.Insert(OrderAt(1500, 2000));
  const Outline other = inserter.Insert(OrderAt(6500, 2000)).outline;
  WindowOrder order;
  order.roofName = "R1";
  order.placing = {.between = std::array{1, 2}, .align = 2, .edge = AlignedEdge::Top};
  const Outline frame = inserter.Insert(order).outline;
  EXPECT_NEAR((frame[0].x + frame[3].x) / 2, 4000, 1e-6);
  EXPECT_NEAR(frame[1].y, other[1].y, 1e-6);
}

TEST_F(WindowInserterTest, WordsSayThePlaceOnARoofThatIsDrawnInPlan) {
  WindowOrder order;
  order.planRoof.eaves = {{0, 20000, ""}, {8000, 20000, ""}};
  order.planRoof.pitch = 45;
  order.planRoof.eavesHeight = 2.5;
  order.placing = {.fromEaves = 1.0, .fromVerge = 0.5};
  const PlacedWindow window = inserter.Insert(order);
  EXPECT_NEAR(window.outline[0].y, 20000 + ONE_METRE_UP, 1e-6);
  EXPECT_NEAR(window.outline[0].z, 2500 + ONE_METRE_UP, 1e-6);
  EXPECT_NEAR(std::min(window.outline[0].x, window.outline[3].x), 500, 1e-6);
}

TEST_F(WindowInserterTest, WindowBesideARoofThatIsDrawnInPlanIsTold) {
  WindowOrder order;
  order.planRoof.eaves = {{0, 20000, ""}, {8000, 20000, ""}};
  order.planRoof.pitch = 45;
  order.planRoof.eavesHeight = 2.5;
  order.placing = {.fromEaves = 1.0, .fromVerge = 7.5};  // a window is 0.94 m wide
  EXPECT_THAT(inserter.Insert(order).misfits, ElementsAre("it passes the right verge by 0.440 m"));
}

TEST_F(WindowInserterTest, PointOnAFlatTopIsToldWithTheRoofUnderIt) {
  const std::vector<geometry::Vec3> top = {
      {3000, 1000, 7000}, {5000, 1000, 7000}, {5000, 3000, 7000}, {3000, 3000, 7000}};
  dxf::Document house = DrawingWithFaces({RoofAt(0), top});
  WindowInserter into(module, house, Millimetres());
  EXPECT_THAT(
      RefusalOf([&] { into.Insert(OrderAt(4000, 2000)); }),
      HasSubstr(
          "the point lies on R2, which is flat: face 1D of layer ROOF; --on R1 takes the roof under it"));
}

TEST_F(WindowInserterTest, EntitiesThatAreToldStandInTheDrawing) {
  const PlacedWindow window = inserter.Insert(OrderAt(4000, 2000));
  EXPECT_EQ(Reloaded(drawing).Entities().size(), drawing.Entities().size() + window.faces + window.lines);
}

TEST_F(WindowInserterTest, EachWindowGetsTheNextNumber) {
  EXPECT_EQ(inserter.Insert(OrderAt(2000, 2000)).record.markerValue, 1);
  EXPECT_EQ(inserter.Insert(OrderAt(6000, 2000)).record.markerValue, 2);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(1, 2));
}

TEST_F(WindowInserterTest, SettingsGoIntoTheRecord) {
  WindowOrder order = OrderAt(4000, 2000);
  order.settings = {{"width", "0.5"}, {"width", "0.78"}, {"text1", "north"}};
  const PlacedWindow window = inserter.Insert(order);
  EXPECT_EQ(window.record.width, 0.78);
  EXPECT_STREQ(window.record.text1, "north");
}

TEST_F(WindowInserterTest, OverlappingWindowIsToldAsAMisfit) {
  inserter.Insert(OrderAt(4000, 2000));
  EXPECT_THAT(inserter.Insert(OrderAt(4100, 2000)).misfits, ElementsAre(HasSubstr("overlaps window 1")));
}

TEST_F(WindowInserterTest, StrictOrderLeavesNoTraceOfAMisfit) {
  inserter.Insert(OrderAt(4000, 2000));
  const std::string before = drawing.Serialize();
  WindowOrder order = OrderAt(4100, 2000);
  order.isStrict = true;
  EXPECT_THAT(RefusalOf([&] { inserter.Insert(order); }), HasSubstr("--strict: the window is refused; "));
  EXPECT_EQ(drawing.Serialize(), before);
  EXPECT_EQ(inserter.Insert(OrderAt(6000, 2000)).record.markerValue, 2);  // the number is free again
}

TEST_F(WindowInserterTest, PlaneOfTheUsersOwnNeedsNoFace) {
  WindowOrder order = OrderAt(20000, 2000);
  order.roof = {{0, 0, 0}, {1000, 0, 0}, {0, 1000, 1000}};
  const PlacedWindow window = inserter.Insert(order);
  EXPECT_FALSE(window.face);
  EXPECT_NEAR(window.record.pitch, 45, 1e-9);
}

TEST_F(WindowInserterTest, RefusalOfTheDialogLeavesTheDrawingAsItWas) {
  const std::string before = drawing.Serialize();
  WindowOrder order = OrderAt(4000, 2000);
  order.settings = {{"width", "-1"}};
  EXPECT_THAT(RefusalOf([&] { inserter.Insert(order); }), HasSubstr("width"));
  EXPECT_EQ(drawing.Serialize(), before);
}

// A row of windows 0.94 m wide, whose first one stands at (1000, 2000).
WindowOrder RowOf(int count) {
  WindowOrder order = OrderAt(1000, 2000);
  order.row = {.count = count, .spacing = 1.5};
  return order;
}

TEST_F(WindowInserterTest, WindowsOfARowStandTheirSpacingApart) {
  const auto windows = inserter.InsertAll(RowOf(3));
  ASSERT_EQ(windows.size(), 3U);
  EXPECT_NEAR(windows[2].record.storedPoint.x, 4000, 1e-6);
  EXPECT_NEAR(windows[2].record.storedPoint.y, 2000, 1e-6);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(1, 2, 3));
}

TEST_F(WindowInserterTest, GapIsThatBetweenFrames) {
  WindowOrder order = RowOf(2);
  order.row = {.count = 2, .gap = 0.06};
  const auto windows = inserter.InsertAll(order);
  EXPECT_NEAR(windows[1].record.storedPoint.x, 2000, 1e-6);  // 0.94 and 0.06 m to the right
  EXPECT_TRUE(windows[1].misfits.empty());
}

// At 45 degrees 2 m up the slope are the root of 2 in the plan.
TEST_F(WindowInserterTest, ColumnRunsUpTheSlope) {
  WindowOrder order = RowOf(2);
  order.row = {.count = 2, .spacing = 2, .isColumn = true};
  const auto windows = inserter.InsertAll(order);
  EXPECT_NEAR(windows[1].record.storedPoint.x, 1000, 1e-6);
  EXPECT_NEAR(windows[1].record.storedPoint.y, 2000 + 1000 * std::sqrt(2), 1e-6);
}

// The fifth stands at 7000, up to 7470; the sixth would leave the roof at 8000.
TEST_F(WindowInserterTest, WindowsOfARowKeepTheClearanceToEachOther) {
  WindowOrder order = RowOf(3);
  order.row = {.count = 3, .gap = 0.1};
  order.clearance = 0.2;
  const auto windows = inserter.InsertAll(order);
  EXPECT_THAT(windows[0].misfits, ElementsAre());
  EXPECT_THAT(windows[2].misfits,
              ElementsAre("it comes nearer than its clearance of 0.200 m to window 2, 0.100 m away; "
                          "the nearest free place is 0.100 m to the right"));
  order.isStrict = true;
  order.at = PlanPoint{1000, 4500, ""};
  EXPECT_NE(RefusalOf([&] { inserter.InsertAll(order); }), "");
  EXPECT_EQ(inserter.Insert(OrderAt(1000, 4500)).misfits.size(), 0U);  // nothing of the refused row is left
}

TEST_F(WindowInserterTest, RowIsRefusedWholeWithTheWindowThatIsRefused) {
  const std::string before = drawing.Serialize();
  EXPECT_THAT(RefusalOf([&] { inserter.InsertAll(RowOf(6)); }),
              HasSubstr("window 6 of the row, at 8500,2000: the window would leave the roof face"));
  EXPECT_EQ(drawing.Serialize(), before);
  const auto windows = inserter.InsertAll(RowOf(5));  // nothing of the refused one counts
  EXPECT_EQ(windows[0].record.markerValue, 1);
  EXPECT_TRUE(windows[0].misfits.empty());
}

TEST_F(WindowInserterTest, WindowsThatWouldOverlapEachOtherMakeNoRow) {
  WindowOrder order = RowOf(2);
  order.row.spacing = 0.9;
  EXPECT_EQ(RefusalOf([&] { inserter.InsertAll(order); }),
            "--spacing: the windows of the row, 0.94 m each, would overlap 0.9 m apart; say a longer one, or "
            "--gap 0");
  order.lengths = LengthStyle::FeetAndInches;
  order.row.spacing = 2 * METRES_PER_FOOT;
  order.settings = {{"width", "3", LengthStyle::FeetAndInches}};
  EXPECT_EQ(RefusalOf([&] { inserter.InsertAll(order); }),
            "--spacing: the windows of the row, 3'-0\" each, would overlap 2'-0\" apart; say a longer one, "
            "or --gap 0");
  EXPECT_FALSE(drawing.IsChanged());
}

TEST_F(WindowInserterTest, OneHeightForAllWindowsOfAColumnIsRefused) {
  WindowOrder order = RowOf(2);
  order.row.isColumn = true;
  order.settings = {{"lowerEdgeHeight", "2"}};
  EXPECT_THAT(RefusalOf([&] { inserter.InsertAll(order); }),
              HasSubstr("would put all windows at one height"));
}

// Three windows 0.94 m wide and 1.5 m apart are 3.94 m wide: from 2.03 to 5.97 m on a roof of 8 m.
TEST_F(WindowInserterTest, WordsMeanTheWholeRow) {
  WindowOrder order = RowOf(3);
  order.at.reset();
  order.roofName = "R1";
  order.placing = {.fromEaves = 1.0, .isCentred = true};
  const auto windows = inserter.InsertAll(order);
  ASSERT_EQ(windows.size(), 3U);
  EXPECT_NEAR(windows[0].outline[0].x, 2030, 1e-6);
  EXPECT_NEAR(windows[2].outline[3].x, 5970, 1e-6);
  EXPECT_NEAR(windows[1].outline[0].y, 1000 / std::sqrt(2.0), 1e-6);
}

TEST_F(WindowInserterTest, WordsOfARowNeedNoWindowAtAPoint) {
  WindowOrder order = RowOf(2);
  order.at.reset();
  order.roofName = "R1";
  EXPECT_THAT(RefusalOf([&] { inserter.InsertAll(order); }), HasSubstr("say where the row goes"));
  order.placing = {.fromEaves = 1.0, .isCentred = true};
  order.row.from = "centre";
  EXPECT_THAT(RefusalOf([&] { inserter.InsertAll(order); }),
              HasSubstr("--row-from says which window stands at the point"));
}

TEST_F(WindowInserterTest, OrderWithoutARowIsOneWindow) {
  EXPECT_EQ(inserter.InsertAll(OrderAt(4000, 2000)).size(), 1U);
}

}  // namespace
}  // namespace teskarlt
