// JobsFile.h - a file of jobs: a JSON object a line, each a window to insert.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// A line that is not blank, without its end.
struct Job {
  std::size_t line;  // its number, from 1
  std::string_view text;
};

// The jobs of a file's text, which must outlive them. A byte order mark at the beginning is passed over.
std::vector<Job> JobsIn(std::string_view text);

// The order of a job; what it does not say comes from `defaults`. Throws Error, naming the member, when the
// text is no job.
WindowOrder ParseJob(std::string_view text, const WindowOrder& defaults);

}  // namespace teskarlt
