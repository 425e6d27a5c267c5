// InsertJobs.cpp - inserts the windows of many jobs.
#include "teskarlt/windows/InsertJobs.h"

namespace teskarlt {

namespace {

JobResult InsertJob(WindowInserter& inserter, const Job& job, const WindowOrder& defaults) {
  try {
    return inserter.InsertAll(ParseJob(job.text, defaults));
  } catch (const Error& error) {
    return error;
  }
}

void Count(const JobResult& result, JobTotals& totals) {
  const auto* windows = std::get_if<std::vector<PlacedWindow>>(&result);
  if (windows == nullptr) {
    ++totals.refused;
    return;
  }
  totals.inserted += windows->size();
  for (const PlacedWindow& window : *windows) {
    totals.faces += window.faces;
    totals.lines += window.lines;
    totals.layers.insert(window.layers.begin(), window.layers.end());
  }
}

}  // namespace

JobTotals InsertJobs(WindowInserter& inserter, const std::vector<Job>& jobs, const WindowOrder& defaults,
                     const std::function<void(const Job& job, const JobResult& result)>& tell) {
  JobTotals totals;
  for (const Job& job : jobs) {
    const JobResult result = InsertJob(inserter, job, defaults);
    Count(result, totals);
    tell(job, result);
  }
  return totals;
}

}  // namespace teskarlt
