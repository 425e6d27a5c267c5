// CsvTest.cpp - tables as other programs write them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/catalogue/Csv.h"

namespace teskarlt {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::vector<std::string>> Cells(std::string_view text, char delimiter = ';') {
  std::vector<std::vector<std::string>> cells;
  for (const CsvRow& row : ReadCsv(text, delimiter, "t.csv"))
    cells.push_back(row.cells);
  return cells;
}

template <typename Action>
std::string Refusal(const Action& action) {
  try {
    action();
  } catch (const Error& error) {
    return error.what();
  }
  return {};
}

TEST(ReadCsv, CellsLoseBlanksAroundThem) {
  EXPECT_THAT(Cells("a; b ;c\n1;;3"), ElementsAre(ElementsAre("a", "b", "c"), ElementsAre("1", "", "3")));
}

TEST(ReadCsv, QuotesHoldDelimitersLineEndsBlanksAndQuotes) {
  EXPECT_THAT(Cells("\"a;b\"; \" c \" ;\"d\r\ne\"\n\"5\"\"\";x\"y"),
              ElementsAre(ElementsAre("a;b", " c ", "d\r\ne"), ElementsAre("5\"", "x\"y")));
}

TEST(ReadCsv, LinesEndInEveryWay) {
  for (const char* text : {"a\nb\n", "a\r\nb\r\n", "a\rb\r", "a\n\n;;\nb"})
    EXPECT_THAT(Cells(text), ElementsAre(ElementsAre("a"), ElementsAre("b"))) << text;
}

TEST(ReadCsv, RowsKnowTheirLines) {
  const std::vector<CsvRow> rows = ReadCsv("a\n\"b\nc\"\n\nd\r\ne", ',', "t.csv");
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(rows[1].line, 2U);
  EXPECT_EQ(rows[2].line, 5U);  // behind a cell of two lines and an empty line
  EXPECT_EQ(rows[3].line, 6U);
}

TEST(ReadCsv, BrokenQuotesAreRefusedWithTheirLine) {
  EXPECT_EQ(Refusal([] { Cells("a\n\"b\nc"); }), "t.csv:2: a quote is opened and never closed");
  EXPECT_THAT(Refusal([] { Cells("a\n\"b\" c;d"); }), HasSubstr("t.csv:2: a text stands behind the quote"));
}

TEST(CsvLine, ComesBackWhateverTheCellsHold) {
  const std::vector<std::string> cells = {"a;b", " c ", "d\ne", "5\"", "", "plain"};
  for (const char delimiter : {';', ',', '\t'}) {
    const std::string line = CsvLine({"x", "y"}, delimiter) + CsvLine(cells, delimiter);
    EXPECT_EQ(Cells(line, delimiter)[1], cells);
  }
  EXPECT_EQ(CsvLine({"a", "b;c", "5\""}, ';'), "a;\"b;c\";\"5\"\"\"\n");
}

TEST(DelimiterIn, IsTheOneOfTheFirstLineOutsideQuotes) {
  EXPECT_EQ(DelimiterIn("a;b;c\n1,2,3,4"), ';');
  EXPECT_EQ(DelimiterIn("a,b\r\n"), ',');
  EXPECT_EQ(DelimiterIn("a\tb,c\td"), '\t');
  EXPECT_EQ(DelimiterIn("\"a,b,c\";d"), ';');
  EXPECT_EQ(DelimiterIn("key"), ';');
}

TEST(CsvText, ByteOrderMarkTellsTheEncoding) {
  EXPECT_EQ(CsvText("\xEF\xBB\xBFž", "", "t.csv"), "ž");
  EXPECT_EQ(CsvText("\xEF\xBB\xBFž", "utf-8", "t.csv"), "ž");
  EXPECT_EQ(CsvText("\xFF\xFE\x7E\x01\x3D\xD8\x00\xDE"s, "", "t.csv"), "ž\xF0\x9F\x98\x80");
  EXPECT_EQ(CsvText("\xFE\xFF\x01\x7E"s, "", "t.csv"), "ž");
}

TEST(CsvText, WithoutAMarkTheBytesOrTheUserTell) {
  EXPECT_EQ(CsvText("ž", "", "t.csv"), "ž");
  EXPECT_EQ(CsvText("\x9E", "", "t.csv"), "ž");  // code page 1250
  EXPECT_EQ(CsvText("\xF8", "cp1252", "t.csv"), "ø");
  EXPECT_EQ(CsvText("a", "", "t.csv"), "a");
}

TEST(CsvText, WrongEncodingIsRefusedWithItsLine) {
  EXPECT_THAT(Refusal([] { CsvText("a\n\x9E", "utf-8", "t.csv"); }), HasSubstr("t.csv:2: "));
  EXPECT_THAT(Refusal([] { CsvText("\xFF\xFE\x0A\x00\x00\xDC"s, "", "t.csv"); }),
              HasSubstr("t.csv:2: the line is not in UTF-16"));
  EXPECT_THAT(Refusal([] { CsvText("\xFF\xFE\x0A"s, "", "t.csv"); }), HasSubstr("not in UTF-16"));
  EXPECT_THAT(Refusal([] { CsvText("\xFF\xFE\x3D\xD8\x41\x00"s, "", "t.csv"); }), HasSubstr("not in UTF-16"));
  EXPECT_EQ(Refusal([] { CsvText("\xEF\xBB\xBFž", "cp1252", "t.csv"); }),
            "t.csv: the file begins with the byte order mark of UTF-8, and --encoding says cp1252");
}

}  // namespace
}  // namespace teskarlt
