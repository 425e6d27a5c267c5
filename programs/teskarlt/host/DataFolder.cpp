// DataFolder.cpp - the folder in which the module keeps its catalogue.
#include "teskarlt/host/DataFolder.h"

#include "platform/FolderLock.h"
#include "platform/SystemFolders.h"
#include "teskarlt/Error.h"

namespace teskarlt {

namespace {

platform::FolderLock& Lock() {
  static platform::FolderLock lock;
  return lock;
}

std::int32_t RequestFolder() {
  switch (Lock().Take(DataFolder())) {
    case platform::LockResult::Taken:
      return ACCESS_GRANTED;
    case platform::LockResult::Unusable:
      return ACCESS_UNUSABLE;
    default:
      return ACCESS_REFUSED;
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
  if (kind != CATALOGUE_FOLDER) return ACCESS_REFUSED;
  if (operation == ACCESS_REQUEST) return RequestFolder();
  if (operation != ACCESS_RELEASE && operation != ACCESS_GIVE_BACK) return ACCESS_REFUSED;
  Lock().Release();
  return ACCESS_GRANTED;
}

}  // namespace teskarlt
