// FolderAccess.h - the host's data folder that holds the catalogue, and the right to work in it.
#pragma once

#include "inc/HostFunctionTable.h"
#include "platform/CString.h"

namespace brevanta {

// Holds the host's access to the data folder from a successful Request to the end of its life.
class FolderAccess {
 public:
  FolderAccess() = default;
  ~FolderAccess();
  FolderAccess(const FolderAccess&) = delete;
  FolderAccess& operator=(const FolderAccess&) = delete;

  // Asks the host for the folder's path and for access to it. False, with nothing held, when there is no host
  // or no such folder, or access is refused.
  bool Request();

  // The folder's path as the host gave it.
  const CString& Path() const { return path_; }

 private:
  const HostFunctionTable* table_ = nullptr;  // null unless access is held
  CString path_;
};

}  // namespace brevanta
