// StdioOperations.h - the file operations of the catalogue behind one seam, so that a test can make any of
// them fail or stop the process at it.
#pragma once

#include <cstddef>
#include <cstdio>

// The C library's stream operations on files named in the system's code page, with plain results.
struct StdioOperations {
  // As std::fopen, but without a buffer: read and write in blocks. Null on failure. A folder is never opened,
  // on no system.
  std::FILE* (*open)(const char* path, const char* mode);

  // Reads up to `size` bytes and returns how many; fewer
  // only at the end of the file, READ_FAILED on an error.
  std::ptrdiff_t (*read)(void* buffer, std::size_t size, std::FILE* stream);

  // True when all bytes are written.
  bool (*write)(const void* bytes, std::size_t size, std::FILE* stream);

  // Releases the stream in any case; true when everything written has reached the system.
  bool (*close)(std::FILE* stream);

  // As std::rename: whether an existing `newPath` is replaced depends on the system.
  bool (*rename)(const char* oldPath, const char* newPath);

  bool (*remove)(const char* path);
};

constexpr std::ptrdiff_t READ_FAILED = -1;

// The real ones.
extern const StdioOperations SYSTEM_STDIO;

// Those in use: SYSTEM_STDIO unless a test has put its own in place.
const StdioOperations& Stdio();

// Puts `operations` in place until the next call; null puts SYSTEM_STDIO back. They must outlive their use.
void ReplaceStdio(const StdioOperations* operations);
