// InsertJobs.h - inserts the windows of many jobs.
#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "teskarlt/Error.h"
#include "teskarlt/windows/JobsFile.h"
#include "teskarlt/windows/PlacedWindow.h"
#include "teskarlt/windows/WindowInserter.h"

namespace teskarlt {

// What became of a job: its window, or those of its row, or why it was refused.
using JobResult = std::variant<std::vector<PlacedWindow>, Error>;

struct JobTotals {
  std::size_t inserted = 0;  // windows
  std::size_t refused = 0;   // jobs
  std::size_t faces = 0;     // entities that came into the drawing
  std::size_t lines = 0;
  std::set<std::string> layers;  // of these entities, UTF-8
};

// Inserts the windows of the jobs, in their order, and tells of each when it is done. A refused job leaves no
// trace in the drawing. What a job does not say comes from `defaults`.
JobTotals InsertJobs(WindowInserter& inserter, const std::vector<Job>& jobs, const WindowOrder& defaults,
                     const std::function<void(const Job& job, const JobResult& result)>& tell);

}  // namespace teskarlt
