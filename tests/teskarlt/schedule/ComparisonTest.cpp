// ComparisonTest.cpp - what came, went and changed between two schedules.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/schedule/Comparison.h"
#include "tests/teskarlt/schedule/Schedules.h"

namespace teskarlt::schedule {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(Compare, WindowsAreTheSameByTheirMarks) {
  const Schedule before = ScheduleOf({Window("W01"), Window("W02"), Window("W04")});
  const Schedule after = ScheduleOf({Window("W02"), Window("W03")});
  const Comparison comparison = Compare(before, after, ColumnsOf({"mark", "width"}));
  EXPECT_THAT(comparison.came, ElementsAre(&after.rows[1]));
  EXPECT_THAT(comparison.went, ElementsAre(&before.rows[0], &before.rows[2]));
  EXPECT_THAT(comparison.changed, IsEmpty());
}

TEST(Compare, ChangesAreTheValuesThatAreShownOtherwise) {
  const Schedule before = ScheduleOf({Window("W01")});
  Schedule after = before;
  after.rows[0].width = 0.94;
  *after.rows[0].length += 1e-6;  // not seen in tenths of a millimetre
  after.rows[0].roof = "R2";
  const Comparison comparison = Compare(before, after, ColumnsOf({"width", "length", "roof"}));
  ASSERT_THAT(comparison.changed, SizeIs(1));
  EXPECT_THAT(comparison.changed[0].columns, ElementsAre(FindColumn("width"), FindColumn("roof")));
}

TEST(Compare, ColumnsThatAreNotChosenAreNotCompared) {
  const Schedule before = ScheduleOf({Window("W01")});
  Schedule after = before;
  after.rows[0].width = 0.94;
  EXPECT_THAT(Compare(before, after, ColumnsOf({"length"})).changed, IsEmpty());
}

TEST(Compare, SecondWindowOfOneMarkIsAnotherOne) {
  const Schedule before = ScheduleOf({Window("W01")});
  const Schedule after = ScheduleOf({Window("W01"), Window("W01")});
  EXPECT_THAT(Compare(before, after, ColumnsOf({"width"})).came, ElementsAre(&after.rows[1]));
}

TEST(Compare, TypesAreTheSameByWhatIsOrdered) {
  Schedule before = ScheduleOf({Window("W01"), Window("W02")});
  before.rows[0].quantity = 3.0;
  before.rows[1].width = 1.14;
  Schedule after = ScheduleOf({Window("W07"), Window("W02")});
  after.rows[1].openingCode = "F";
  const Comparison comparison = Compare(before, after, ColumnsOf({"quantity"}), SameBy::Type);
  EXPECT_THAT(comparison.came, ElementsAre(&after.rows[1]));
  EXPECT_THAT(comparison.went, ElementsAre(&before.rows[1]));
  ASSERT_THAT(comparison.changed, SizeIs(1));
  EXPECT_EQ(comparison.changed[0].before, &before.rows[0]);
  EXPECT_EQ(comparison.changed[0].after, &after.rows[0]);
}

TEST(ComparisonSheet, HasARowForEachWindowThatCameOrWentAndEachValueThatChanged) {
  const Schedule before = ScheduleOf({Window("W01"), Window("W02")});
  Schedule after = ScheduleOf({Window("W02"), Window("W03")});
  after.rows[0].width = 0.94;
  after.rows[1].maker = "Cloudworks";
  after.rows[1].key = "CW 78x140";
  const Comparison comparison = Compare(before, after, ColumnsOf({"width"}));
  const Sheet sheet = SheetOf(comparison, before, after, {});
  ASSERT_THAT(sheet.rows, SizeIs(3));
  EXPECT_THAT(TextsOf(sheet.rows[0]), ElementsAre("W03", "new", "", "", "Cloudworks CW 78x140 780 x 1400"));
  EXPECT_THAT(TextsOf(sheet.rows[1]), ElementsAre("W01", "gone", "", "780 x 1400", ""));
  EXPECT_THAT(TextsOf(sheet.rows[2]), ElementsAre("W02", "changed", "Width mm", "780", "940"));
  EXPECT_EQ(sheet.title, "Changes of the roof windows house.dxf - house.dxf");
}

}  // namespace
}  // namespace teskarlt::schedule
