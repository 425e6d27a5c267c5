// SystemFolders.h - folders of the user, and paths in the form that 8-bit interfaces take.
#pragma once

#include <optional>
#include <string>

namespace platform {

// Where programs keep their data for this user, UTF-8, with a separator at its end; nothing when the system
// does not tell.
std::optional<std::string> UserDataFolder();

// The variable of the environment, UTF-8; nothing when it is not set or empty.
std::optional<std::string> EnvironmentVariable(const char* name);

// A UTF-8 path in the system's 8-bit code page; nothing when the code page cannot hold it.
std::optional<std::string> ToSystemPath(const std::string& utf8);

// A path in the system's 8-bit code page in UTF-8.
std::string FromSystemPath(const std::string& path);

}  // namespace platform
