// FolderLock.cpp - a folder is locked by a file in it that
// nobody else can open and that goes with its handle.
#include "platform/FolderLock.h"

#include <windows.h>

#include <bit>

#include "platform/windows/WideText.h"

namespace platform {

LockResult FolderLock::Take(const std::string& folder) {
  if (handle_) return LockResult::Taken;
  const std::wstring path = ToWide(folder + "\\BREVANTA.LCK");
  HANDLE file =
      CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    return GetLastError() == ERROR_SHARING_VIOLATION ? LockResult::Busy : LockResult::Unusable;
  }
  handle_ = reinterpret_cast<std::intptr_t>(file);
  return LockResult::Taken;
}

void FolderLock::Release() {
  if (handle_) CloseHandle(std::bit_cast<HANDLE>(*handle_));
  handle_.reset();
}

}  // namespace platform
