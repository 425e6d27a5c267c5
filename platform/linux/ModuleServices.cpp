// ModuleServices.cpp - the module services of ModuleServices.h on Linux, by the dynamic loader.
#include "platform/ModuleServices.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <link.h>
#include <strings.h>
#include <sys/stat.h>
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

constexpr const char* PROGRAM_LINK = "/proc/self/exe";

// The system marks the path of a file that was replaced or removed while it is in use; a file may bear such a
// name of its own, too.
constexpr std::string_view DELETED_MARK = " (deleted)";

std::string_view WithoutDeletedMark(std::string_view path) {
  if (path.ends_with(DELETED_MARK)) path.remove_suffix(DELETED_MARK.size());
  return path;
}

bool IsSameFile(const char* a, const char* b) {
  struct stat stateOfA = {};
  struct stat stateOfB = {};
  return stat(a, &stateOfA) == 0 && stat(b, &stateOfB) == 0 && stateOfA.st_dev == stateOfB.st_dev &&
         stateOfA.st_ino == stateOfB.st_ino;
}

// Callers of these services know no exceptions, so no path takes memory.
struct Path {
  char text[PATH_MAX] = {};
  std::size_t length = 0;

  std::string_view View() const { return {text, length}; }
};

Path ReadProgramPath() {
  Path path;
  const ssize_t length = readlink(PROGRAM_LINK, path.text, sizeof path.text - 1);
  path.length = length > 0 ? static_cast<std::size_t>(length) : 0;
  if (!IsSameFile(path.text, PROGRAM_LINK)) path.length = WithoutDeletedMark(path.View()).size();
  return path;
}

// The path under which the program was started, whatever becomes of its file while it runs.
std::string_view ProgramPath() {
  static const Path path = ReadProgramPath();
  return path.View();
}

bool NamesProgram(std::string_view name) {
  constexpr std::string_view ending = ".EXE";
  if (name.size() < ending.size() || !SameName(name.substr(name.size() - ending.size()), ending))
    return false;
  const std::string_view file = FileName(ProgramPath());
  return SameName(file, name) || SameName(file, name.substr(0, name.size() - ending.size()));
}

struct LoadedSearch {
  std::string_view name;
  const char* path;  // the loader's own text
};

int MatchLoaded(dl_phdr_info* info, std::size_t /*size*/, void* data) {
  auto& search = *static_cast<LoadedSearch*>(data);
  const std::string_view path = info->dlpi_name;
  if (path.empty() || !SameName(FileName(path), search.name)) return 0;
  search.path = info->dlpi_name;
  return 1;
}

// A handle of the loader stays the same for a module as long as the module is loaded, so the reference that
// dlopen took can be given back at once.
HMODULE WithoutReference(void* handle) {
  if (handle != nullptr) dlclose(handle);
  return handle;
}

// The path of the file that is mapped at the address, if that is what the line of the system's list says.
std::string_view MappedPath(const char* line, std::uintptr_t address) {
  constexpr int HEXADECIMAL = 16;
  char* dash = nullptr;
  const std::uintptr_t from = std::strtoull(line, &dash, HEXADECIMAL);
  if (*dash != '-') return {};
  const std::uintptr_t to = std::strtoull(dash + 1, nullptr, HEXADECIMAL);
  const char* const path = std::strchr(line, '/');
  if (address < from || address >= to || path == nullptr) return {};
  return WithoutDeletedMark({path, std::strcspn(path, "\n")});
}

// The file that is mapped at the address; empty when there is none.
Path MappedFile(std::uintptr_t address) {
  constexpr std::size_t LINE_SIZE = PATH_MAX + 128;  // addresses and rights stand in front of the path
  Path path;
  std::FILE* const maps = std::fopen("/proc/self/maps", "re");
  if (maps == nullptr) return path;
  for (char line[LINE_SIZE]; path.length == 0 && std::fgets(line, sizeof line, maps) != nullptr;)
    path.length = MappedPath(line, address).copy(path.text, sizeof path.text);
  std::fclose(maps);
  return path;
}

// The loader keeps the name by which a module was loaded; a relative one says little once the folder changes.
Path ModulePath(HMODULE module) {
  link_map* map = nullptr;
  if (dlinfo(module, RTLD_DI_LINKMAP, static_cast<void*>(&map)) != 0) return {};
  const std::string_view name = map->l_name;
  if (!name.empty() && name.front() != '/') return MappedFile(reinterpret_cast<std::uintptr_t>(map->l_ld));
  Path path;
  path.length = name.copy(path.text, sizeof path.text);
  return path;
}

HMODULE ProgramHandle() {
  return WithoutReference(dlopen(nullptr, RTLD_LAZY));
}

}  // namespace

HMODULE GetModuleHandleA(LPCSTR name) {
  if (name == nullptr || NamesProgram(name)) return ProgramHandle();
  LoadedSearch search{name, nullptr};
  if (dl_iterate_phdr(MatchLoaded, &search) == 0) return nullptr;
  return WithoutReference(dlopen(search.path, RTLD_LAZY | RTLD_NOLOAD));
}

DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size) {
  if (size == 0) return 0;
  Path loaded;
  std::string_view path = ProgramPath();
  if (module != nullptr && module != ProgramHandle()) {
    loaded = ModulePath(module);
    path = loaded.View();
  }
  const std::size_t length = path.copy(buffer, size - 1);
  buffer[length] = '\0';
  return path.size() < size ? static_cast<DWORD>(length) : size;
}

FARPROC GetProcAddress(HMODULE module, LPCSTR name) {
  return module == nullptr || name == nullptr ? nullptr : reinterpret_cast<FARPROC>(dlsym(module, name));
}

BOOL FreeLibrary(HMODULE module) {
  return module != nullptr && dlclose(module) == 0 ? 1 : 0;
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
  if (name == nullptr || *name == '\0') return nullptr;  // the loader would give the program itself
  return dlopen(name, RTLD_NOW | RTLD_LOCAL);
}

std::string ModuleLoadError() {
  const char* text = dlerror();
  return text == nullptr ? "no reason given" : text;
}
