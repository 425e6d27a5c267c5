// FakeModules.h - the operating system's module services, played by the test program.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/ModuleServices.h"

// Linked into a test program, its source replaces platform/linux/ModuleServices.cpp. A handle is the address
// of an entry here, so that every module has its own.
namespace fake_modules {

struct Module {
  std::map<std::string, FARPROC> exports;
  int loadCount = 0;
};

struct World {
  std::map<std::string, Module*> running;    // what GetModuleHandleA finds
  std::map<std::string, Module*> installed;  // what AfxLoadLibrary finds, by the name that it is given
  std::map<std::string, int> loadsLeft;      // how often AfxLoadLibrary still finds a name; none: always
  std::map<Module*, std::string> fileNames;  // what GetModuleFileNameA gives; none: 0
  std::vector<std::string> calls;            // the calls in order, "AfxLoadLibrary name"
  std::vector<bool> inModuleState;           // for each call, whether this module's state was current
};

// Forgets everything.
void Reset();

World& TheWorld();

}  // namespace fake_modules
