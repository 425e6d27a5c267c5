// InsertJobs.h - many windows with one load and one save: "insert --jobs".
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "teskarlt/commands/WindowOptions.h"

namespace teskarlt {

struct JobsOptions {
  std::string file;  // a JSON object a line; "-": standard input
  bool keepGoing = false;
};

// Inserts the windows of the jobs; what a job does not say comes from `defaults`. Each refused job is
// reported with its line. The drawing is saved when no job was refused or --keep-going was given. Throws
// Error when any was refused, with their number.
void RunInsertJobs(const WindowOptions& defaults, const JobsOptions& jobs);

// The options of a job, a JSON object. Throws Error, naming the member, when it is none.
WindowOptions ParseJob(std::string_view text, const WindowOptions& defaults);

// Gives each line that is not blank, with its number from 1, without the line end. A byte order mark at the
// beginning is passed over.
void ForEachLine(std::string_view text,
                 const std::function<void(std::size_t number, std::string_view line)>& take);

}  // namespace teskarlt
