// SystemFolders.cpp - folders of the user on Linux, by the XDG base directory rules.
#include "platform/SystemFolders.h"

#include <cstdlib>

namespace platform {

std::optional<std::string> EnvironmentVariable(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr || *value == '\0') return std::nullopt;
  return value;
}

std::optional<std::string> UserDataFolder() {
  if (const auto data = EnvironmentVariable("XDG_DATA_HOME")) return *data + "/";
  if (const auto home = EnvironmentVariable("HOME")) return *home + "/.local/share/";
  return std::nullopt;
}

std::optional<std::string> ToSystemPath(const std::string& utf8) {
  return utf8;
}

std::string FromSystemPath(const std::string& path) {
  return path;
}

}  // namespace platform
