// WindowsTest.cpp - damage to roof windows.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

constexpr int LINES_OF_A_PLAIN_WINDOW = 7;  // without a symbol and without faces

std::string Element(int number) {
  return fmt::format("1001|TK_LT_ELEM|1000|TKBRVA|1071|{}|", number);
}

std::string Description(std::string_view width = "940.0") {
  std::string points;
  for (int i = 0; i < 6; ++i)
    points += "1011|0.0|1021|0.0|1031|0.0|";
  return fmt::format(
      "1001|TK_LT_DESC|1070|1|1040|1400.0|1041|{}|1042|100.0|1000|Maker|1000||1000|D|1070|0|1040|80.0|"
      "1040|3900.0|1070|1|1070|0|1070|0|1011|0.0|1021|0.0|1031|0.0|1011|0.0|1021|0.0|1031|0.0|"
      "1040|0.0|1040|0.0|1040|100.0|1040|35.0|{}1000||",
      width, points);
}

// Lines of a window, with consecutive handles from `handle` on.
std::string Window(int handle, int lines, const std::string& data) {
  std::string all;
  for (int i = 0; i < lines; ++i)
    all += Line(std::to_string(handle + i), data);
  return all;
}

std::string WithWindows(const std::string& entities) {
  return Damaged(
      Sound(entities), "2|FOREIGN|70|0",
      "2|TK_LT_ELEM|70|0|" + Entry("APPID", "9", "93", "AcDbRegAppTableRecord", "TK_LT_DESC") + "62|0");
}

std::vector<std::string> FoundIn(const std::string& entities) {
  std::vector<std::string> found;
  for (std::string& finding : Found(WithWindows(entities)))
    if (finding.find("table-count") == std::string::npos) found.push_back(std::move(finding));
  return found;
}

TEST(CheckWindows, WholeWindowIsSound) {
  EXPECT_THAT(FoundIn(Window(100, LINES_OF_A_PLAIN_WINDOW, Element(1) + Description())), IsEmpty());
}

TEST(CheckWindows, HalfAWindowIsAnError) {
  EXPECT_THAT(FoundIn(Window(100, 6, Element(1) + Description())), ElementsAre("error window-entities LINE"));
}

TEST(CheckWindows, CopyWithTheNumberOfItsModelIsAnError) {
  EXPECT_THAT(FoundIn(Window(100, 2 * LINES_OF_A_PLAIN_WINDOW, Element(1) + Description())),
              ElementsAre("error window-number LINE"));
}

std::string WindowNumbered(int number) {
  return Window(100 * number, LINES_OF_A_PLAIN_WINDOW, Element(number) + Description());
}

// The text of a tag, whose handle is the number.
std::string TagText(int handle, int number, const std::string& text) {
  return fmt::format(
      "0|TEXT|5|{}|330|14|100|AcDbEntity|8|0|100|AcDbText|10|0.0|20|0.0|40|10.0|1|{}|72|1|11|0.0|21|0.0|100|"
      "AcDbText|73|2|1001|TK_LT_TAG|1070|0|1071|{}|1010|0.0|1020|0.0|1030|0.0|",
      handle, text, number);
}

// What is told of tags.
std::vector<std::string> FoundOfTags(const std::string& entities) {
  std::vector<std::string> found = FoundIn(entities);
  std::erase_if(found, [](const std::string& line) { return line.find("window-tag") == std::string::npos; });
  return found;
}

TEST(CheckWindows, TagThatReadsAsItsWindowIsCalledIsSound) {
  EXPECT_THAT(FoundOfTags(WindowNumbered(1) + TagText(900, 1, "W01")), IsEmpty());
}

TEST(CheckWindows, TagWithAnotherTextIsAWarning) {
  EXPECT_THAT(FoundOfTags(WindowNumbered(1) + TagText(900, 1, "W02")),
              ElementsAre("warning window-tag TEXT"));
}

TEST(CheckWindows, TagWithoutAWindowIsAWarning) {
  EXPECT_THAT(FoundOfTags(WindowNumbered(1) + TagText(900, 2, "W02")),
              ElementsAre("warning window-tag TEXT"));
}

TEST(CheckWindows, SecondTagOfAWindowIsAWarning) {
  EXPECT_THAT(FoundOfTags(WindowNumbered(1) + TagText(900, 1, "W01") + TagText(901, 1, "W01")),
              ElementsAre("warning window-tag TEXT"));
}

TEST(CheckWindows, TagWithoutItsTextIsAWarning) {
  const std::string leader = Line("900", "1001|TK_LT_TAG|1070|1|1071|1|1010|0.0|1020|0.0|1030|0.0|");
  EXPECT_THAT(FoundOfTags(WindowNumbered(1) + leader), ElementsAre("warning window-tag LINE"));
}

TEST(CheckWindows, TagsOfCopiesAreNobodysFault) {
  EXPECT_THAT(
      FoundOfTags(WindowNumbered(1) + Window(200, LINES_OF_A_PLAIN_WINDOW, Element(1) + Description()) +
                  TagText(900, 1, "W01") + TagText(901, 1, "W01")),
      IsEmpty());
}

TEST(CheckWindows, MarkOnWhatIsNoPartOfAWindowIsAWarning) {
  EXPECT_THAT(FoundIn(Line("100", "1001|TK_LT_MARK|1000|W01|")),
              testing::Contains("warning window-foreign-data TK_LT_MARK"));
}

TEST(CheckWindows, MarkThatTwoWindowsBearIsAWarningAtTheSecond) {
  const auto window = [](int handle, int number, const std::string& mark) {
    return Window(handle, LINES_OF_A_PLAIN_WINDOW,
                  Element(number) + Description() + "1001|TK_LT_MARK|1000|" + mark + "|");
  };
  EXPECT_THAT(FoundIn(window(100, 1, "W01") + window(200, 2, "W01")),
              testing::Contains("warning window-mark LINE"));
  EXPECT_THAT(FoundIn(window(100, 1, "W01") + window(200, 2, "W02")),
              testing::Not(testing::Contains("warning window-mark LINE")));
}

TEST(CheckWindows, TwoWindowsWithOneNumberAreAnErrorAtTheSecond) {
  const std::string text =
      WithWindows(Window(100, LINES_OF_A_PLAIN_WINDOW, Element(4) + Description()) +
                  Window(200, LINES_OF_A_PLAIN_WINDOW, Element(4) + Description("780.0")));
  const Verdict verdict = Checked(text);
  ASSERT_EQ(verdict.errors, 1U);
  EXPECT_EQ(verdict.findings.back().kind, Kind::WindowNumber);
  EXPECT_EQ(verdict.findings.back().handle, 0x200U);
}

TEST(CheckWindows, WindowWithoutANumberIsAnError) {
  EXPECT_THAT(FoundIn(Window(100, LINES_OF_A_PLAIN_WINDOW, Element(0) + Description())),
              ElementsAre("error window-number LINE"));
}

TEST(CheckWindows, DamagedDescriptionIsAnError) {
  EXPECT_THAT(FoundIn(Window(100, LINES_OF_A_PLAIN_WINDOW, Element(1) + "1001|TK_LT_DESC|1070|1|")),
              ElementsAre("error window-description LINE"));
}

TEST(CheckWindows, WindowThatIsNoRectangleIsAnErrorWhereTheUnitIsKnown) {
  const std::string text = WithWindows(Window(100, LINES_OF_A_PLAIN_WINDOW, Element(1) + Description()));
  EXPECT_EQ(Checked(text).errors, 0U);
  const Verdict verdict = Checked(Damaged(text, "9|$HANDSEED|5|FFFF", "9|$HANDSEED|5|FFFF|9|$INSUNITS|70|4"));
  ASSERT_EQ(verdict.errors, 1U);
  EXPECT_EQ(verdict.findings.back().kind, Kind::WindowSize);
}

TEST(CheckWindowData, ForeignDataUnderOurNamesAreDoubtful) {
  EXPECT_THAT(FoundIn(Line("100", "1001|TK_LT_ELEM|1000|OTHER|")),
              ElementsAre("warning window-foreign-data TK_LT_ELEM"));
  EXPECT_THAT(FoundIn(Line("100", Description())), ElementsAre("warning window-foreign-data TK_LT_DESC"));
}

TEST(CheckWindowData, PartWithoutADescriptionIsDoubtful) {
  EXPECT_THAT(FoundIn(Line("100", Element(1))),
              ElementsAre("error window-description LINE", "warning window-foreign-data TK_LT_ELEM"));
}

}  // namespace
}  // namespace teskarlt::check
