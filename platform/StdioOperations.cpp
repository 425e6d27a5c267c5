// StdioOperations.cpp - the C library's stream operations.
#include "platform/StdioOperations.h"

#include <sys/stat.h>

namespace {

bool IsFolder(const char* path) {
  struct stat status {};
  return stat(path, &status) == 0 && (status.st_mode & S_IFMT) == S_IFDIR;
}

std::FILE* Open(const char* path, const char* mode) {
  if (IsFolder(path)) return nullptr;  // some systems would open it and fail at the first read
  std::FILE* stream = std::fopen(path, mode);
  // The catalogue's own blocks are the buffer; a second one would only cut them into smaller pieces.
  if (stream != nullptr) std::setvbuf(stream, nullptr, _IONBF, 0);
  return stream;
}

std::ptrdiff_t Read(void* buffer, std::size_t size, std::FILE* stream) {
  const std::size_t count = std::fread(buffer, 1, size, stream);
  return std::ferror(stream) != 0 ? READ_FAILED : static_cast<std::ptrdiff_t>(count);
}

bool Write(const void* bytes, std::size_t size, std::FILE* stream) {
  return std::fwrite(bytes, 1, size, stream) == size;
}

bool Close(std::FILE* stream) {
  const bool clean = std::ferror(stream) == 0;
  return std::fclose(stream) == 0 && clean;
}

bool Rename(const char* oldPath, const char* newPath) {
  return std::rename(oldPath, newPath) == 0;
}

bool Remove(const char* path) {
  return std::remove(path) == 0;
}

}  // namespace

const StdioOperations SYSTEM_STDIO{Open, Read, Write, Close, Rename, Remove};

namespace {

const StdioOperations* current = &SYSTEM_STDIO;

}  // namespace

const StdioOperations& Stdio() {
  return *current;
}

void ReplaceStdio(const StdioOperations* operations) {
  current = operations == nullptr ? &SYSTEM_STDIO : operations;
}
