// CatalogueFolder.cpp - the places of catalogues, and their lock.
#include "teskarlt/catalogue/CatalogueFolder.h"

#include <fmt/format.h>

#include "inc/LibraryMerge.h"
#include "platform/FileOperations.h"
#include "platform/SystemFolders.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/modules/DataFolder.h"
#include "teskarlt/modules/ProgramFolder.h"

namespace teskarlt {

namespace {

std::string FolderOf(const std::string& path) {
  const std::u8string folder = ToPath(path).parent_path().u8string();
  return folder.empty() ? "." : std::string(folder.begin(), folder.end());
}

}  // namespace

std::filesystem::path ToPath(const std::string& utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

void LockFolderOf(const std::string& catalogue, platform::FolderLock& lock) {
  const std::string folder = FolderOf(catalogue);
  const platform::LockResult result = lock.Take(folder);
  if (result == platform::LockResult::Taken) return;
  if (result == platform::LockResult::Busy)
    throw Error(fmt::format("another merge is at work in the folder of {}", catalogue));
  std::error_code error;
  throw Error(std::filesystem::is_directory(ToPath(folder), error)
                  ? "the folder of the catalogue must not be written"
                  : "there is no such folder",
              {.file = catalogue});
}

UsualCatalogue FindUsualCatalogue() {
  const std::string own = CatalogueIn(DataFolder());
  if (platform::StateOfFile(own).exists) return {own};
  const std::string installed = platform::FromSystemPath(ProgramFolder()) + brevanta::CATALOGUE_FILE;
  if (platform::StateOfFile(installed).exists) return {installed, true};
  return {own};
}

}  // namespace teskarlt
