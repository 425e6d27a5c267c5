// JobsFileTest.cpp - the lines of a jobs file, and the orders in them.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/JobsFile.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;

std::string Refusal(std::string_view job) {
  try {
    ParseJob(job, {});
  } catch (const Error& error) {
    return error.what();
  }
  return "";
}

// The settings of an order, as a command line has them.
std::vector<std::string> SettingsOf(const WindowOrder& order) {
  std::vector<std::string> settings;
  for (const FieldSetting& setting : order.settings)
    settings.push_back(setting.field + "=" + setting.value);
  return settings;
}

TEST(JobsIn, BlankLinesAreCountedAndNotGiven) {
  const std::vector<Job> jobs = JobsIn("a\n\n \t\nb");
  ASSERT_EQ(jobs.size(), 2U);
  EXPECT_EQ(jobs[0].line, 1U);
  EXPECT_EQ(jobs[0].text, "a");
  EXPECT_EQ(jobs[1].line, 4U);
  EXPECT_EQ(jobs[1].text, "b");
}

TEST(JobsIn, WindowsLineEndsAndByteOrderMarkAreTakenOff) {
  const std::vector<Job> jobs = JobsIn("\xEF\xBB\xBF{}\r\n\r\n{}\r\n");
  ASSERT_EQ(jobs.size(), 2U);
  EXPECT_EQ(jobs[0].text, "{}");
  EXPECT_EQ(jobs[1].line, 3U);
  EXPECT_EQ(jobs[1].text, "{}");
}

TEST(ParseJob, PointKeepsEveryDigit) {
  const std::optional<PlanPoint> point = ParseJob(R"({"at": [500000.1234567891, -3]})", {}).at;
  ASSERT_TRUE(point);
  EXPECT_EQ(point->x, 500000.1234567891);
  EXPECT_EQ(point->y, -3);
  EXPECT_EQ(point->text, "500000.1234567891,-3");
  EXPECT_EQ(ParseJob(R"({"at": "1,2"})", {}).at->y, 2);
}

TEST(ParseJob, SettingsOfTheJobStandBehindThoseOfTheDefaults) {
  WindowOrder defaults;
  defaults.settings = {{"width", "1"}};
  const WindowOrder order =
      ParseJob(R"({"set": {"width": 0.78, "bodyAsFaces": false, "text1": "A"}})", defaults);
  EXPECT_THAT(SettingsOf(order), ElementsAre("width=1", "bodyAsFaces=0", "text1=A", "width=0.78"));
}

TEST(ParseJob, ListsOfPointsBecomeOneText) {
  EXPECT_THAT(SettingsOf(ParseJob(R"({"set": {"roofPlanePoints": [[0,0,0],[1,0,0],[0,1,1]]}})", {})),
              ElementsAre("roofPlanePoints=0,0,0;1,0,0;0,1,1"));
}

TEST(ParseJob, RoofOfTheJobReplacesThatOfTheDefaults) {
  WindowOrder defaults;
  defaults.roofName = "2F";
  const WindowOrder plane = ParseJob(R"({"roof": [[0,0,0],[1,0,0],"0,1,2"]})", defaults);
  ASSERT_EQ(plane.roof.size(), 3U);
  EXPECT_EQ(plane.roof[2].z, 2);
  EXPECT_EQ(plane.roofName, "");
  const WindowOrder face = ParseJob(R"({"roof-face": "30"})", plane);
  EXPECT_EQ(face.roofName, "30");
  EXPECT_TRUE(face.roof.empty());
}

TEST(ParseJob, WordsForAPlaceAreThoseOfTheCommandLine) {
  const WindowOrder order = ParseJob(
      R"({"eaves": [[0, 0], [8, 0]], "pitch": 35, "eaves-height": 2.5, "from-eaves": 1, "centre": true})",
      {});
  ASSERT_EQ(order.planRoof.eaves.size(), 2U);
  EXPECT_EQ(order.planRoof.eaves[1].x, 8);
  EXPECT_EQ(order.planRoof.pitch, 35);
  EXPECT_EQ(order.planRoof.eavesHeight, 2.5);
  EXPECT_EQ(order.placing.fromEaves, 1);
  EXPECT_TRUE(order.placing.isCentred);
  EXPECT_EQ(ParseJob(R"({"between": [3, 7]})", {}).placing.between, (std::array{3, 7}));
}

TEST(ParseJob, RoofOfAJobReplacesTheEdgesOfTheDefaults) {
  const WindowOrder defaults = ParseJob(R"({"eaves": ["0,0", "8,0"], "pitch": 35, "eaves-height": 2.5})", {});
  EXPECT_FALSE(ParseJob(R"({"on": "R1"})", defaults).planRoof.IsGiven());
}

TEST(ParseJob, WordsThatCannotBeMeantAreRefusedByName) {
  EXPECT_EQ(Refusal(R"({"pitch": 90})"), "--pitch 90: a pitch is a number of degrees from 0 to 85");
  EXPECT_EQ(Refusal(R"({"sill": "high"})"), "--sill high: a length is a finite number of metres");
  EXPECT_EQ(Refusal(R"({"between": [3]})"), "--between 3: it takes the numbers of two windows");
  EXPECT_EQ(Refusal(R"({"align": 1.5})"), "--align 1.5: a window is named by its number");
  EXPECT_EQ(Refusal(R"({"snap": 0})"), "--snap 0: a step is more than 0");
}

TEST(ParseJob, RowHasTheNamesOfTheOptions) {
  const WindowOrder order = ParseJob(R"({"row": 5, "gap": 0.1, "column": true, "row-from": "top"})", {});
  EXPECT_EQ(order.row.count, 5);
  EXPECT_EQ(order.row.gap, 0.1);
  EXPECT_EQ(order.row.isColumn, true);
  EXPECT_EQ(order.row.from, "top");
}

TEST(ParseJob, DistanceOfTheJobReplacesThatOfTheDefaults) {
  WindowOrder defaults;
  defaults.row = {.count = 3, .gap = 0.1};
  const WindowOrder order = ParseJob(R"({"spacing": "1.2"})", defaults);
  EXPECT_EQ(order.row.count, 3);
  EXPECT_EQ(order.row.spacing, 1.2);
  EXPECT_FALSE(order.row.gap.has_value());
}

TEST(ParseJob, PlainLengthsCountWhatTheJobSays) {
  WindowOrder defaults;
  defaults.settings = {{"length", "1.4"}};
  const WindowOrder order = ParseJob(
      R"({"set": {"width": 3}, "gap": 2, "from-eaves": "1'", "sill": 10, "lengths": "ft"})", defaults);
  EXPECT_EQ(order.row.gap, 2 * METRES_PER_FOOT);
  EXPECT_DOUBLE_EQ(order.placing.fromEaves.value(), METRES_PER_FOOT);
  EXPECT_DOUBLE_EQ(order.placing.sill.value(), 10 * METRES_PER_FOOT);
  EXPECT_EQ(order.settings[0].lengths, LengthStyle::Metres);  // as they were said
  EXPECT_EQ(order.settings[1].lengths, LengthStyle::FeetAndInches);
  EXPECT_EQ(Refusal(R"({"lengths": "yd"})"), R"(lengths: "yd" is neither "m" nor "ft")");
}

TEST(ParseJob, RefusalNamesTheMemberAndItsValue) {
  EXPECT_EQ(Refusal(R"({"column": 1})"), "column: 1 is neither true nor false");
  EXPECT_EQ(Refusal(R"({"row": 0})"), "--row 0: the number of windows in a row is from 1 to 1000");
  EXPECT_EQ(Refusal(R"({"at": [1,)"), "this is no JSON: an error at column 11");
  EXPECT_EQ(Refusal("[1,2]"), "[1,2] is no JSON object");
  EXPECT_EQ(Refusal(R"({"at": null})"), "at: null is neither a text nor a number");
  EXPECT_EQ(Refusal(R"({"at": [[1, {}]]})"), "at: {} is neither a text nor a number");
  EXPECT_EQ(Refusal(R"({"roof": [1, 2]})"), "roof: [1,2] is no list of three points");
  EXPECT_EQ(Refusal(R"({"window": ""})"), "window: the name is empty");
  EXPECT_EQ(Refusal(R"({"set": 3})"), R"(set: 3 is no object, as {"width": 0.78} is one)");
  EXPECT_EQ(Refusal(R"({"at": [1e999, 0]})"), "a number is too large");
  EXPECT_EQ(
      Refusal(R"({"place": 1})"),
      R"(a job has no member "place"; it can have at, on, roof, window, catalogue, set, row, spacing, )"
      "gap, column, row-from, lengths and the options of insert that say where a window goes, as from-eaves");
}

TEST(ParseJob, LongValueIsShownByItsBeginning) {
  const std::string refusal = Refusal(R"({"set": ")" + std::string(1000000, 'x') + R"("})");
  EXPECT_LT(refusal.size(), 150U);
}

TEST(ParseJob, DeeplyNestedListIsRefused) {
  EXPECT_EQ(Refusal(R"({"at": )" + std::string(100000, '[') + std::string(100000, ']') + "}"),
            "more than 10 levels of lists and objects");
}

}  // namespace
}  // namespace teskarlt
