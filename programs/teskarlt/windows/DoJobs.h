// DoJobs.h - does the jobs of a file, one after the other.
#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "teskarlt/Error.h"
#include "teskarlt/windows/EraseWindows.h"
#include "teskarlt/windows/JobSite.h"
#include "teskarlt/windows/JobsFile.h"
#include "teskarlt/windows/PlacedWindow.h"
#include "teskarlt/windows/WindowEditor.h"

namespace teskarlt {

// The windows of a job that inserts: one, or those of a row.
struct InsertedWindows {
  std::vector<PlacedWindow> windows;
};

// Those of a job that edits or moves, with what they were before in the same order.
struct ChangedWindows {
  JobKind kind;
  std::vector<EditableWindow> before;
  std::vector<EditedWindow> windows;
};

// What became of a job; an Error says why it was refused.
using JobResult = std::variant<InsertedWindows, ChangedWindows, std::vector<ErasedWindow>, Error>;

struct JobTotals {
  std::size_t inserted = 0;  // windows
  std::size_t changed = 0;   // windows that do not stand as they stood; each time counts
  std::size_t erased = 0;    // windows
  std::size_t done = 0;      // jobs
  std::size_t refused = 0;   // jobs
  std::size_t faces = 0;     // entities of inserted windows
  std::size_t lines = 0;
  std::set<std::string> layers;  // of all new entities, UTF-8
};

// Does the jobs in their order, each on what those before it left, and tells of each when it is done, while
// the windows still are what it left. A refused job leaves no trace in the drawing. What a job that inserts
// does not say comes from `defaults`; to other jobs only their lengths and strictness apply.
JobTotals DoJobs(JobSite& site, const std::vector<Job>& jobs, const WindowOrder& defaults,
                 const std::function<void(const Job& job, const JobResult& result)>& tell);

}  // namespace teskarlt
