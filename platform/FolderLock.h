// FolderLock.h - keeps other processes out of a folder while one works in it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

enum class LockResult { Taken, Busy, Unusable };

// Held from a successful Take to the end of its life, also when the process is ended from outside.
class FolderLock {
 public:
  FolderLock() = default;
  ~FolderLock() { Release(); }
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // Tries once. `folder` is UTF-8. Busy: another process
  // holds it; Unusable: there is no such folder to work in.
  LockResult Take(const std::string& folder);
  void Release();

 private:
  std::optional<std::intptr_t> handle_;
};

}  // namespace platform
