// ResultTargetTest.cpp - where results go, and what is said of that.
#include <gtest/gtest.h>

#include "teskarlt/terminal/ResultTarget.h"

namespace teskarlt {
namespace {

// A target as a command line gives it.
ResultTarget TargetOf(const std::vector<std::string>& arguments) {
  ResultTarget target;
  OptionParser parser("program", "about", "version", "footer");
  Subcommand command = parser.Add("command", "help");
  target.AddFile(command);
  target.AddOutput(command);
  target.AddDryRun(command);
  command.Run([] {});
  std::vector<std::string> all = {"command"};
  all.insert(all.end(), arguments.begin(), arguments.end());
  EXPECT_EQ(parser.Run(all), EXIT_DONE);
  return target;
}

std::string WrittenPath(ResultTarget& target) {
  std::string written;
  target.Write([&](const std::string& path) { written = path; });
  return written;
}

std::string AnswerOf(const ResultTarget& target) {
  Json answer;
  target.AddTo(answer);
  return answer.Text();
}

TEST(ResultTarget, DrawingItselfIsReplacedWithoutAnotherName) {
  ResultTarget target = TargetOf({"house.dxf"});
  EXPECT_FALSE(target.IsNamed());
  EXPECT_EQ(WrittenPath(target), "house.dxf");
  EXPECT_EQ(target.Ending("added", "be added"), "added; written to house.dxf");
}

TEST(ResultTarget, FileThatWasWrittenIsAnswered) {
  ResultTarget target = TargetOf({"house.dxf", "-o", "out.dxf"});
  EXPECT_TRUE(target.IsNamed());
  EXPECT_EQ(WrittenPath(target), "out.dxf");
  EXPECT_EQ(AnswerOf(target), "{\n  \"file\": \"out.dxf\",\n  \"dryRun\": false\n}");
}

TEST(ResultTarget, DryRunWritesNothing) {
  ResultTarget target = TargetOf({"house.dxf", "--dry-run"});
  EXPECT_EQ(WrittenPath(target), "");
  EXPECT_EQ(target.Ending("erased", "go"), "would go; nothing was written (dry run)");
  EXPECT_EQ(AnswerOf(target), "{\n  \"file\": null,\n  \"dryRun\": true\n}");
}

TEST(ResultTarget, NothingWrittenIsNoDryRun) {
  const ResultTarget target = TargetOf({"house.dxf"});
  EXPECT_EQ(target.Ending("added", "be added"), "could be added; nothing was written");
  EXPECT_EQ(AnswerOf(target), "{\n  \"file\": null,\n  \"dryRun\": false\n}");
}

}  // namespace
}  // namespace teskarlt
