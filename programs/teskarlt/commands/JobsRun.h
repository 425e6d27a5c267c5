// JobsRun.h - "apply" and "insert --jobs": many jobs with one load and one save.
#pragma once

#include <string>

#include "teskarlt/commands/WindowOptions.h"

namespace teskarlt {

struct JobsOptions {
  std::string file;  // a JSON object a line; "-": standard input
  bool keepGoing = false;
};

// Does the jobs; what one that inserts does not say comes from `defaults`. Each refused job is told
// with its line. The drawing is saved when no job was refused or --keep-going was given. Throws Error when
// any was refused, with their number.
void RunJobs(WindowOptions& defaults, const JobsOptions& options);

}  // namespace teskarlt
