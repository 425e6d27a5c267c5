// ScheduleJsonTest.cpp - schedules for programs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/schedule/ScheduleJson.h"
#include "tests/teskarlt/schedule/Schedules.h"

namespace teskarlt::schedule {
namespace {

using testing::HasSubstr;

TEST(ScheduleJson, MembersAreTheColumnsInMetres) {
  const auto columns = ColumnsOf({"mark", "quantity", "width", "opening", "compass", "head"});
  EXPECT_EQ(JsonOf(ScheduleOf({Window("W01")}), columns, ENGLISH).Text(), R"({
  "windows": [
    {
      "mark": "W01",
      "quantity": 1,
      "width": 0.78,
      "opening": "centre-pivot",
      "compass": "S",
      "head": null
    }
  ],
  "totals": {
    "quantity": 1
  }
})");
}

TEST(ScheduleJson, CompassIsEnglishInEveryLanguage) {
  ScheduleRow row = Window("W01");
  row.compass = "E";
  EXPECT_THAT(JsonOf(ScheduleOf({row}), ColumnsOf({"compass"}), GERMAN).Text(),
              HasSubstr("\"compass\": \"E\""));
}

TEST(ScheduleJson, WhatIsNotKnownIsNull) {
  ScheduleRow row{.mark = "W01"};
  row.isRead = false;
  const std::string text =
      JsonOf(ScheduleOf({row}), ColumnsOf({"roof", "compass", "opening", "width"}), ENGLISH).Text();
  for (const char* const name : {"roof", "compass", "opening", "width"})
    EXPECT_THAT(text, HasSubstr("\"" + std::string(name) + "\": null"));
}

TEST(ScheduleJson, ComparisonTellsValuesBeforeAndAfter) {
  const Schedule before = ScheduleOf({Window("W01"), Window("W02")});
  Schedule after = ScheduleOf({Window("W02"), Window("W03")});
  after.rows[0].width = 0.94;
  const auto columns = ColumnsOf({"mark", "width"});
  EXPECT_EQ(JsonOf(Compare(before, after, columns), columns, ENGLISH).Text(), R"({
  "came": [
    {
      "mark": "W03",
      "width": 0.78
    }
  ],
  "went": [
    {
      "mark": "W01",
      "width": 0.78
    }
  ],
  "changed": [
    {
      "mark": "W02",
      "changes": [
        {
          "column": "width",
          "before": 0.78,
          "after": 0.94
        }
      ]
    }
  ]
})");
}

}  // namespace
}  // namespace teskarlt::schedule
