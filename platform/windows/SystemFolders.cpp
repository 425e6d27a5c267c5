// SystemFolders.cpp - folders of the user on Windows, and paths in the ANSI code page.
#include "platform/SystemFolders.h"

#include <windows.h>

#include "platform/windows/WideText.h"

namespace platform {

std::optional<std::string> EnvironmentVariable(const char* name) {
  const std::wstring wideName = ToWide(name);
  const DWORD size = GetEnvironmentVariableW(wideName.c_str(), nullptr, 0);
  if (size <= 1) return std::nullopt;
  std::wstring value(size, L'\0');
  value.resize(GetEnvironmentVariableW(wideName.c_str(), value.data(), size));
  return ToNarrow(value.data(), value.size());
}

std::optional<std::string> UserDataFolder() {
  if (const auto data = EnvironmentVariable("APPDATA")) return *data + "\\";
  return std::nullopt;
}

std::optional<std::string> ToSystemPath(const std::string& utf8) {
  const std::wstring wide = ToWide(utf8);
  std::string path(wide.size() * 2, '\0');
  BOOL lost = FALSE;
  const int length =
      WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(), static_cast<int>(wide.size()),
                          path.data(), static_cast<int>(path.size()), nullptr, &lost);
  if (lost != FALSE || (length == 0 && !wide.empty())) return std::nullopt;
  path.resize(static_cast<std::size_t>(length));
  return path;
}

std::string FromSystemPath(const std::string& path) {
  std::wstring wide(path.size(), L'\0');  // never more units than bytes
  const int length = MultiByteToWideChar(CP_ACP, 0, path.data(), static_cast<int>(path.size()), wide.data(),
                                         static_cast<int>(wide.size()));
  return ToNarrow(wide.data(), static_cast<std::size_t>(length));
}

}  // namespace platform
