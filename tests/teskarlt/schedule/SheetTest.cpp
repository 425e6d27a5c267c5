// SheetTest.cpp - a schedule as a table of texts and numbers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/teskarlt/schedule/Schedules.h"

namespace teskarlt::schedule {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> HeadingsOf(const Sheet& sheet) {
  std::vector<std::string> headings;
  for (const Heading& heading : sheet.headings)
    headings.push_back(heading.text);
  return headings;
}

// One window's value in a column.
Cell CellIn(const char* column, const ScheduleRow& row, const SheetStyle& style = {}, bool hasUnit = true) {
  return CellOf(row, *FindColumn(column), style, hasUnit);
}

TEST(SheetOf, HeadingsHaveUnits) {
  const auto columns = ColumnsOf({"mark", "quantity", "width", "sill", "glassArea", "pitch"});
  EXPECT_THAT(HeadingsOf(SheetOf(ScheduleOf({}), columns, {})),
              ElementsAre("Mark", "Quantity", "Width mm", "Sill height m", "Glass area m²", "Roof pitch °"));
  EXPECT_THAT(HeadingsOf(SheetOf(ScheduleOf({}), columns, {.lengths = LengthStyle::FeetAndInches})),
              ElementsAre("Mark", "Quantity", "Width ft-in", "Sill height ft-in", "Glass area sq ft",
                          "Roof pitch °"));
}

TEST(SheetOf, LengthsOfDrawingWithoutUnitAreAsTheyAre) {
  Schedule schedule = ScheduleOf({Window("W01")});
  schedule.hasUnit = false;
  schedule.rows[0].width = 780;
  const Sheet sheet =
      SheetOf(schedule, ColumnsOf({"width", "sill", "glassArea"}), {.lengths = LengthStyle::FeetAndInches});
  EXPECT_THAT(HeadingsOf(sheet), ElementsAre("Width", "Sill height", "Glass area"));
  EXPECT_THAT(TextsOf(sheet.rows[0]), ElementsAre("780.000", "3.200", "0.70"));
}

TEST(SheetOf, TitleNamesTheDrawing) {
  const auto columns = ColumnsOf({"mark"});
  EXPECT_EQ(SheetOf(ScheduleOf({}), columns, {.language = &GERMAN}).title, "Dachfensterliste house.dxf");
}

TEST(SheetOf, SumsStandBelowTheColumnsThatHaveThem) {
  const auto columns = ColumnsOf({"mark", "quantity", "width", "glassArea"});
  const Sheet sheet = SheetOf(ScheduleOf({Window("W01"), Window("W02")}), columns, {});
  EXPECT_THAT(TextsOf(sheet.totals), ElementsAre("Total", "2", "", "1.39"));  // 2 * 0.696
}

TEST(SheetOf, NoSumsWhereNoneAreAskedForOrNoColumnHasOne) {
  const Schedule schedule = ScheduleOf({Window("W01")});
  EXPECT_THAT(SheetOf(schedule, ColumnsOf({"quantity"}), {.hasTotals = false}).totals, IsEmpty());
  EXPECT_THAT(SheetOf(schedule, ColumnsOf({"mark", "width"}), {}).totals, IsEmpty());
}

TEST(CellOf, SizesAreInTenthsOfAMillimetreAsFarAsTheyHaveThem) {
  ScheduleRow row = Window("W01");
  EXPECT_EQ(CellIn("width", row), (Cell{"780", CellKind::Number}));
  row.width = 0.78051;
  EXPECT_EQ(CellIn("width", row), (Cell{"780.5", CellKind::Number}));
}

TEST(CellOf, HeightsAreInMetresAndWithoutSignWhereTheyRoundToNothing) {
  ScheduleRow row = Window("W01");
  EXPECT_EQ(CellIn("sill", row).text, "3.200");
  row.sill = -0.0004;
  EXPECT_EQ(CellIn("sill", row).text, "0.000");
  row.sill = -0.5;
  EXPECT_EQ(CellIn("sill", row).text, "-0.500");
}

TEST(CellOf, FeetAndInchesHaveTheirMarks) {
  ScheduleRow row = Window("W01");
  row.width = 1.2192;     // 4'
  row.glassArea = 0.929;  // 10 sq ft of 0.0929 m2
  const SheetStyle feet{.lengths = LengthStyle::FeetAndInches};
  EXPECT_EQ(CellIn("width", row, feet), (Cell{"4'-0\"", CellKind::FeetInches}));
  EXPECT_EQ(CellIn("glassArea", row, feet), (Cell{"10.00", CellKind::Number}));
}

TEST(CellOf, WhatIsNotKnownIsEmpty) {
  const ScheduleRow row{.mark = "W01"};
  EXPECT_EQ(CellIn("width", row), Cell{});
  EXPECT_EQ(CellIn("roof", row), Cell{});
}

TEST(CellOf, OpeningOfWindowThatCannotBeReadIsEmpty) {
  ScheduleRow row{.mark = "W01"};
  EXPECT_EQ(CellIn("opening", row).text, "fixed glazing");
  row.isRead = false;
  EXPECT_EQ(CellIn("opening", row).text, "");
}

TEST(CellOf, WordsAreThoseOfTheLanguage) {
  ScheduleRow row = Window("W01");
  row.compass = "E";
  EXPECT_EQ(CellIn("opening", row, {.language = &CZECH}).text, "kyvné");
  EXPECT_EQ(CellIn("compass", row, {.language = &GERMAN}).text, "O");
  EXPECT_EQ(CellIn("code", row, {.language = &GERMAN}).text, "D");
}

TEST(CellOf, TextIsOneLine) {
  ScheduleRow row = Window("W01");
  row.text = "two\nlines";
  EXPECT_EQ(CellIn("text", row).text, "two lines");
}

TEST(Shown, DecimalMarkIsForNumbersAlone) {
  EXPECT_EQ(Shown({"3.200", CellKind::Number}, ','), "3,200");
  EXPECT_EQ(Shown({"EG 1.2", CellKind::Text}, ','), "EG 1.2");
}

}  // namespace
}  // namespace teskarlt::schedule
