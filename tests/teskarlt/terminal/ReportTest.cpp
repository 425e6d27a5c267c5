// ReportTest.cpp - tables on the terminal.
#include <gtest/gtest.h>

#include "teskarlt/terminal/Report.h"

namespace teskarlt {
namespace {

std::string Printed(const Table& table) {
  testing::internal::CaptureStdout();
  table.Print();
  return testing::internal::GetCapturedStdout();
}

TEST(Table, TextWithALineBreakStaysInItsRow) {
  Table table({"number", "texts"});
  table.Add({"1", "Maker\nType"});
  EXPECT_EQ(Printed(table), "number  texts\n1       Maker Type\n");
}

TEST(Table, WithoutRowsHasItsHeadings) {
  EXPECT_EQ(Printed(Table({"number", "glass area m2"})), "number  glass area m2\n");
}

TEST(Table, HeadingsStayInOneLineWhereThereIsRoom) {
  Table table({"number of the window", "text"}, Table::Headings::Broken);
  table.Add({"1", std::string(100 - 20 - 2, 'x')});
  EXPECT_EQ(Printed(table),
            "number of the window  text\n1" + std::string(21, ' ') + std::string(78, 'x') + "\n");
}

TEST(Table, HeadingsOfATableThatIsTooWideAreBrokenAboveTheirColumns) {
  Table table({"mark", "depth of frame", "text"}, Table::Headings::Broken);
  table.Add({"W01", "0.08 m", std::string(90, 'x')});
  const std::string printed = Printed(table);
  EXPECT_EQ(printed.substr(0, printed.find("W01")),
            "      depth   \n"
            "      of      \n"
            "mark  frame   text\n");
}

TEST(Table, HeadingsOfAWideTableAreInOneLineUnlessTheyMayBeBroken) {
  Table table({"depth of frame", "text"});
  table.Add({"0.08 m", std::string(90, 'x')});
  EXPECT_EQ(Printed(table).substr(0, 21), "depth of frame  text\n");
}

}  // namespace
}  // namespace teskarlt
