// RefitWindowsTest.cpp - windows whose roof has changed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/RefitWindows.h"
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

TEST_F(RefitWindowsTest, WindowWithoutARoofIsAProblem) {
  dxf::Document drawing = HouseWithWindow();
  drawing.RemoveEntity(drawing.Entities().front());  // the roof
  dxf::Document bare = Reloaded(drawing);
  const RefitReport report = Refit(bare);
  ASSERT_EQ(report.problems.size(), 1U);
  EXPECT_EQ(report.problems[0].number, 1);
  EXPECT_THAT(report.problems[0].message, HasSubstr("no roof face"));
}

TEST_F(RefitWindowsTest, NumberWithoutAWindowIsRefused) {
  dxf::Document drawing = HouseWithWindow();
  EXPECT_THAT(RefusalOf([&] { Refit(drawing, {.numbers = {3}}); }), HasSubstr("has no window 3"));
}

}  // namespace
}  // namespace teskarlt
