// FileOperations.cpp - whole files by the operations in use.
#include "platform/FileOperations.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <cstring>
#include <random>

#include "platform/Error.h"
#include "platform/ProgramEnd.h"

namespace platform {
namespace {

constexpr std::size_t WRITE_BUFFER_SIZE = std::size_t{1} << 20;
constexpr std::size_t SMALLEST_READ_BUFFER = std::size_t{1} << 16;

std::atomic<const FileOperations*> replacement{nullptr};
std::atomic<bool> hasWrittenFile{false};

[[noreturn]] void FailAt(const std::string& path, const char* operation, int error) {
  throw Error(std::string("cannot be ") + operation + ": " + SystemReason(error), {.file = path});
}

// Closes a file that is read; there is nothing to lose when that fails.
class OpenedFile {
 public:
  explicit OpenedFile(const std::string& path) : operations_(CurrentFileOperations()) {
    if (const int error = operations_.openToRead(path, file_); error != 0) FailAt(path, "opened", error);
  }
  ~OpenedFile() { operations_.close(file_); }
  OpenedFile(const OpenedFile&) = delete;
  OpenedFile& operator=(const OpenedFile&) = delete;

  int Read(char* buffer, std::size_t capacity, std::size_t& count) {
    return operations_.read(file_, buffer, capacity, count);
  }

 private:
  const FileOperations& operations_;
  FileHandle file_ = 0;
};

void Grow(FileBytes& file, std::size_t& capacity) {
  capacity *= 2;
  auto larger = std::make_unique_for_overwrite<char[]>(capacity);
  std::memcpy(larger.get(), file.bytes.get(), file.size);
  file.bytes = std::move(larger);
}

std::string TemporaryName(const std::string& path) {
  char digits[16];
  const auto end = std::to_chars(digits, digits + sizeof digits, std::random_device()(), 16).ptr;
  return path + "." + std::string(digits, end) + ".tmp";
}

}  // namespace

const FileOperations& CurrentFileOperations() {
  const FileOperations* const operations = replacement.load();
  return operations != nullptr ? *operations : SystemFileOperations();
}

void SetFileOperations(const FileOperations* operations) {
  replacement.store(operations);
}

FileState StateOfFile(const std::string& path) {
  FileState state;
  if (const int error = CurrentFileOperations().stat(path, state); error != 0)
    FailAt(path, "looked at", error);
  return state;
}

FileBytes ReadWholeFile(const std::string& path) {
  OpenedFile opened(path);
  // One byte more than the size, so that the last read finds the end of the file without growing.
  std::size_t capacity = std::max(static_cast<std::size_t>(StateOfFile(path).size) + 1, SMALLEST_READ_BUFFER);
  FileBytes file;
  file.bytes = std::make_unique_for_overwrite<char[]>(capacity);
  for (;;) {
    if (file.size == capacity) Grow(file, capacity);
    std::size_t count = 0;
    const int error = opened.Read(file.bytes.get() + file.size, capacity - file.size, count);
    if (error != 0) FailAt(path, "read", error);
    if (count == 0) return file;
    file.size += count;
  }
}

FileReplacement::FileReplacement(const std::string& path)
    : operations_(CurrentFileOperations()), path_(path) {
  if (const int error = operations_.linkTarget(path, path_); error != 0) FailAt(path, "written", error);
  const FileState old = StateOfFile(path_);
  if (old.exists && !old.isOrdinary)
    throw Error("cannot be written: it is not an ordinary file", {.file = path});
  if (old.exists && !old.isWritable) throw Error("cannot be written: it is write-protected", {.file = path});
  buffer_ = std::make_unique_for_overwrite<char[]>(WRITE_BUFFER_SIZE);
  temporary_ = TemporaryName(path_);
  RemoveAtEnd(temporary_);
  if (const int error = operations_.createNew(temporary_, file_); error != 0) {
    RemoveAtEnd("");
    FailAt(path, "written: no file can be made in its folder", error);
  }
  isOpen_ = isThere_ = true;
}

FileReplacement::~FileReplacement() {
  if (isOpen_) operations_.close(file_);
  if (isThere_) operations_.remove(temporary_);
  RemoveAtEnd("");
}

void FileReplacement::Write(std::string_view bytes) {
  if (bytes.size() > WRITE_BUFFER_SIZE - used_) {
    WriteOut({buffer_.get(), used_});
    used_ = 0;
  }
  if (bytes.size() > WRITE_BUFFER_SIZE) {
    WriteOut(bytes);
    return;
  }
  std::memcpy(buffer_.get() + used_, bytes.data(), bytes.size());
  used_ += bytes.size();
}

void FileReplacement::Commit() {
  WriteOut({buffer_.get(), used_});
  used_ = 0;
  if (const int error = operations_.flushToDisk(file_); error != 0) Fail("flushed to disk", error);
  isOpen_ = false;
  if (const int error = operations_.close(file_); error != 0) Fail("closed", error);
  if (const int error = operations_.replace(temporary_, path_); error != 0) Fail("replaced", error);
  NoteWrittenFile();
  isThere_ = false;
}

void FileReplacement::WriteOut(std::string_view bytes) {
  while (!bytes.empty()) {
    std::size_t count = 0;
    const int error =
        operations_.write(file_, bytes.data(), std::min(bytes.size(), WRITE_BUFFER_SIZE), count);
    if (error != 0) Fail("written", error);
    if (count == 0) throw Error("cannot be written: the system took no more bytes", {.file = path_});
    bytes.remove_prefix(count);
  }
}

void FileReplacement::Fail(const char* operation, int error) {
  FailAt(path_, operation, error);
}

bool HasWrittenFile() {
  return hasWrittenFile;
}

void NoteWrittenFile() {
  hasWrittenFile = true;
  OutliveClosedPipes();
}

void WriteWholeFile(const std::string& path, std::string_view bytes) {
  FileReplacement file(path);
  file.Write(bytes);
  file.Commit();
}

}  // namespace platform
