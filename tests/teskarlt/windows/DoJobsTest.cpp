// DoJobsTest.cpp - many jobs, some of which are refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/windows/DoJobs.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DoJobsTest : public testing::Test {
 protected:
  // Does the jobs of the lines and gathers why jobs were refused.
  JobTotals Run(std::string_view lines, const WindowOrder& defaults = {}) {
    return DoJobs(site, JobsIn(lines), defaults, [&](const Job& job, const JobResult& result) {
      told.push_back(job.line);
      if (const auto* error = std::get_if<Error>(&result)) refusals.emplace_back(error->what());
    });
  }

  WindowModule module;
  dxf::Document drawing = House();
  JobSite site{module, drawing, Millimetres()};
  std::vector<std::size_t> told;
  std::vector<std::string> refusals;
};

TEST_F(DoJobsTest, EachJobBecomesAWindow) {
  const JobTotals totals = Run("{\"at\": [2000, 2000]}\n{\"at\": [6000, 2000]}\n");
  EXPECT_EQ(totals.inserted, 2U);
  EXPECT_EQ(totals.refused, 0U);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(1, 2));
}

TEST_F(DoJobsTest, RefusedJobStopsNoOther) {
  const JobTotals totals = Run("{\"at\": [9000, 2000]}\n\n{\"at\": [6000, 2000]}\n");
  EXPECT_EQ(totals.inserted, 1U);
  EXPECT_EQ(totals.refused, 1U);
  EXPECT_THAT(told, ElementsAre(1, 3));
  EXPECT_THAT(refusals, ElementsAre(HasSubstr("--at 9000,2000: no roof face lies over that point")));
}

TEST_F(DoJobsTest, MissingCatalogueIsARefusalLikeAnyOther) {
  const JobTotals totals = Run(R"({"at": [6000, 2000], "window": "A 1", "catalogue": "missing.LIB"})");
  EXPECT_EQ(totals.refused, 1U);
  EXPECT_THAT(refusals, ElementsAre(HasSubstr("missing.LIB: cannot be opened: ")));
}

TEST_F(DoJobsTest, DefaultsHoldWhereAJobSaysNothing) {
  WindowOrder defaults;
  defaults.settings = {{"width", "-1"}};
  Run("{\"at\": [2000, 2000]}\n{\"at\": [6000, 2000], \"set\": {\"width\": 0.78}}\n", defaults);
  EXPECT_EQ(refusals.size(), 1U);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(1));
}

TEST_F(DoJobsTest, JobSeesWhatThoseBeforeItDid) {
  const JobTotals totals = Run(R"({"at": [2000, 2000]}
{"at": [6000, 2000]}
{"do": "edit", "windows": 2, "set": {"width": 0.78}}
{"do": "move", "where": "width<0.8", "by": [-1, 0]}
{"do": "erase", "windows": 1}
{"at": [2000, 2000]}
)");
  EXPECT_THAT(refusals, ElementsAre());
  EXPECT_EQ(totals.inserted, 3U);
  EXPECT_EQ(totals.changed, 2U);
  EXPECT_EQ(totals.erased, 1U);
  const dxf::Document result = Reloaded(drawing);
  EXPECT_THAT(NumbersIn(result), ElementsAre(2, 3));
  const DrawnWindow window = FindWindows(result, Millimetres().working).front();
  EXPECT_EQ(window.params.width, 0.78);
  EXPECT_NEAR(window.params.storedPoint.x, 5000, 1e-9);
}

TEST_F(DoJobsTest, NumberOfAnErasedWindowIsNotGivenAgain) {
  Run(R"({"at": [2000, 2000]}
{"at": [6000, 2000]}
{"do": "erase", "windows": 2}
{"at": [6000, 2000]}
{"do": "erase", "windows": 3}
)");
  dxf::Document result = Reloaded(drawing);
  EXPECT_THAT(NumbersIn(result), ElementsAre(1));
  EXPECT_EQ(WindowInserter(module, result, Millimetres()).Insert(OrderAt(6000, 2000)).record.markerValue, 4);
}

// Strict: window 2 would overlap window 1 where that stands at first, and where it stood before it moved.
TEST_F(DoJobsTest, PlacesAreThoseOfTheMoment) {
  WindowOrder strict;
  strict.isStrict = true;
  Run(R"({"at": [2000, 2000]}
{"at": [2500, 2000]}
{"do": "move", "windows": 1, "by": [2, 0]}
{"at": [2500, 2000]}
{"do": "move", "windows": 1, "by": [-2, 0]}
{"do": "erase", "windows": 1}
{"do": "move", "windows": 2, "by": [1.5, 0]}
)",
      strict);
  EXPECT_THAT(refusals, ElementsAre(HasSubstr("overlaps window 1"), HasSubstr("overlaps window 2")));
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(2));
}

TEST_F(DoJobsTest, RefusedChangeLeavesTheWindowWhereItStood) {
  Run(R"({"at": [2000, 2000]}
{"do": "move", "windows": 1, "by": [90, 0]}
{"do": "erase", "windows": 7}
)");
  EXPECT_THAT(refusals, ElementsAre(HasSubstr("would leave the roof face"), HasSubstr("has no window 7")));
  EXPECT_NEAR(FindWindows(Reloaded(drawing), Millimetres().working).front().params.storedPoint.x, 2000, 1e-9);
}

TEST_F(DoJobsTest, JobsOnDifferentWindowsReadTheDrawingOnce) {
  Run("{\"at\": [2000, 2000]}\n{\"at\": [6000, 2000]}\n");
  std::size_t readings = 0;
  drawing = Reloaded(drawing);
  JobSite counted(module, drawing, Millimetres(), [&](const dxf::Document&) { ++readings; });
  const std::string_view jobs = R"({"do": "move", "windows": 1, "by": [0.1, 0]}
{"do": "move", "windows": 2, "by": [0.1, 0]}
{"do": "erase", "windows": 1}
)";
  const JobTotals totals = DoJobs(counted, JobsIn(jobs), {}, [](const Job&, const JobResult&) {});
  EXPECT_EQ(totals.done, 3U);
  EXPECT_EQ(readings, 1U);  // for window 1, which moved
}

}  // namespace
}  // namespace teskarlt
