// FolderAccess.cpp - the host's data folder that holds the catalogue.
#include "arx/merge/FolderAccess.h"

#include "arx/exports/HostTable.h"
#include "inc/LibraryMerge.h"

namespace brevanta {

namespace {

constexpr int FOLDER_PATH_SIZE = 1024;

}  // namespace

FolderAccess::~FolderAccess() {
  if (table_ != nullptr) DataFolderAccess(table_, CATALOGUE_FOLDER_KIND, FOLDER_RELEASE);
}

bool FolderAccess::Request() {
  const HostFunctionTable* table = GetHostFunctionTable();
  if (table == nullptr) return false;
  char path[FOLDER_PATH_SIZE] = {};
  if (!GetDataFolder(table, CATALOGUE_FOLDER_KIND, path, sizeof path)) return false;
  path[FOLDER_PATH_SIZE - 1] = '\0';
  path_ = CString(path);

  const std::int32_t answer = DataFolderAccess(table, CATALOGUE_FOLDER_KIND, FOLDER_REQUEST);
  if (answer == FOLDER_UNUSABLE) DataFolderAccess(table, CATALOGUE_FOLDER_KIND, FOLDER_GIVE_BACK);
  if (answer != FOLDER_GRANTED) return false;
  table_ = table;
  return true;
}

}  // namespace brevanta
