// ProgramFolder.cpp - asks the system for the program's path.
#include "teskarlt/modules/ProgramFolder.h"

#include "platform/ModuleServices.h"

namespace teskarlt {

std::string ProgramPath() {
  char path[4096];
  const DWORD length = GetModuleFileNameA(GetModuleHandleA(nullptr), path, sizeof path);
  return {path, length};
}

std::string ProgramFolder() {
  const std::string path = ProgramPath();
  return path.substr(0, path.find_last_of("\\/") + 1);
}

}  // namespace teskarlt
