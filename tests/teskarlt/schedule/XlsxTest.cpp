// XlsxTest.cpp - a sheet as a workbook of spreadsheet programs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/schedule/Xlsx.h"
#include "tests/teskarlt/schedule/Schedules.h"

namespace teskarlt::schedule {
namespace {

using testing::HasSubstr;
using testing::Not;

// Files are stored as they are, so that their texts can be looked for.
TEST(Xlsx, NumberIsANumberWithItsDigits) {
  EXPECT_THAT(Xlsx(SheetWith({"940", CellKind::Number})), HasSubstr(R"(<c r="A2" s="1"><v>940</v></c>)"));
  EXPECT_THAT(Xlsx(SheetWith({"35.0", CellKind::Number})), HasSubstr(R"(<c r="A2" s="2"><v>35.0</v></c>)"));
  EXPECT_THAT(Xlsx(SheetWith({"4.240", CellKind::Number})), HasSubstr(R"(<c r="A2" s="4"><v>4.240</v></c>)"));
}

TEST(Xlsx, TextIsATextWhateverItLooksLike) {
  EXPECT_THAT(Xlsx(SheetWith({"=1<2"})),
              HasSubstr(R"(<c r="A2" s="0" t="inlineStr"><is><t xml:space="preserve">=1&lt;2</t></is></c>)"));
}

TEST(Xlsx, SumsAreBold) {
  Sheet sheet = SheetWith({"W01"});
  sheet.totals = {{"1.39", CellKind::Number}};
  EXPECT_THAT(Xlsx(sheet), HasSubstr(R"(<row r="3"><c r="A3" s="8"><v>1.39</v></c></row>)"));
}

TEST(Xlsx, EmptyCellHasNoValue) {
  EXPECT_THAT(Xlsx(SheetWith({})), HasSubstr(R"(<c r="A2" s="0"/>)"));
}

TEST(Xlsx, HeadingsStayInSight) {
  EXPECT_THAT(Xlsx(SheetWith({"W01"})), HasSubstr(R"(<pane ySplit="1" topLeftCell="A2")"));
}

TEST(Xlsx, ColumnsAreAsWideAsTheirTextsUpToALimit) {
  EXPECT_THAT(Xlsx(SheetWith({"W01"})), HasSubstr(R"(<col min="1" max="1" width="8")"));
  EXPECT_THAT(Xlsx(SheetWith({"ROOF_WINDOWS"})), HasSubstr(R"(width="14")"));
  EXPECT_THAT(Xlsx(SheetWith({std::string(200, 'x')})), HasSubstr(R"(width="40")"));
  Sheet sheet = SheetWith({"W01"});
  sheet.headings[0].text = "Himmelsrichtung des Daches";  // 15 letters and a margin of 2
  EXPECT_THAT(Xlsx(sheet), HasSubstr(R"(width="17")"));
}

TEST(Xlsx, ColumnsBehindZHaveTwoLetters) {
  Sheet sheet = SheetWith({"W01"});
  sheet.headings.resize(28);
  sheet.rows[0].resize(28);
  EXPECT_THAT(Xlsx(sheet), HasSubstr(R"(<c r="AB2")"));
  EXPECT_THAT(Xlsx(sheet), Not(HasSubstr(R"(<c r="AC2")")));
}

}  // namespace
}  // namespace teskarlt::schedule
