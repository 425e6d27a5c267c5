// MarkdownTest.cpp - a sheet as a table in Markdown.
#include <gtest/gtest.h>

#include "teskarlt/schedule/Markdown.h"
#include "tests/teskarlt/schedule/Schedules.h"

namespace teskarlt::schedule {
namespace {

TEST(Markdown, TableHasTitleHeadingsRowsAndSums) {
  Sheet sheet = SheetWith({"W01"});
  sheet.language = &GERMAN;
  sheet.headings.push_back({"Height m", true});
  sheet.rows[0].push_back({"3.200", CellKind::Number});
  sheet.totals = {{"Total"}, {}};
  EXPECT_EQ(Markdown(sheet),
            "# Windows\n\n| Name | Height m |\n| --- | ---: |\n| W01 | 3,200 |\n| Total |  |\n");
}

TEST(Markdown, MarksInTextsAreEscaped) {
  EXPECT_EQ(Markdown(SheetWith({"a|b <i> ROOF_A *x* \\"})),
            "# Windows\n\n| Name |\n| --- |\n| a\\|b \\<i> ROOF_A \\*x\\* \\\\ |\n");
}

}  // namespace
}  // namespace teskarlt::schedule
