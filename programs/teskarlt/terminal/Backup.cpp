// Backup.cpp - keeps files as they were, and puts them back.
#include "teskarlt/terminal/Backup.h"

#include <cstdint>
#include <string_view>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"

namespace teskarlt {

namespace {

constexpr std::string_view HEADING = "teskarlt undo 1\n";

// The hash of Fowler, Noll and Vo with 64 bits (FNV-1a): tells files apart that were changed, not files that
// somebody forged.
std::uint64_t Digest(std::string_view bytes) {
  constexpr std::uint64_t offset = 0xCBF29CE484222325U;
  constexpr std::uint64_t prime = 0x100000001B3U;
  std::uint64_t digest = offset;
  for (const char byte : bytes)
    digest = (digest ^ static_cast<unsigned char>(byte)) * prime;
  return digest;
}

// A line of the file that UndoPath names: "drawing 1234 0123456789abcdef".
std::string LineOf(std::string_view name, std::string_view bytes) {
  return fmt::format("{} {} {:016x}\n", name, bytes.size(), Digest(bytes));
}
std::string DrawingLine(std::string_view bytes) {
  return LineOf("drawing", bytes);
}
std::string BackupLine(std::string_view bytes) {
  return LineOf("backup", bytes);
}

void RemoveFile(const std::string& path) {
  if (const int error = platform::CurrentFileOperations().remove(path); error != 0)
    throw Error("cannot be removed: " + platform::SystemReason(error), {.file = path});
}

bool IsThere(const std::string& path) {
  return platform::StateOfFile(path).exists;
}

// The backup of a file that may go back to it.
platform::FileBytes CheckedBackup(const std::string& path) {
  const std::string backup = BackupPath(path);
  if (!IsThere(backup) || !IsThere(UndoPath(path))) {
    throw Error("there is nothing to undo: no backup is kept of it; commands keep one with --backup",
                {.file = path});
  }
  const platform::FileBytes noted = platform::ReadWholeFile(UndoPath(path));
  if (noted.View().find(DrawingLine(platform::ReadWholeFile(path).View())) == std::string_view::npos) {
    throw Error(
        fmt::format("it was changed since {} was kept, and undo would lose that; copy the backup over "
                    "it if that is meant",
                    backup),
        {.file = path});
  }
  platform::FileBytes kept = platform::ReadWholeFile(backup);
  if (noted.View().find(BackupLine(kept.View())) == std::string_view::npos)
    throw Error(fmt::format("it is not what was kept of {} any more", path), {.file = backup});
  return kept;
}

}  // namespace

std::string BackupPath(const std::string& path) {
  return path + ".bak";
}

std::string UndoPath(const std::string& path) {
  return path + ".undo";
}

bool KeepBackup(const std::string& path) {
  const platform::FileState state = platform::StateOfFile(path);
  if (!state.exists || !state.isOrdinary || !state.isWritable) return false;
  platform::WriteWholeFile(BackupPath(path), platform::ReadWholeFile(path).View());
  return true;
}

void SealBackup(const std::string& path) {
  const platform::FileBytes written = platform::ReadWholeFile(path);
  const platform::FileBytes kept = platform::ReadWholeFile(BackupPath(path));
  platform::WriteWholeFile(UndoPath(path),
                           std::string(HEADING) + DrawingLine(written.View()) + BackupLine(kept.View()));
}

void CheckUndo(const std::string& path) {
  CheckedBackup(path);
}

void RestoreBackup(const std::string& path) {
  platform::WriteWholeFile(path, CheckedBackup(path).View());
  RemoveFile(UndoPath(path));
  RemoveFile(BackupPath(path));
}

}  // namespace teskarlt
