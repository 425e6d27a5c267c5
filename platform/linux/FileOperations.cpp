// FileOperations.cpp - the file operations of FileOperations.h on Linux.
#include "platform/FileOperations.h"

#include <cerrno>
#include <climits>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

constexpr mode_t NEW_FILE_RIGHTS = 0666;  // less the user's mask
constexpr mode_t ALL_RIGHTS = 07777;
constexpr int LONGEST_LINK_CHAIN = 40;
constexpr std::int64_t NANOSECONDS = 1'000'000'000;

int Descriptor(FileHandle file) {
  return static_cast<int>(file);
}

int Result(int outcome) {
  return outcome < 0 ? errno : 0;
}

// Repeats a call that a signal broke off.
template <typename Call>
auto Repeat(Call call) {
  auto outcome = call();
  while (outcome < 0 && errno == EINTR)
    outcome = call();
  return outcome;
}

int Open(const std::string& path, int flags, FileHandle& file) {
  file = Repeat([&] { return open(path.c_str(), flags | O_CLOEXEC, NEW_FILE_RIGHTS); });
  return Result(Descriptor(file));
}

int OpenToRead(const std::string& path, FileHandle& file) {
  return Open(path, O_RDONLY, file);
}

int CreateNew(const std::string& path, FileHandle& file) {
  return Open(path, O_WRONLY | O_CREAT | O_EXCL, file);
}

int Read(FileHandle file, char* buffer, std::size_t capacity, std::size_t& count) {
  const ssize_t outcome = Repeat([&] { return read(Descriptor(file), buffer, capacity); });
  count = outcome < 0 ? 0 : static_cast<std::size_t>(outcome);
  return outcome < 0 ? errno : 0;
}

int Write(FileHandle file, const char* bytes, std::size_t size, std::size_t& count) {
  const ssize_t outcome = Repeat([&] { return write(Descriptor(file), bytes, size); });
  count = outcome < 0 ? 0 : static_cast<std::size_t>(outcome);
  return outcome < 0 ? errno : 0;
}

int FlushToDisk(FileHandle file) {
  return Result(Repeat([&] { return fsync(Descriptor(file)); }));
}

int Close(FileHandle file) {
  return Result(close(Descriptor(file)));
}

// Makes the rename itself lasting. Some file systems cannot; the new file is complete in any case.
void FlushFolderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

int Replace(const std::string& from, const std::string& to) {
  struct stat old {};
  if (stat(to.c_str(), &old) == 0) {
    // Another owner can only be given by the superuser;
    // rights matter more and come last, as chown clears some.
    if (chown(from.c_str(), old.st_uid, old.st_gid) != 0 && errno != EPERM) return errno;
    if (chmod(from.c_str(), old.st_mode & ALL_RIGHTS) != 0) return errno;
  }
  if (rename(from.c_str(), to.c_str()) != 0) return errno;
  FlushFolderOf(to);
  return 0;
}

int Remove(const std::string& path) {
  return Result(unlink(path.c_str()));
}

int Stat(const std::string& path, FileState& state) {
  state = {};
  struct stat found {};
  if (stat(path.c_str(), &found) != 0) return errno == ENOENT ? 0 : errno;
  state.exists = true;
  state.isOrdinary = S_ISREG(found.st_mode);
  state.isWritable = access(path.c_str(), W_OK) == 0;
  state.size = static_cast<std::uint64_t>(found.st_size);
  state.identity = found.st_ino;
  state.modifiedTime = found.st_mtim.tv_sec * NANOSECONDS + found.st_mtim.tv_nsec;
  return 0;
}

int LinkTarget(const std::string& path, std::string& target) {
  std::string at = path;
  for (int step = 0; step < LONGEST_LINK_CHAIN; ++step) {
    char text[PATH_MAX];
    const ssize_t length = readlink(at.c_str(), text, sizeof text);
    if (length < 0) {
      target = at;
      return 0;  // no link, or not there: the next operation on it says why
    }
    const std::string next(text, static_cast<std::size_t>(length));
    const auto slash = at.rfind('/');
    at.resize(next.starts_with('/') || slash == std::string::npos ? 0 : slash + 1);
    at.append(next);
  }
  return ELOOP;
}

constexpr FileOperations SYSTEM_OPERATIONS{OpenToRead, CreateNew, Read,   Write, FlushToDisk,
                                           Close,      Replace,   Remove, Stat,  LinkTarget};

}  // namespace

const FileOperations& SystemFileOperations() {
  return SYSTEM_OPERATIONS;
}

std::string SystemReason(int error) {
  return std::generic_category().message(error);
}

}  // namespace platform
