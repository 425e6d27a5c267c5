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

// What a job says of a window to insert.
WindowOrder OrderIn(std::string_view job, const WindowOrder& defaults) {
  return ParseJob(job, defaults).window;
}

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
  const std::optional<PlanPoint> point = OrderIn(R"({"at": [500000.1234567891, -3]})", {}).at;
  ASSERT_TRUE(point);
  EXPECT_EQ(point->x, 500000.1234567891);
  EXPECT_EQ(point->y, -3);
  EXPECT_EQ(point->text, "500000.1234567891,-3");
  EXPECT_EQ(OrderIn(R"({"at": "1,2"})", {}).at->y, 2);
}

TEST(ParseJob, SettingsOfTheJobStandBehindThoseOfTheDefaults) {
  WindowOrder defaults;
  defaults.settings = {{"width", "1"}};
  const WindowOrder order =
      OrderIn(R"({"set": {"width": 0.78, "bodyAsFaces": false, "text1": "A"}})", defaults);
  EXPECT_THAT(SettingsOf(order), ElementsAre("width=1", "bodyAsFaces=0", "text1=A", "width=0.78"));
}

TEST(ParseJob, ListsOfPointsBecomeOneText) {
  EXPECT_THAT(SettingsOf(OrderIn(R"({"set": {"roofPlanePoints": [[0,0,0],[1,0,0],[0,1,1]]}})", {})),
              ElementsAre("roofPlanePoints=0,0,0;1,0,0;0,1,1"));
}

TEST(ParseJob, RoofOfTheJobReplacesThatOfTheDefaults) {
  WindowOrder defaults;
  defaults.roofName = "2F";
  const WindowOrder plane = OrderIn(R"({"roof": [[0,0,0],[1,0,0],"0,1,2"]})", defaults);
  ASSERT_EQ(plane.roof.size(), 3U);
  EXPECT_EQ(plane.roof[2].z, 2);
  EXPECT_EQ(plane.roofName, "");
  const WindowOrder face = OrderIn(R"({"roof-face": "30"})", plane);
  EXPECT_EQ(face.roofName, "30");
  EXPECT_TRUE(face.roof.empty());
}

TEST(ParseJob, WordsForAPlaceAreThoseOfTheCommandLine) {
  const WindowOrder order = OrderIn(
      R"({"eaves": [[0, 0], [8, 0]], "pitch": 35, "eaves-height": 2.5, "from-eaves": 1, "centre": true})",
      {});
  ASSERT_EQ(order.planRoof.eaves.size(), 2U);
  EXPECT_EQ(order.planRoof.eaves[1].x, 8);
  EXPECT_EQ(order.planRoof.pitch, 35);
  EXPECT_EQ(order.planRoof.eavesHeight, 2.5);
  EXPECT_EQ(order.placing.fromEaves, 1);
  EXPECT_TRUE(order.placing.isCentred);
  EXPECT_EQ(OrderIn(R"({"between": [3, 7]})", {}).placing.between, (std::array{3, 7}));
}

TEST(ParseJob, RoofOfAJobReplacesTheEdgesOfTheDefaults) {
  const WindowOrder defaults = OrderIn(R"({"eaves": ["0,0", "8,0"], "pitch": 35, "eaves-height": 2.5})", {});
  EXPECT_FALSE(OrderIn(R"({"on": "R1"})", defaults).planRoof.IsGiven());
}

TEST(ParseJob, WordsThatCannotBeMeantAreRefusedByName) {
  EXPECT_EQ(Refusal(R"({"pitch": 90})"),
            "--pitch 90: a pitch is a number of degrees from 0 to 85, or rise to run, as 8:12");
  EXPECT_EQ(Refusal(R"({"sill": "high"})"),
            "--sill high: a length is a finite number of metres, or has its unit behind it, as 30cm or 12in");
  EXPECT_EQ(Refusal(R"({"between": [3]})"), "--between 3: it takes the numbers of two windows");
  EXPECT_EQ(Refusal(R"({"align": 1.5})"), "--align 1.5: a window is named by its number");
  EXPECT_EQ(Refusal(R"({"snap": 0})"), "--snap 0: a step is more than 0");
}

TEST(ParseJob, RowHasTheNamesOfTheOptions) {
  const WindowOrder order = OrderIn(R"({"row": 5, "gap": 0.1, "column": true, "row-from": "top"})", {});
  EXPECT_EQ(order.row.count, 5);
  EXPECT_EQ(order.row.gap, 0.1);
  EXPECT_EQ(order.row.isColumn, true);
  EXPECT_EQ(order.row.from, "top");
}

TEST(ParseJob, DistanceOfTheJobReplacesThatOfTheDefaults) {
  WindowOrder defaults;
  defaults.row = {.count = 3, .gap = 0.1};
  const WindowOrder order = OrderIn(R"({"spacing": "1.2"})", defaults);
  EXPECT_EQ(order.row.count, 3);
  EXPECT_EQ(order.row.spacing, 1.2);
  EXPECT_FALSE(order.row.gap.has_value());
}

TEST(ParseJob, PlainLengthsCountWhatTheJobSays) {
  WindowOrder defaults;
  defaults.settings = {{"length", "1.4"}};
  const WindowOrder order = OrderIn(
      R"({"set": {"width": 3}, "gap": 2, "from-eaves": "1'", "sill": 10, "lengths": "ft"})", defaults);
  EXPECT_EQ(order.row.gap, 2 * METRES_PER_FOOT);
  EXPECT_DOUBLE_EQ(order.placing.fromEaves.value(), METRES_PER_FOOT);
  EXPECT_DOUBLE_EQ(order.placing.sill.value(), 10 * METRES_PER_FOOT);
  EXPECT_EQ(order.settings[0].lengths, LengthStyle::Metres);  // as they were said
  EXPECT_EQ(order.settings[1].lengths, LengthStyle::FeetAndInches);
  EXPECT_EQ(Refusal(R"({"lengths": "yd"})"), R"(lengths: "yd" is neither "m" nor "ft")");
}

TEST(ParseJob, JobThatDoesNotInsertChoosesWindows) {
  const JobOrder job = ParseJob(
      R"({"do": "edit", "windows": [1, "4-9"], "where": "width<0.8", "type": "A", "locked": true, "set": {"width": 1}})",
      {});
  EXPECT_EQ(job.kind, JobKind::Edit);
  ASSERT_EQ(job.selection.numbers.size(), 2U);
  EXPECT_EQ(job.selection.numbers[1].last, 9);
  EXPECT_EQ(job.selection.where.value().Text(), "width<0.8");
  EXPECT_EQ(job.selection.type, "A");
  EXPECT_TRUE(job.isLockedToo);
  EXPECT_THAT(SettingsOf(job.window), ElementsAre("width=1"));
}

TEST(ParseJob, MoveHasAWayOrAPlace) {
  const JobOrder job = ParseJob(R"({"do": "move", "windows": 3, "by": [2, "-6\""], "lengths": "ft"})", {});
  EXPECT_EQ(job.kind, JobKind::Move);
  EXPECT_EQ(job.selection.numbers.front().first, 3);
  EXPECT_DOUBLE_EQ(job.window.by.value().across, 2 * METRES_PER_FOOT);
  EXPECT_DOUBLE_EQ(job.window.by.value().up, -METRES_PER_FOOT / 2);
  EXPECT_EQ(ParseJob(R"({"do": "move", "windows": 3, "to": [1, 2]})", {}).window.at.value().option, "--to");
}

TEST(ParseJob, OfTheDefaultsOtherJobsHaveStrictnessAndLengths) {
  WindowOrder defaults;
  defaults.isStrict = true;
  defaults.lengths = LengthStyle::FeetAndInches;
  defaults.roofName = "R1";
  defaults.settings = {{"width", "1"}};
  const WindowOrder order = ParseJob(R"({"do": "move", "windows": 1, "by": "1,0"})", defaults).window;
  EXPECT_TRUE(order.isStrict);
  EXPECT_EQ(order.by.value().across, METRES_PER_FOOT);
  EXPECT_EQ(order.roofName, "");
  EXPECT_TRUE(order.settings.empty());
}

TEST(ParseJob, WindowsThatCannotBeMeantAreRefusedByTheirMember) {
  EXPECT_EQ(Refusal(R"({"do": "paint"})"), R"(do: "paint" is none of insert, edit, move and erase)");
  EXPECT_EQ(Refusal(R"({"do": "erase"})"), R"(say which windows: by "windows", "where" or "type")");
  EXPECT_EQ(Refusal(R"({"do": "erase", "windows": []})"), "windows: the list is empty");
  EXPECT_EQ(Refusal(R"({"do": "erase", "windows": "9-4"})"),
            R"(windows: "9-4" is no window's number, nor a range as "4-9")");
  EXPECT_EQ(Refusal(R"({"do": "move", "windows": 1})"),
            "say where the windows go: --by or --to, or words for a place, as --from-eaves");
  EXPECT_EQ(
      Refusal(R"({"do": "erase", "windows": 1, "from-eaves": 1})"),
      R"(a job to erase has no member "from-eaves"; it can have do, lengths, windows, where, type, locked)");
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
      R"(a job to insert has no member "place"; it can have do, lengths, at, on, roof-face, roof, window, )"
      "catalogue, mark, set, row, spacing, gap, column, row-from, and the words for a place, as from-eaves");
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
