// DataFolder.cpp - the folder in which the module keeps its catalogue.
#include "teskarlt/modules/DataFolder.h"

#include "inc/LibraryMerge.h"
#include "platform/FolderLock.h"
#include "platform/SystemFolders.h"
#include "teskarlt/Error.h"

namespace teskarlt {

namespace {

platform::FolderLock& Lock() {
  static platform::FolderLock lock;
  return lock;
}

// A merge holds the folder around the module's own request, so only the last release gives it back.
int requests = 0;

void ReleaseFolder() {
  if (requests > 0 && --requests == 0) Lock().Release();
}

std::int32_t RequestFolder() {
  switch (Lock().Take(DataFolder())) {
    case platform::LockResult::Taken:
      ++requests;
      return brevanta::FOLDER_GRANTED;
    case platform::LockResult::Unusable:
      return brevanta::FOLDER_UNUSABLE;
    default:
      return FOLDER_REFUSED;
  }
}

}  // namespace

std::string DataFolder() {
  if (auto folder = platform::EnvironmentVariable("TESKAR_DATA")) {
    if (!folder->ends_with('/') && !folder->ends_with('\\')) *folder += '/';
    return *folder;
  }
  if (const auto user = platform::UserDataFolder()) return *user + "teskar/";
  throw Error("the system names no data folder of the user; say with TESKAR_DATA where the catalogue lies");
}

std::int32_t AccessDataFolder(std::int32_t kind, std::int32_t operation) {
  if (kind != brevanta::CATALOGUE_FOLDER_KIND) return FOLDER_REFUSED;
  if (operation == brevanta::FOLDER_REQUEST) return RequestFolder();
  if (operation != brevanta::FOLDER_RELEASE && operation != brevanta::FOLDER_GIVE_BACK) return FOLDER_REFUSED;
  if (operation == brevanta::FOLDER_RELEASE)
    ReleaseFolder();  // nothing is held after brevanta::FOLDER_UNUSABLE
  return brevanta::FOLDER_GRANTED;
}

}  // namespace teskarlt
