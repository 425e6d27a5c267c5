// RefitWindowsTest.cpp - windows whose roof has changed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/RefitWindows.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

class RefitWindowsTest : public testing::Test {
 protected:
  RefitReport Refit(dxf::Document& drawing, const RefitOrder& order = {}) {
    return RefitWindows(module, drawing, Millimetres(), order);
  }

  WindowModule module;
};

TEST_F(RefitWindowsTest, WindowFollowsItsRoof) {
  dxf::Document drawing = HouseWithRisenRoof(500);
  const RefitReport report = Refit(drawing);
  ASSERT_EQ(report.refitted.size(), 1U);
  EXPECT_NEAR(Shift(report.refitted[0]), 0, 1e-6);
  EXPECT_NEAR(Rise(report.refitted[0]), 0.5, 1e-6);  // 500 mm
}

TEST_F(RefitWindowsTest, WindowThatKeepsItsHeightMovesDownTheSlope) {
  dxf::Document drawing = HouseWithRisenRoof(500);
  const RefitReport report = Refit(drawing, {.numbers = {}, .keeps = RefitKeeps::Height});
  ASSERT_EQ(report.refitted.size(), 1U);
  EXPECT_NEAR(Shift(report.refitted[0]), 0.5, 1e-6);  // at 45 degrees as far as it would have risen
}

TEST_F(RefitWindowsTest, WindowOnItsRoofStaysAsItIs) {
  dxf::Document drawing = HouseWithWindow();
  const RefitReport report = Refit(drawing);
  EXPECT_EQ(report.fitting, 1U);
  EXPECT_TRUE(report.refitted.empty());
  EXPECT_FALSE(drawing.IsChanged());
}

TEST_F(RefitWindowsTest, WindowWithoutARoofStaysAndIsTold) {
  dxf::Document drawing = HouseWithWindow();
  drawing.RemoveEntity(drawing.Entities().front());  // the roof
  dxf::Document bare = Reloaded(drawing);
  const RefitReport report = Refit(bare);
  EXPECT_TRUE(report.problems.empty());
  ASSERT_EQ(report.staying.size(), 1U);
  EXPECT_EQ(report.staying[0].number, 1);
  EXPECT_THAT(report.staying[0].message, HasSubstr("no roof face"));
}

TEST_F(RefitWindowsTest, WindowOnAGivenPlaneDoesNotStopTheOthers) {
  dxf::Document drawing = HouseWithWindow();
  WindowOrder order = OrderAt(20000, 2000);  // beside the house, 8000 wide
  order.roof = {{18000, 0, 0}, {22000, 0, 0}, {18000, 4000, 4000}};
  WindowInserter(module, drawing, Millimetres()).Insert(order);
  dxf::Document risen = WithRisenRoof(Reloaded(drawing), 500);
  const RefitReport report = Refit(risen);
  ASSERT_EQ(report.refitted.size(), 1U);
  EXPECT_EQ(report.refitted[0].after.markerValue, 1);
  ASSERT_EQ(report.staying.size(), 1U);
  EXPECT_EQ(report.staying[0].number, 2);
}

TEST_F(RefitWindowsTest, WindowFarOverAFaceStaysOnItsGivenPlane) {
  dxf::Document drawing = House();
  WindowOrder order = OrderAt(4000, 2000);
  order.roof = RoofAt(4500);
  order.roof.pop_back();
  WindowInserter(module, drawing, Millimetres()).Insert(order);
  dxf::Document reloaded = Reloaded(drawing);
  const RefitReport report = Refit(reloaded);
  ASSERT_EQ(report.staying.size(), 1U);
  EXPECT_THAT(report.staying[0].message, HasSubstr("lies 4.500 m under it, and --reach is 1.000 m"));
  EXPECT_EQ(Refit(reloaded, {.numbers = {}, .reach = 4.6}).refitted.size(), 1U);
}

TEST_F(RefitWindowsTest, NumberWithoutAWindowIsRefused) {
  dxf::Document drawing = HouseWithWindow();
  EXPECT_THAT(RefusalOf([&] { Refit(drawing, {.numbers = {3}}); }), HasSubstr("has no window 3"));
}

}  // namespace
}  // namespace teskarlt
