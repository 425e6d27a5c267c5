// LayoutTest.cpp - what lies where on the paper.
#include <gtest/gtest.h>

#include "teskarlt/plot/Layout.h"

namespace teskarlt::plot {
namespace {

const Paper A3{"A3", 420, 297};  // within margins and over the strip: 390 x 244 mm

TEST(Layout, PlanHasTheWholeAreaWithoutASchedule) {
  const Layout layout = LayOut({100, 100}, {}, A3);
  EXPECT_FALSE(layout.hasTable);
  EXPECT_EQ(layout.plan.Width(), 390);
  EXPECT_EQ(layout.plan.Height(), 244);
}

TEST(Layout, ScheduleStandsBesideThePlanWhereThereIsRoom) {
  const Layout layout = LayOut({200, 100}, {100, 200}, A3);
  ASSERT_TRUE(layout.hasTable);
  EXPECT_EQ(layout.plan.Height(), 244);
  EXPECT_GE(layout.table.x, layout.plan.right);
  EXPECT_LE(layout.table.x + 100, layout.frame.right);
}

TEST(Layout, ScheduleStandsBelowAWidePlan) {
  const Layout layout = LayOut({370, 100}, {100, 60}, A3);
  ASSERT_TRUE(layout.hasTable);
  EXPECT_EQ(layout.plan.Width(), 390);
  EXPECT_GE(layout.table.y, layout.plan.bottom);
  EXPECT_LE(layout.table.y + 60, layout.title.top);
}

TEST(Layout, ScheduleIsLeftOutWhereNeitherHasRoom) {
  EXPECT_FALSE(LayOut({370, 225}, {100, 60}, A3).hasTable);
  EXPECT_FALSE(LayOut({100, 100}, {100, 300}, A3).hasTable);
}

TEST(Layout, PlanFitsWithRoomAroundIt) {
  EXPECT_TRUE(Fits({378, 232}, A3));
  EXPECT_FALSE(Fits({379, 100}, A3));
  EXPECT_FALSE(Fits({100, 233}, A3));
}

TEST(Layout, TitleBlockHasRoomOnTheSmallestPaper) {
  const Layout layout = LayOut({10, 10}, {}, {"", LEAST_PAPER, LEAST_PAPER});
  EXPECT_GE(layout.title.Width(), 70);
  EXPECT_GE(layout.title.left, layout.legend.right);
}

}  // namespace
}  // namespace teskarlt::plot
