// FolderLock.cpp - a folder is locked by an advisory lock on the folder itself.
#include "platform/FolderLock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace platform {

LockResult FolderLock::Take(const std::string& folder) {
  if (handle_) return LockResult::Taken;
  const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file < 0) return LockResult::Unusable;
  if (access(folder.c_str(), W_OK) != 0 || flock(file, LOCK_EX | LOCK_NB) != 0) {
    const bool busy = errno == EWOULDBLOCK;
    close(file);
    return busy ? LockResult::Busy : LockResult::Unusable;
  }
  handle_ = file;
  return LockResult::Taken;
}

void FolderLock::Release() {
  if (handle_) close(static_cast<int>(*handle_));
  handle_.reset();
}

}  // namespace platform
