// FileOperations.cpp - the file operations of FileOperations.h on Windows.
#include "platform/FileOperations.h"

#include <windows.h>

#include <algorithm>
#include <bit>

#include "platform/windows/WideText.h"

namespace platform {
namespace {

constexpr DWORD LARGEST_TRANSFER = DWORD{1} << 30;
constexpr DWORD LONGEST_PATH = 32768;

HANDLE Handle(FileHandle file) {
  return std::bit_cast<HANDLE>(file);
}

int Result(BOOL outcome) {
  return outcome != 0 ? 0 : static_cast<int>(GetLastError());
}

bool IsMissing(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

int Open(const std::string& path, DWORD access, DWORD share, DWORD disposition, FileHandle& file) {
  HANDLE handle =
      CreateFileW(ToWide(path).c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  file = reinterpret_cast<FileHandle>(handle);
  return Result(handle != INVALID_HANDLE_VALUE);
}

int OpenToRead(const std::string& path, FileHandle& file) {
  return Open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING,
              file);
}

int CreateNew(const std::string& path, FileHandle& file) {
  // Deleting it while it is open is for a program that is ended from outside.
  return Open(path, GENERIC_WRITE, FILE_SHARE_DELETE, CREATE_NEW, file);
}

int Read(FileHandle file, char* buffer, std::size_t capacity, std::size_t& count) {
  DWORD transferred = 0;
  const auto size = static_cast<DWORD>(std::min<std::size_t>(capacity, LARGEST_TRANSFER));
  const int error = Result(ReadFile(Handle(file), buffer, size, &transferred, nullptr));
  count = transferred;
  return error == ERROR_BROKEN_PIPE ? 0 : error;  // the writing end of a pipe is closed: the end of the file
}

int Write(FileHandle file, const char* bytes, std::size_t size, std::size_t& count) {
  DWORD transferred = 0;
  const auto part = static_cast<DWORD>(std::min<std::size_t>(size, LARGEST_TRANSFER));
  const int error = Result(WriteFile(Handle(file), bytes, part, &transferred, nullptr));
  count = transferred;
  return error;
}

int FlushToDisk(FileHandle file) {
  return Result(FlushFileBuffers(Handle(file)));
}

int Close(FileHandle file) {
  return Result(CloseHandle(Handle(file)));
}

int Replace(const std::string& from, const std::string& to) {
  const std::wstring source = ToWide(from);
  const std::wstring target = ToWide(to);
  // ReplaceFile keeps the old file's access rights, but needs an old file and a file system that can do it.
  if (ReplaceFileW(target.c_str(), source.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                   nullptr) != 0)
    return 0;
  return Result(
      MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

int Remove(const std::string& path) {
  return Result(DeleteFileW(ToWide(path).c_str()));
}

std::int64_t Joined(DWORD high, DWORD low) {
  return static_cast<std::int64_t>((std::uint64_t{high} << 32) | low);
}

int Stat(const std::string& path, FileState& state) {
  state = {};
  WIN32_FILE_ATTRIBUTE_DATA found{};
  if (GetFileAttributesExW(ToWide(path).c_str(), GetFileExInfoStandard, &found) == 0) {
    const DWORD error = GetLastError();
    return IsMissing(error) ? 0 : static_cast<int>(error);
  }
  state.exists = true;
  state.isOrdinary = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
  state.isWritable = (found.dwFileAttributes & FILE_ATTRIBUTE_READONLY) == 0;
  state.size = static_cast<std::uint64_t>(Joined(found.nFileSizeHigh, found.nFileSizeLow));
  state.identity = static_cast<std::uint64_t>(
      Joined(found.ftCreationTime.dwHighDateTime, found.ftCreationTime.dwLowDateTime));
  state.modifiedTime = Joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime);
  return 0;
}

int LinkTarget(const std::string& path, std::string& target) {
  target = path;
  const std::wstring wide = ToWide(path);
  const DWORD attributes = GetFileAttributesW(wide.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return 0;
  HANDLE file = CreateFileW(wide.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return static_cast<int>(GetLastError());
  std::wstring found(LONGEST_PATH, L'\0');
  const DWORD length = GetFinalPathNameByHandleW(file, found.data(), LONGEST_PATH, FILE_NAME_NORMALIZED);
  const int error = Result(length != 0);
  CloseHandle(file);
  if (error == 0) target = ToNarrow(found.data(), std::min(length, LONGEST_PATH));
  return error;
}

constexpr FileOperations SYSTEM_OPERATIONS{OpenToRead, CreateNew, Read,   Write, FlushToDisk,
                                           Close,      Replace,   Remove, Stat,  LinkTarget};

}  // namespace

const FileOperations& SystemFileOperations() {
  return SYSTEM_OPERATIONS;
}

std::string SystemReason(int error) {
  wchar_t text[512];
  DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                static_cast<DWORD>(error), 0, text, sizeof text / sizeof *text, nullptr);
  while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.'))
    --length;
  return length > 0 ? ToNarrow(text, length) : "system error " + std::to_string(error);
}

}  // namespace platform
