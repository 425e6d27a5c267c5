// CsvTest.cpp - a sheet as comma-separated values.
#include <gtest/gtest.h>

#include "teskarlt/schedule/Csv.h"
#include "tests/teskarlt/schedule/Schedules.h"

namespace teskarlt::schedule {
namespace {

// The record of one cell, without its line end.
std::string RecordOf(const Cell& cell, const CsvOptions& options = {}) {
  const std::string csv = Csv(SheetWith(cell), options);
  const std::string head = "Name\r\n";
  EXPECT_EQ(csv.substr(0, head.size()), head);
  EXPECT_EQ(csv.substr(csv.size() - 2), "\r\n");
  return csv.substr(head.size(), csv.size() - head.size() - 2);
}

TEST(Csv, RowsFollowTheHeadingsAndSumsTheRows) {
  Sheet sheet = SheetWith({"W01"});
  sheet.headings.push_back({"Quantity", true});
  sheet.rows[0].push_back({"1", CellKind::Number});
  sheet.totals = {{"Total"}, {"1", CellKind::Number}};
  EXPECT_EQ(Csv(sheet, {}), "Name,Quantity\r\nW01,1\r\nTotal,1\r\n");
  EXPECT_EQ(Csv(sheet, {.delimiter = ';'}), "Name;Quantity\r\nW01;1\r\nTotal;1\r\n");
}

TEST(Csv, FieldWithDelimiterOrQuotationMarkIsQuoted) {
  EXPECT_EQ(RecordOf({"a,b"}), "\"a,b\"");
  EXPECT_EQ(RecordOf({"a;b"}), "a;b");
  EXPECT_EQ(RecordOf({"a;b"}, {.delimiter = ';'}), "\"a;b\"");
  EXPECT_EQ(RecordOf({"24\""}), "\"24\"\"\"");
}

TEST(Csv, DecimalMarkIsThatOfTheOptions) {
  EXPECT_EQ(RecordOf({"3.200", CellKind::Number}, {.delimiter = ';', .decimalMark = ','}), "3,200");
  EXPECT_EQ(RecordOf({"3.200", CellKind::Number}, {.decimalMark = ','}), "\"3,200\"");
}

TEST(Csv, FormulasInTextsAreMadeHarmless) {
  EXPECT_EQ(RecordOf({"=1+1"}), "'=1+1");
  EXPECT_EQ(RecordOf({"+1"}), "'+1");
  EXPECT_EQ(RecordOf({"@SUM(A1)"}), "'@SUM(A1)");
  EXPECT_EQ(RecordOf({"-1+1"}), "'-1+1");
  EXPECT_EQ(RecordOf({"=A1,\"x\""}), "\"'=A1,\"\"x\"\"\"");
}

TEST(Csv, NumbersAndDashesAreNoFormulas) {
  EXPECT_EQ(RecordOf({"-0.500", CellKind::Number}), "-0.500");
  EXPECT_EQ(RecordOf({"-2'", CellKind::FeetInches}), "-2'");
  EXPECT_EQ(RecordOf({"-"}), "-");
}

TEST(Csv, ByteOrderMarkStandsFirst) {
  EXPECT_EQ(Csv(SheetWith({"ž"}), {.hasByteOrderMark = true}), "\xEF\xBB\xBFName\r\nž\r\n");
}

}  // namespace
}  // namespace teskarlt::schedule
