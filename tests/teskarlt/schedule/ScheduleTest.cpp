// ScheduleTest.cpp - rows of a schedule put into order and put together by type.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/teskarlt/schedule/Schedules.h"

namespace teskarlt::schedule {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

std::vector<std::string> MarksBy(Order order, Schedule schedule) {
  Sort(order, schedule);
  std::vector<std::string> marks;
  for (const ScheduleRow& row : schedule.rows)
    marks.push_back(row.mark);
  return marks;
}

TEST(NaturalOrder, DigitsCountAsNumbers) {
  EXPECT_TRUE(IsNaturallyBefore("W2", "W10"));
  EXPECT_FALSE(IsNaturallyBefore("W10", "W2"));
  EXPECT_TRUE(IsNaturallyBefore("W9a", "W10"));
  EXPECT_FALSE(IsNaturallyBefore("W02", "W2"));
  EXPECT_FALSE(IsNaturallyBefore("W2", "W02"));
  EXPECT_TRUE(IsNaturallyBefore("W12", "W13"));
}

TEST(NaturalOrder, BeginningOfTextComesBeforeIt) {
  EXPECT_TRUE(IsNaturallyBefore("W", "W1"));
  EXPECT_FALSE(IsNaturallyBefore("W1", "W1"));
  EXPECT_TRUE(IsNaturallyBefore("A1", "W1"));
}

TEST(Sort, ByMark) {
  EXPECT_THAT(MarksBy(Order::Mark, ScheduleOf({Window("W10"), Window("W02")})), ElementsAre("W02", "W10"));
}

TEST(Sort, ByRoofWithThoseOnNoneAtTheEnd) {
  Schedule schedule = ScheduleOf({Window("W01"), Window("W02"), Window("W03"), Window("W04")});
  schedule.rows[0].roof = "";
  schedule.rows[1].roof = "R10";
  schedule.rows[2].roof = "R2";
  schedule.rows[3].roof = "R2";
  EXPECT_THAT(MarksBy(Order::Roof, schedule), ElementsAre("W03", "W04", "W02", "W01"));
}

TEST(Sort, ByTypeWithMakersFirstThenSizes) {
  Schedule schedule = ScheduleOf({Window("W01"), Window("W02"), Window("W03")});
  schedule.rows[0].width = 0.94;
  schedule.rows[2].maker = "Cloudworks";
  EXPECT_THAT(MarksBy(Order::Type, schedule), ElementsAre("W03", "W02", "W01"));
}

TEST(Sort, WindowWithoutValueComesLast) {
  Schedule schedule = ScheduleOf({Window("W01"), Window("W02")});
  schedule.rows[0].width = std::nullopt;
  EXPECT_THAT(MarksBy(Order::Type, schedule), ElementsAre("W02", "W01"));
}

TEST(ByType, WindowsThatAreOrderedAlikeAreOneRow) {
  Schedule schedule = ScheduleOf({Window("W01"), Window("W02"), Window("W03")});
  schedule.rows[1].width = 0.94;
  schedule.rows[2].roof = "R2";
  const Schedule types = ByType(schedule);
  ASSERT_THAT(types.rows, SizeIs(2));
  EXPECT_EQ(types.rows[0].mark, "W01, W03");
  EXPECT_EQ(types.rows[0].quantity, 2.0);
  EXPECT_EQ(types.rows[0].roof, "R1, R2");
  EXPECT_EQ(types.rows[0].compass, "S");
  EXPECT_EQ(types.rows[1].mark, "W02");
  EXPECT_EQ(types.rows[1].quantity, 1.0);
}

TEST(ByType, ValueThatDiffersIsLeftOut) {
  Schedule schedule = ScheduleOf({Window("W01"), Window("W02")});
  schedule.rows[1].sill = 3.3;
  const Schedule types = ByType(schedule);
  ASSERT_THAT(types.rows, SizeIs(1));
  EXPECT_EQ(types.rows[0].sill, std::nullopt);
  EXPECT_EQ(types.rows[0].pitch, 35.0);
}

TEST(ByType, RoundingMakesNoTypes) {
  Schedule schedule = ScheduleOf({Window("W01"), Window("W02")});
  *schedule.rows[1].width += 1e-9;
  EXPECT_THAT(ByType(schedule).rows, SizeIs(1));
}

TEST(ByType, DifferentOpeningsAreDifferentTypes) {
  Schedule schedule = ScheduleOf({Window("W01"), Window("W02")});
  schedule.rows[1].openingCode = "BO";
  const Schedule types = ByType(schedule);
  ASSERT_THAT(types.rows, SizeIs(2));
  EXPECT_EQ(types.rows[1].openingCode, "BO");
}

TEST(ByType, WindowThatCannotBeReadIsNoFixedGlazing) {
  Schedule schedule = ScheduleOf({ScheduleRow{.mark = "W01"}, ScheduleRow{.mark = "W02"}});
  schedule.rows[0].isRead = false;
  EXPECT_THAT(ByType(schedule).rows, SizeIs(2));
}

TEST(TotalOf, EachWindowOfTypeCounts) {
  const Schedule types = ByType(ScheduleOf({Window("W01"), Window("W02"), Window("W03")}));
  EXPECT_DOUBLE_EQ(*TotalOf(*FindColumn("glassArea"), types), 3 * 0.696);
  EXPECT_DOUBLE_EQ(*TotalOf(*FindColumn("quantity"), types), 3);
  EXPECT_FALSE(TotalOf(*FindColumn("quantity"), ScheduleOf({})).has_value());
}

TEST(FindColumn, NameIsFoundInAnyCase) {
  EXPECT_EQ(FindColumn("GLASSarea")->name, "glassArea");
  EXPECT_EQ(FindColumn("glass"), nullptr);
}

}  // namespace
}  // namespace teskarlt::schedule
