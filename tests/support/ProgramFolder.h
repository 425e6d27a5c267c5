// ProgramFolder.h - where the running test program lies.
#pragma once

#include <string>

#include "platform/ModuleServices.h"

// With the separator at its end.
inline std::string ProgramFolder() {
  char path[4096];
  const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
  const std::string program(path, length);
  return program.substr(0, program.find_last_of("\\/") + 1);
}
