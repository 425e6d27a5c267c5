// FileOperations.h - the system's file operations behind one table, so that a test can make any of them fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

using FileHandle = std::intptr_t;

// What shows that a file was changed by somebody else.
struct FileState {
  bool exists = false;
  bool isOrdinary = false;        // a file with bytes of its own: no folder, pipe or device
  bool isWritable = false;        // for this user
  std::uint64_t size = 0;         // bytes
  std::int64_t modifiedTime = 0;  // in the system's own unit
  std::uint64_t identity = 0;     // tells the file from another that was put in its place

  bool operator==(const FileState&) const = default;
};

// Paths are UTF-8. Each function returns 0, or the system's error number (SystemReason gives its text).
struct FileOperations {
  int (*openToRead)(const std::string& path, FileHandle& file);
  // A new file; fails when there is one of that name.
  int (*createNew)(const std::string& path, FileHandle& file);
  // Reads up to `capacity` bytes; `count` is 0 at the end of the file.
  int (*read)(FileHandle file, char* buffer, std::size_t capacity, std::size_t& count);
  // Writes up to `size` bytes; `count` says how many.
  int (*write)(FileHandle file, const char* bytes, std::size_t size, std::size_t& count);
  int (*flushToDisk)(FileHandle file);
  int (*close)(FileHandle file);
  // Replaces `to`, when it is there, in one step; the file keeps the access rights of the replaced one.
  int (*replace)(const std::string& from, const std::string& to);
  int (*remove)(const std::string& path);
  // A missing file is no error: `exists` is false then.
  int (*stat)(const std::string& path, FileState& state);
  // Where a chain of symbolic links ends; the path itself when it is no link.
  int (*linkTarget)(const std::string& path, std::string& target);
};

// The operations in use: the system's own, unless a test has set others. `SetFileOperations(nullptr)` brings
// the system's back. The table stays the caller's.
const FileOperations& CurrentFileOperations();
const FileOperations& SystemFileOperations();
void SetFileOperations(const FileOperations* operations);

// The system's words for an error number, UTF-8, without a full stop.
std::string SystemReason(int error);

// The bytes of a whole file in one block.
struct FileBytes {
  std::unique_ptr<char[]> bytes;
  std::size_t size = 0;

  std::string_view View() const { return {bytes.get(), size}; }
};

// Reads a whole file. This and all below throw Error (platform/Error.h), which names the file, what was tried
// and the system's reason.
FileBytes ReadWholeFile(const std::string& path);

// State of a file; throws Error. A missing file is a state, not an error.
FileState StateOfFile(const std::string& path);

// A complete new file in place of an old one. What is written goes through one buffer to a temporary file in
// the same folder; only Commit puts it in the place of `path` (or of the file that a link `path` leads to).
// Without Commit, and after any failure, the temporary file is removed and the old file is what it was; also
// when the program is ended from outside (ProgramEnd.h).
class FileReplacement {
 public:
  // Throws Error, also when the old file must not be written.
  explicit FileReplacement(const std::string& path);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  // Throws Error.
  void Write(std::string_view bytes);
  void Commit();

 private:
  void WriteOut(std::string_view bytes);
  [[noreturn]] void Fail(const char* operation, int error);

  const FileOperations& operations_;
  std::string path_;
  std::string temporary_;
  FileHandle file_;
  bool isOpen_ = false;
  bool isThere_ = false;  // the temporary file
  std::unique_ptr<char[]> buffer_;
  std::size_t used_ = 0;
};

// Whether this program has put a file in its place: what fails from then on leaves a change behind.
// FileReplacement notes it; who writes files in other ways calls NoteWrittenFile.
bool HasWrittenFile();
void NoteWrittenFile();

// Puts `bytes` in the place of the file `path` by FileReplacement; throws Error.
void WriteWholeFile(const std::string& path, std::string_view bytes);

}  // namespace platform
