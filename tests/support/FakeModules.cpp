// FakeModules.cpp - plays the module services from what a test has set up.
#include "tests/support/FakeModules.h"

#include <algorithm>
#include <cstring>

#include "platform/ModuleState.h"

namespace fake_modules {

namespace {

void Record(const std::string& call) {
  World& world = TheWorld();
  world.calls.push_back(call);
  world.inModuleState.push_back(AfxGetModuleState() == AfxGetStaticModuleState());
}

Module* Find(const std::map<std::string, Module*>& modules, const std::string& name) {
  const auto found = modules.find(name);
  return found == modules.end() ? nullptr : found->second;
}

}  // namespace

World& TheWorld() {
  static World world;
  return world;
}

void Reset() {
  TheWorld() = World();
}

}  // namespace fake_modules

using fake_modules::Module;
using fake_modules::TheWorld;

HMODULE GetModuleHandleA(LPCSTR name) {
  fake_modules::Record(std::string("GetModuleHandleA ") + name);
  return fake_modules::Find(TheWorld().running, name);
}

DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size) {
  fake_modules::Record("GetModuleFileNameA " + std::to_string(size));
  const auto found = TheWorld().fileNames.find(static_cast<Module*>(module));
  if (found == TheWorld().fileNames.end()) return 0;
  const std::string& path = found->second;
  const std::size_t length = std::min<std::size_t>(path.size(), size - 1);
  std::memcpy(buffer, path.data(), length);
  buffer[length] = '\0';
  return static_cast<DWORD>(length);
}

FARPROC GetProcAddress(HMODULE module, LPCSTR name) {
  fake_modules::Record(std::string("GetProcAddress ") + name);
  const auto& exports = static_cast<Module*>(module)->exports;
  const auto found = exports.find(name);
  return found == exports.end() ? nullptr : found->second;
}

BOOL FreeLibrary(HMODULE module) {
  fake_modules::Record("FreeLibrary");
  --static_cast<Module*>(module)->loadCount;
  return 1;
}

int LoadStringA(HINSTANCE /*module*/, UINT id, LPSTR buffer, int size) {
  fake_modules::Record("LoadStringA " + std::to_string(id));
  const std::string text = "LAYER_" + std::to_string(id);
  if (static_cast<std::size_t>(size) <= text.size()) return 0;
  std::memcpy(buffer, text.c_str(), text.size() + 1);
  return static_cast<int>(text.size());
}

HMODULE AfxLoadLibrary(LPCSTR name) {
  fake_modules::Record(std::string("AfxLoadLibrary ") + name);
  const auto left = TheWorld().loadsLeft.find(name);
  if (left != TheWorld().loadsLeft.end() && left->second-- <= 0) return nullptr;
  Module* module = fake_modules::Find(TheWorld().installed, name);
  if (module != nullptr) ++module->loadCount;
  return module;
}
