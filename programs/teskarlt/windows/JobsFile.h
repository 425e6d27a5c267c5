// JobsFile.h - a file of jobs: a JSON object a line, each windows to insert, edit, move or erase.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "teskarlt/windows/WindowChoice.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// A line that is not blank, without its end.
struct Job {
  std::size_t line;  // its number, from 1
  std::string_view text;
};

// The jobs of a file's text, which must outlive them. A byte order mark at the beginning is passed over.
std::vector<Job> JobsIn(std::string_view text);

enum class JobKind { Insert, Edit, Move, Erase };

// The word of the member "do": "insert".
const char* WordOf(JobKind kind);

// What a job says, by members with the names of the command line's options.
struct JobOrder {
  JobKind kind = JobKind::Insert;
  WindowSelection selection;  // the windows of a job that does not insert
  bool isLockedToo = false;   // such windows on locked and frozen layers, too
  WindowOrder window;         // of a job that does not erase
};

// The order of a job. What one that inserts does not say comes from `defaults`, of which other jobs have no
// more than lengths and strictness. Throws Error, naming the member, when the text is no job.
JobOrder ParseJob(std::string_view text, const WindowOrder& defaults);

}  // namespace teskarlt
