// ZipArchive.h - several files in one, as spreadsheet files are.
#pragma once

#include <string>
#include <vector>

namespace teskarlt::schedule {

struct ArchivedFile {
  std::string name;
  std::string content;
};

// The bytes of a zip archive of the files, stored as they are and dated 1 January 1980: the same files give
// the same bytes. Names are ASCII; all of it must be smaller than 4 GB.
std::string ZipArchive(const std::vector<ArchivedFile>& files);

}  // namespace teskarlt::schedule
