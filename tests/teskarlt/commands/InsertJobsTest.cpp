// InsertJobsTest.cpp - the lines of a jobs file.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/commands/InsertJobs.h"

namespace teskarlt {
namespace {

using Texts = std::vector<std::string>;

std::vector<std::pair<std::size_t, std::string>> Lines(std::string_view text) {
  std::vector<std::pair<std::size_t, std::string>> lines;
  ForEachLine(text, [&](std::size_t number, std::string_view line) { lines.emplace_back(number, line); });
  return lines;
}

std::string Refusal(std::string_view job) {
  try {
    ParseJob(job, {});
  } catch (const Error& error) {
    return error.what();
  }
  return "";
}

TEST(ForEachLine, BlankLinesAreCountedAndNotGiven) {
  const auto lines = Lines("a\n\n \t\nb");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], std::pair(std::size_t{1}, std::string("a")));
  EXPECT_EQ(lines[1], std::pair(std::size_t{4}, std::string("b")));
}

TEST(ForEachLine, WindowsLineEndsAndByteOrderMarkAreTakenOff) {
  const auto lines = Lines("\xEF\xBB\xBF{}\r\n\r\n{}\r\n");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].second, "{}");
  EXPECT_EQ(lines[1], std::pair(std::size_t{3}, std::string("{}")));
}

TEST(ParseJob, PointKeepsEveryDigit) {
  EXPECT_EQ(ParseJob(R"({"at": [500000.1234567891, -3]})", {}).at, "500000.1234567891,-3");
  EXPECT_EQ(ParseJob(R"({"at": "1,2"})", {}).at, "1,2");
}

TEST(ParseJob, SettingsOfTheJobStandBehindThoseOfTheCommandLine) {
  WindowOptions defaults;
  defaults.settings = {"width=1"};
  const WindowOptions job =
      ParseJob(R"({"set": {"width": 0.78, "bodyAsFaces": false, "text1": "A"}})", defaults);
  EXPECT_EQ(job.settings, (Texts{"width=1", "bodyAsFaces=0", "text1=A", "width=0.78"}));
}

TEST(ParseJob, ListsOfPointsBecomeOneText) {
  EXPECT_EQ(ParseJob(R"({"set": {"roofPlanePoints": [[0,0,0],[1,0,0],[0,1,1]]}})", {}).settings,
            Texts{"roofPlanePoints=0,0,0;1,0,0;0,1,1"});
}

TEST(ParseJob, RoofOfTheJobReplacesThatOfTheCommandLine) {
  WindowOptions defaults;
  defaults.roofFace = "2F";
  const WindowOptions plane = ParseJob(R"({"roof": [[0,0,0],[1,0,0],"0,1,1"]})", defaults);
  EXPECT_EQ(plane.roof, (Texts{"0,0,0", "1,0,0", "0,1,1"}));
  EXPECT_EQ(plane.roofFace, "");
  const WindowOptions face = ParseJob(R"({"roof-face": "30"})", plane);
  EXPECT_EQ(face.roofFace, "30");
  EXPECT_TRUE(face.roof.empty());
}

TEST(ParseJob, RefusalNamesTheMemberAndItsValue) {
  EXPECT_EQ(Refusal(R"({"at": [1,)"), "this is no JSON: an error at column 11");
  EXPECT_EQ(Refusal("[1,2]"), "[1,2] is no JSON object");
  EXPECT_EQ(Refusal(R"({"at": null})"), "at: null is neither a text nor a number");
  EXPECT_EQ(Refusal(R"({"at": [[1, {}]]})"), "at: {} is neither a text nor a number");
  EXPECT_EQ(Refusal(R"({"roof": [1, 2]})"), "roof: [1,2] is no list of three points");
  EXPECT_EQ(Refusal(R"({"window": ""})"), "window: the name is empty");
  EXPECT_EQ(Refusal(R"({"set": 3})"), R"(set: 3 is no object, as {"width": 0.78} is one)");
  EXPECT_EQ(Refusal(R"({"at": [1e999, 0]})"), "a number is too large");
  EXPECT_EQ(Refusal(R"({"place": 1})"),
            R"(a job has no member "place"; it can have at, roof-face, roof, window, catalogue and set)");
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
