// WindowEditorTest.cpp - windows of a drawing that are changed.
#include <array>
#include <cmath>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/WindowEditor.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using brevanta::RecordPoint;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

MATCHER_P(HasWidth, metres, "") {
  return arg.params.width == metres;
}

WindowSelection NumberOne() {
  return {.numbers = {{1, 1}}};
}

class WindowEditorTest : public testing::Test {
 protected:
  PlacedWindow Edit(const WindowOrder& order) { return EditedBy(order).placed; }

  EditedWindow EditedBy(const WindowOrder& order) {
    return WindowEditor(module, drawing, Millimetres(), NumberOne(), false).Edit(order).front();
  }

  // Windows 1 to 3 of a house, 0.94 m wide, beside each other.
  static dxf::Document HouseWithThree(const WindowModule& module) {
    dxf::Document house = House();
    WindowInserter inserter(module, house, Millimetres());
    for (const double x : {1500.0, 4000.0, 6500.0})
      inserter.Insert(OrderAt(x, 2000));
    return Reloaded(house);
  }

  WindowModule module;
  dxf::Document drawing = HouseWithWindow();
};

TEST_F(WindowEditorTest, WindowKeepsNumberAndPlace) {
  WindowOrder order;
  order.settings = {{"width", "1.14"}};
  const PlacedWindow window = Edit(order);
  EXPECT_EQ(window.record.width, 1.14);
  EXPECT_EQ(window.record.markerValue, 1);
  EXPECT_NEAR(window.record.storedPoint.x, 4000, 1e-6);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(1));
}

TEST_F(WindowEditorTest, WindowMovesToThePointOfTheOrder) {
  const PlacedWindow window = Edit(OrderAt(6000, 3000));
  EXPECT_NEAR(window.record.storedPoint.x, 6000, 1e-6);
  EXPECT_NEAR(window.record.storedPoint.z, 3000, 1e-6);
}

TEST_F(WindowEditorTest, WindowMovesToThePlaceThatWordsSay) {
  drawing = HouseWithThree(module);
  WindowOrder order;
  order.roofName = "R1";
  order.placing = {.fromRidge = 1.0, .over = PlanPoint{2000, 0, ""}};
  const Outline frame = Edit(order).outline;
  EXPECT_NEAR(frame[1].y, 6000 - 1000 / std::sqrt(2.0), 1e-6);  // of a roof at 45 degrees
  EXPECT_NEAR((frame[0].x + frame[3].x) / 2, 2000, 1e-6);
}

TEST_F(WindowEditorTest, WindowGoesBetweenTwoOthersInLineWithOne) {
  drawing = HouseWithThree(module);
  WindowOrder order;
  order.placing = {.between = std::array{2, 3}, .align = 3, .edge = AlignedEdge::Bottom};
  order.roofName = "R1";
  order.settings = {{"width", "0.55"}};
  const Outline frame = Edit(order).outline;
  EXPECT_NEAR((frame[0].x + frame[3].x) / 2, 5250, 1e-6);  // windows 2 and 3 stand at 4000 and 6500
}

TEST_F(WindowEditorTest, ReadingShowsTheWindowAsItStands) {
  const WindowEditor editor(module, drawing, Millimetres(), NumberOne(), false);
  const WindowReading& reading = editor.Windows().front().reading;
  EXPECT_NEAR(reading.params.storedPoint.y, 2000, 1e-6);
  EXPECT_TRUE(reading.notes.empty());
}

TEST_F(WindowEditorTest, WindowMovesToAPointOfTheRoofsOwnFrame) {
  RecordPoint point = WindowEditor(module, drawing, Millimetres(), NumberOne(), false)
                          .Windows()
                          .front()
                          .reading.params.insertionPoint;
  point.x += 500;  // along the eaves, which run along the drawing's x axis
  WindowOrder order;
  order.settings = {{"insertionPoint", fmt::format("{},{},{}", point.x, point.y, point.z)}};
  const PlacedWindow window = Edit(order);
  EXPECT_NEAR(window.record.storedPoint.x, 4500, 1e-6);
  EXPECT_NEAR(window.record.storedPoint.y, 2000, 1e-6);
}

// Turned by 90 degrees: the roof rises along -x, and its own x axis is the drawing's y axis.
TEST_F(WindowEditorTest, OffsetRunsInTheRoofsOwnFrameAsItDoesAtFirst) {
  std::vector<geometry::Vec3> turned = RoofAt(0);
  for (geometry::Vec3& corner : turned)
    corner = {-corner.y, corner.x, corner.z};
  WindowOrder order = OrderAt(-2000, 4000);
  order.settings = {{"pickOffset", "1"}};
  dxf::Document house = DrawingWithFaces({turned});
  const PlacedWindow inserted = WindowInserter(module, house, Millimetres()).Insert(order);
  EXPECT_NEAR(inserted.record.storedPoint.y, 5000, 1e-6);

  drawing = Reloaded(house);
  order.at.reset();
  const PlacedWindow edited = Edit(order);
  EXPECT_NEAR(edited.record.storedPoint.x, -2000, 1e-6);
  EXPECT_NEAR(edited.record.storedPoint.y, 6000, 1e-6);
}

TEST_F(WindowEditorTest, RefusedChangeLeavesTheDrawingAsItWas) {
  const std::string before = drawing.Serialize();
  WindowOrder order;
  order.settings = {{"markerValue", "5"}};
  EXPECT_EQ(RefusalOf([&] { Edit(order); }), "markerValue cannot be changed; the window keeps its number 1");
  EXPECT_EQ(drawing.Serialize(), before);
}

TEST_F(WindowEditorTest, MissingNumberIsRefused) {
  EXPECT_EQ(RefusalOf([&] {
              WindowEditor(module, drawing, Millimetres(), {.numbers = {{7, 7}}}, false);
            }),
            "house.dxf has no window 7; teskarlt list shows its windows");
}

TEST_F(WindowEditorTest, NumberOfACopyIsRefused) {
  drawing = HouseWithCopy();
  EXPECT_THAT(RefusalOf([&] { WindowEditor(module, drawing, Millimetres(), NumberOne(), false); }),
              HasSubstr("house.dxf has 2 windows with the number 1"));
}

TEST_F(WindowEditorTest, WindowStaysOnItsOwnPlaneWhenTheRoofIsGone) {
  drawing.RemoveEntity(drawing.Entities().front());
  drawing = Reloaded(drawing);
  WindowOrder order;
  order.settings = {{"width", "1.14"}};
  const PlacedWindow window = Edit(order);
  EXPECT_FALSE(window.face.has_value());
  EXPECT_NEAR(window.record.storedPoint.z, 2000, 1e-6);
}

TEST_F(WindowEditorTest, SecondPlaneOfItsOwnStays) {
  WindowOrder own = OrderAt(4000, 2000);
  own.settings = {{"roofBuildUp", "0"},
                  {"layerThickness", "0.2"},
                  {"secondPlanePoints", "0,0,-200;8000,0,-200;0,6000,5000"}};
  dxf::Document house = House();
  WindowInserter(module, house, Millimetres()).Insert(own);
  drawing = Reloaded(house);
  WindowOrder order;
  order.settings = {{"width", "1.14"}};
  EXPECT_EQ(Edit(order).record.secondPlanePoints[2].z, 5000);
}

TEST_F(WindowEditorTest, OrderWithoutAChangeLeavesTheDrawing) {
  WindowOrder order = OrderAt(4000, 2000);  // where it stands
  order.settings = {{"text1", ""}};
  const EditedWindow window = EditedBy(order);
  EXPECT_FALSE(window.isRewritten);
  EXPECT_TRUE(window.changes.empty());
  EXPECT_FALSE(drawing.IsChanged());
}

TEST_F(WindowEditorTest, ChangesAreTheFieldsThatDiffer) {
  WindowOrder order;
  order.settings = {{"width", "1.14"}, {"text1", "x"}};
  const EditedWindow window = EditedBy(order);
  EXPECT_TRUE(window.isRewritten);
  ASSERT_EQ(window.changes.size(), 2U);
  EXPECT_EQ(window.changes[0]->name, "width");
  EXPECT_EQ(window.changes[1]->name, "text1");
}

TEST_F(WindowEditorTest, StrictOrderRefusesAnOverlapAndLeavesTheDrawing) {
  WindowInserter(module, drawing, Millimetres()).Insert(OrderAt(6000, 2000));
  drawing = Reloaded(drawing);
  WindowOrder order = OrderAt(5900, 2000);
  order.isStrict = true;
  EXPECT_THAT(RefusalOf([&] { Edit(order); }), HasSubstr("overlaps window 2"));
  EXPECT_FALSE(drawing.IsChanged());
}

// The eaves lie away from the house's roof; the roof begins at the ends of them, at x = 0 and 8000.
TEST_F(WindowEditorTest, WindowThatGoesOntoARoofInPlanKnowsItsEdges) {
  WindowOrder order;
  order.at = PlanPoint{300, 22000, ""};
  order.planRoof.eaves = {{0, 20000, ""}, {8000, 20000, ""}};
  order.planRoof.pitch = 45;
  order.planRoof.eavesHeight = 2.5;
  EXPECT_THAT(EditedBy(order).placed.misfits, ElementsAre("it passes the left verge by 0.170 m"));
}

TEST_F(WindowEditorTest, AllSelectedWindowsAreChanged) {
  drawing = HouseWithThree(module);
  WindowOrder order;
  order.settings = {{"width", "1.14"}};
  const auto edited = WindowEditor(module, drawing, Millimetres(), {.numbers = {{2, 3}}}, false).Edit(order);
  ASSERT_EQ(edited.size(), 2U);
  EXPECT_EQ(edited[1].placed.record.markerValue, 3);
  const auto windows = FindWindows(Reloaded(drawing), Millimetres().working);
  EXPECT_THAT(windows, ElementsAre(HasWidth(0.94), HasWidth(1.14), HasWidth(1.14)));
}

TEST_F(WindowEditorTest, NoWindowIsChangedWhenOneIsRefused) {
  drawing = HouseWithThree(module);
  const std::string before = drawing.Serialize();
  WindowOrder order;
  order.settings = {{"width", "4"}};  // 1.5 m from the verge there is room for 3 m
  EXPECT_THAT(RefusalOf([&] {
                WindowEditor(module, drawing, Millimetres(), {.numbers = {{1, 3}}}, false).Edit(order);
              }),
              StartsWith("window 1: the window would leave the roof face"));
  EXPECT_EQ(drawing.Serialize(), before);
}

TEST_F(WindowEditorTest, WindowsThatBecomeTooWideOverlapEachOther) {
  drawing = HouseWithThree(module);
  WindowOrder order;
  order.settings = {{"width", "2.8"}};  // they stand 2.5 m apart
  const auto edited = WindowEditor(module, drawing, Millimetres(), {.numbers = {{1, 3}}}, false).Edit(order);
  EXPECT_TRUE(edited[0].placed.misfits.empty());
  EXPECT_THAT(edited[1].placed.misfits,
              ElementsAre("it overlaps window 1 by 0.300 m; the nearest free place is 0.300 m to the right"));
  EXPECT_THAT(
      edited[2].placed.misfits,
      ElementsAre("it overlaps window 2 by 0.300 m; the nearest free place is 1.400 m down the slope"));
}

TEST_F(WindowEditorTest, SeveralWindowsDoNotGoToOnePoint) {
  drawing = HouseWithThree(module);
  WindowEditor editor(module, drawing, Millimetres(), {.numbers = {{1, 2}}}, false);
  EXPECT_EQ(RefusalOf([&] { editor.Edit(OrderAt(4000, 3000)); }),
            "2 windows cannot all stand at the point 4000,3000; name one window");
}

// At 45 degrees 0.5 m up the slope are 0.5 m over the root of 2 in the plan.
TEST_F(WindowEditorTest, WindowMovesAlongTheEavesAndUpTheSlope) {
  WindowOrder order;
  order.by = SlopeMove{-1.2, 0.5};
  const EditedWindow window = EditedBy(order);
  EXPECT_NEAR(window.placed.record.storedPoint.x, 4000 - 1200, 1e-6);
  EXPECT_NEAR(window.placed.record.storedPoint.y, 2000 + 500 / std::sqrt(2), 1e-6);
  EXPECT_EQ(window.changes.back()->name, "storedPoint");
}

TEST_F(WindowEditorTest, SeveralWindowsMoveAlike) {
  drawing = HouseWithThree(module);
  WindowOrder order;
  order.by = SlopeMove{0.5, 0};
  WindowEditor(module, drawing, Millimetres(), {.numbers = {{1, 3}}}, false).Edit(order);
  const auto windows = FindWindows(Reloaded(drawing), Millimetres().working);
  EXPECT_NEAR(windows[0].params.storedPoint.x, 2000, 1e-6);
  EXPECT_NEAR(windows[2].params.storedPoint.x, 7000, 1e-6);
}

TEST_F(WindowEditorTest, MoveOutOfTheRoofIsRefused) {
  WindowOrder order;
  order.by = SlopeMove{4, 0};
  EXPECT_THAT(RefusalOf([&] { Edit(order); }), HasSubstr("the window would leave the roof face"));
  EXPECT_FALSE(drawing.IsChanged());
}

TEST_F(WindowEditorTest, MoveByNothingLeavesTheDrawing) {
  WindowOrder order;
  order.by = SlopeMove{0, 0};
  EXPECT_FALSE(EditedBy(order).isRewritten);
}

}  // namespace
}  // namespace teskarlt
