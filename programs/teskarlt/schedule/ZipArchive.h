// ZipArchive.h - several files in one, as spreadsheet files are.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace teskarlt::schedule {

// A zip archive, whose files are stored as they are and dated 1 January 1980: the same files give the same
// bytes. Names are ASCII; all of it must be smaller than 4 GB.
class ZipArchive {
 public:
  void Add(std::string_view name, std::string_view content);

  // The archive of the files that were added.
  std::string Bytes() const;

 private:
  std::string files_;      // each behind its header
  std::string directory_;  // a header each, which stands behind all files
  std::size_t count_ = 0;
};

}  // namespace teskarlt::schedule
