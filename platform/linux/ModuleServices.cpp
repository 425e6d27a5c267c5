// ModuleServices.cpp - the module services of ModuleServices.h on Linux, by the dynamic loader.
#include "platform/ModuleServices.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <link.h>
#include <strings.h>
#include <unistd.h>

#include "platform/linux/StringTable.h"

namespace {

std::string_view FileName(std::string_view path) {
  const auto slash = path.rfind('/');
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

std::string ProgramPath() {
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

bool NamesProgram(std::string_view name) {
  constexpr std::string_view ending = ".EXE";
  if (name.size() < ending.size() || !SameName(name.substr(name.size() - ending.size()), ending))
    return false;
  const std::string program = ProgramPath();
  const std::string_view file = FileName(program);
  return SameName(file, name) || SameName(file, name.substr(0, name.size() - ending.size()));
}

struct LoadedSearch {
  std::string_view name;
  std::string path;
};

int MatchLoaded(dl_phdr_info* info, std::size_t /*size*/, void* data) {
  auto& search = *static_cast<LoadedSearch*>(data);
  const std::string_view path = info->dlpi_name;
  if (path.empty() || !SameName(FileName(path), search.name)) return 0;
  search.path = path;
  return 1;
}

// A handle of the loader stays the same for a module as long as the module is loaded, so the reference that
// dlopen took can be given back at once.
HMODULE WithoutReference(void* handle) {
  if (handle != nullptr) dlclose(handle);
  return handle;
}

// The file that is mapped at the address; empty when there is none.
std::string MappedFile(std::uintptr_t address) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    std::uintptr_t from = 0;
    std::uintptr_t to = 0;
    char dash = 0;
    std::istringstream(line) >> std::hex >> from >> dash >> to;
    const auto path = line.find('/');
    if (from <= address && address < to && path != std::string::npos) return line.substr(path);
  }
  return {};
}

// The loader keeps the name by which a module was loaded; a relative one says little once the folder changes.
std::string ModulePath(HMODULE module) {
  link_map* map = nullptr;
  if (dlinfo(module, RTLD_DI_LINKMAP, static_cast<void*>(&map)) != 0) return {};
  const std::string name = map->l_name;
  return name.empty() || name.front() == '/' ? name : MappedFile(reinterpret_cast<std::uintptr_t>(map->l_ld));
}

HMODULE ProgramHandle() {
  return WithoutReference(dlopen(nullptr, RTLD_LAZY));
}

}  // namespace

HMODULE GetModuleHandleA(LPCSTR name) {
  if (name == nullptr || NamesProgram(name)) return ProgramHandle();
  LoadedSearch search{name, {}};
  if (dl_iterate_phdr(MatchLoaded, &search) == 0) return nullptr;
  return WithoutReference(dlopen(search.path.c_str(), RTLD_LAZY | RTLD_NOLOAD));
}

DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size) {
  if (size == 0) return 0;
  const std::string path =
      module == nullptr || module == ProgramHandle() ? ProgramPath() : ModulePath(module);
  const std::size_t length = std::min<std::size_t>(path.size(), size - 1);
  std::memcpy(buffer, path.data(), length);
  buffer[length] = '\0';
  return path.size() < size ? static_cast<DWORD>(length) : size;
}

FARPROC GetProcAddress(HMODULE module, LPCSTR name) {
  return module == nullptr ? nullptr : reinterpret_cast<FARPROC>(dlsym(module, name));
}

BOOL FreeLibrary(HMODULE module) {
  return dlclose(module) == 0 ? 1 : 0;
}

int LoadStringA(HINSTANCE module, UINT id, LPSTR buffer, int size) {
  if (size <= 0) return 0;
  buffer[0] = '\0';
  if (module == nullptr) return 0;
  const auto* entry = static_cast<const StringTableEntry*>(dlsym(module, STRING_TABLE_SYMBOL));
  for (; entry != nullptr && entry->text != nullptr; ++entry) {
    if (entry->id != id) continue;
    const std::size_t length = std::min(std::strlen(entry->text), static_cast<std::size_t>(size - 1));
    std::memcpy(buffer, entry->text, length);
    buffer[length] = '\0';
    return static_cast<int>(length);
  }
  return 0;
}

HMODULE AfxLoadLibrary(LPCSTR name) {
  return name == nullptr ? nullptr : dlopen(name, RTLD_NOW | RTLD_LOCAL);
}

std::string ModuleLoadError() {
  const char* text = dlerror();
  return text == nullptr ? "no reason given" : text;
}
