// CatalogueFolder.h - where catalogues lie: the usual one, and the folder that is locked while one changes.
#pragma once

#include <filesystem>
#include <string>

#include "platform/FolderLock.h"

namespace teskarlt {

// A UTF-8 path as the standard library takes it.
std::filesystem::path ToPath(const std::string& utf8);

// Keeps other merges and changes out of the folder of the catalogue. Throws Error when one is at work there,
// or the folder is missing or must not be written.
void LockFolderOf(const std::string& catalogue, platform::FolderLock& lock);

struct UsualCatalogue {
  std::string path;          // UTF-8
  bool isInstalled = false;  // the one beside the program, since the data folder has none
};

// The catalogue that is meant where none is named: that of the data folder, else the one of invented makers
// that lies beside the program; that of the data folder again where there is neither.
UsualCatalogue FindUsualCatalogue();

}  // namespace teskarlt
