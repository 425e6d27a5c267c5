// MergeLibraryFiles.cpp - finds both catalogues, collects their items and rewrites the target.
#include "arx/merge/MergeLibraryFiles.h"

#include <cstring>
#include <new>
#include <string_view>

#include "arx/merge/CatalogueFile.h"
#include "arx/merge/FolderAccess.h"
#include "arx/merge/LibraryItems.h"
#include "inc/LibraryMerge.h"
#include "platform/CString.h"
#include "platform/ModuleState.h"
#include "platform/StdioOperations.h"

namespace brevanta {

namespace {

constexpr std::size_t BACKUP_PATH_SIZE = 512;
constexpr std::size_t BACKUP_ENDING_LENGTH = 3;

bool CanBeOpened(const CString& path) {
  std::FILE* file = Stdio().open(path.GetString(), "rb");
  if (file == nullptr) return false;
  Stdio().close(file);
  return true;
}

// True when the two texts differ in the case of letters at most, as file names on some systems may.
bool SameButCase(std::string_view a, std::string_view b) {
  constexpr unsigned CASE_BIT = 0x20;
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const unsigned difference = static_cast<unsigned char>(a[i]) ^ static_cast<unsigned char>(b[i]);
    if ((difference & ~CASE_BIT) != 0) return false;
  }
  return true;
}

// Puts the backup's path into a buffer of BACKUP_PATH_SIZE. False when the target's path is too short or too
// long for one, or is that of a backup itself: the merge would then delete what it has written.
bool MakeBackupPath(std::string_view target, char* backup) {
  if (target.size() < BACKUP_ENDING_LENGTH || target.size() >= BACKUP_PATH_SIZE) return false;
  const std::size_t kept = target.size() - BACKUP_ENDING_LENGTH;
  if (SameButCase(target.substr(kept), BACKUP_ENDING)) return false;
  std::memcpy(backup, target.data(), kept);
  std::memcpy(backup + kept, BACKUP_ENDING, BACKUP_ENDING_LENGTH + 1);
  return true;
}

// Writes the backup's lines but its items, each section's items of the set under its header, and the rest of
// the set. False when the backup could not be read to its end.
bool WriteMerged(CatalogueReader& backup, LibraryItems& items, CatalogueWriter& target) {
  bool inSection = false;
  while (backup.NextLine()) {
    const std::string_view line = backup.Line();
    if (IsSectionHeader(line)) {
      inSection = true;
      WriteLibraryLine(line, target);
      items.WriteSection(line, target);
    } else if (line.empty() || !inSection) {
      WriteLibraryLine(line, target);
    }
  }
  items.WriteRest(target);
  return !backup.Failed();
}

std::int32_t RewriteTarget(const CString& targetPath, const char* backupPath, LibraryItems& items) {
  Stdio().rename(targetPath.GetString(), backupPath);  // not checked, on purpose: see the header
  CatalogueReader backup(backupPath);
  // Neither renamed nor anywhere else: emptying the target would lose the only catalogue.
  if (!backup.IsOpen() && CanBeOpened(targetPath)) return MERGE_NOT_POSSIBLE;

  CatalogueWriter target(targetPath.GetString());
  if (!target.IsOpen()) return MERGE_NOT_POSSIBLE;
  const bool complete = !backup.IsOpen() || WriteMerged(backup, items, target);
  backup.Close();
  if (!target.Close() || !complete) return MERGE_NOT_POSSIBLE;
  Stdio().remove(backupPath);
  return MERGE_DONE;
}

std::int32_t MergeInto(const CString& targetPath, const CString& sourcePath) {
  if (!CanBeOpened(sourcePath)) return MERGE_NO_SOURCE;
  LibraryItems items;
  char backupPath[BACKUP_PATH_SIZE];
  {
    CatalogueReader target(targetPath.GetString());
    if (!target.IsOpen()) return MERGE_DONE;
    if (!MakeBackupPath(targetPath.View(), backupPath)) return MERGE_NOT_POSSIBLE;
    if (!items.CollectTarget(target)) return MERGE_NOT_POSSIBLE;
  }
  {
    CatalogueReader source(sourcePath.GetString());
    if (source.IsOpen() && !items.CollectSource(source)) return MERGE_NO_SOURCE;
  }
  return RewriteTarget(targetPath, backupPath, items);
}

std::int32_t Merge(const char* source, const char* target) {
  FolderAccess folder;
  if (target == nullptr && !folder.Request()) return MERGE_NO_DATA_FOLDER;
  return MergeInto(CataloguePath(target != nullptr ? target : folder.Path().GetString()),
                   CataloguePath(source));
}

}  // namespace

std::int32_t mergeLibraryFiles(void* /*reserved*/, const char* source, const char* target,
                               std::int32_t folderKind) {
  const AFX_MAINTAIN_STATE2 moduleState(AfxGetStaticModuleState());
  if (folderKind != CATALOGUE_FOLDER_KIND) return MERGE_NOT_POSSIBLE;
  if (source == nullptr) return MERGE_NO_SOURCE;
  try {
    return Merge(source, target);
  } catch (const std::bad_alloc&) {  // raised before anything is touched
    return MERGE_NOT_POSSIBLE;
  }
}

}  // namespace brevanta
