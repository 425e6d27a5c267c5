// CompanionModule.cpp - finds and loads the modules that are installed beside the host add-on.
#include "arx/exports/CompanionModule.h"

#include <cstring>

#include "inc/HostFunctionTable.h"
#include "platform/ModuleState.h"

namespace brevanta {

namespace {

constexpr const char* HOST_MODULES[] = {HOST_PROGRAM, "TESKAR2D.ARX"};

bool HoldsPath(const char* name) {
  return std::strpbrk(name, "\\/") != nullptr;
}

// What lies behind the last separator of either kind; null when there is none.
char* FileNameIn(char* path) {
  char* fileName = nullptr;
  for (char* c = std::strpbrk(path, "\\/"); c != nullptr; c = std::strpbrk(fileName, "\\/"))
    fileName = c + 1;
  return fileName;
}

}  // namespace

HMODULE FindHostModule() {
  for (const char* name : HOST_MODULES) {
    if (HMODULE host = GetModuleHandleA(name)) return host;
  }
  return nullptr;
}

HMODULE LoadCompanionModule(const char* name) {
  const AFX_MAINTAIN_STATE2 moduleState(AfxGetStaticModuleState());
  if (name == nullptr) return nullptr;
  if (HoldsPath(name)) return AfxLoadLibrary(name);

  HMODULE host = FindHostModule();
  if (host == nullptr) return AfxLoadLibrary(name);
  char path[MODULE_PATH_SIZE];
  if (GetModuleFileNameA(host, path, sizeof path) == 0) return AfxLoadLibrary(name);
  char* fileName = FileNameIn(path);
  if (fileName == nullptr) return AfxLoadLibrary(name);

  const std::size_t room = sizeof path - static_cast<std::size_t>(fileName - path);
  const std::size_t needed = std::strlen(name) + 1;
  if (needed > room) return nullptr;  // no module can lie under a path that long
  std::memcpy(fileName, name, needed);
  return AfxLoadLibrary(path);
}

}  // namespace brevanta
