// InsertJobsTest.cpp - many jobs, some of which are refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/windows/InsertJobs.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class InsertJobsTest : public testing::Test {
 protected:
  // Inserts the windows of the lines and gathers why jobs were refused.
  JobTotals Run(std::string_view lines, const WindowOrder& defaults = {}) {
    return InsertJobs(inserter, JobsIn(lines), defaults, [&](const Job& job, const JobResult& result) {
      told.push_back(job.line);
      if (const auto* error = std::get_if<Error>(&result)) refusals.emplace_back(error->what());
    });
  }

  WindowModule module;
  dxf::Document drawing = House();
  WindowInserter inserter{module, drawing, Millimetres()};
  std::vector<std::size_t> told;
  std::vector<std::string> refusals;
};

TEST_F(InsertJobsTest, EachJobBecomesAWindow) {
  const JobTotals totals = Run("{\"at\": [2000, 2000]}\n{\"at\": [6000, 2000]}\n");
  EXPECT_EQ(totals.inserted, 2U);
  EXPECT_EQ(totals.refused, 0U);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(1, 2));
}

TEST_F(InsertJobsTest, RefusedJobStopsNoOther) {
  const JobTotals totals = Run("{\"at\": [9000, 2000]}\n\n{\"at\": [6000, 2000]}\n");
  EXPECT_EQ(totals.inserted, 1U);
  EXPECT_EQ(totals.refused, 1U);
  EXPECT_THAT(told, ElementsAre(1, 3));
  EXPECT_THAT(refusals, ElementsAre(HasSubstr("--at 9000,2000: no roof face lies over that point")));
}

TEST_F(InsertJobsTest, MissingCatalogueIsARefusalLikeAnyOther) {
  const JobTotals totals = Run(R"({"at": [6000, 2000], "window": "A 1", "catalogue": "missing.LIB"})");
  EXPECT_EQ(totals.refused, 1U);
  EXPECT_THAT(refusals, ElementsAre(HasSubstr("missing.LIB: cannot be opened: ")));
}

TEST_F(InsertJobsTest, DefaultsHoldWhereAJobSaysNothing) {
  WindowOrder defaults;
  defaults.settings = {{"width", "-1"}};
  Run("{\"at\": [2000, 2000]}\n{\"at\": [6000, 2000], \"set\": {\"width\": 0.78}}\n", defaults);
  EXPECT_EQ(refusals.size(), 1U);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(1));
}

}  // namespace
}  // namespace teskarlt
