// ModuleServices.cpp - what Windows does not bring itself of the services in ModuleServices.h.
#include "platform/ModuleServices.h"

HMODULE AfxLoadLibrary(LPCSTR name) {
  return name == nullptr ? nullptr : LoadLibraryA(name);
}

std::string ModuleLoadError() {
  const DWORD error = GetLastError();
  char text[512];
  const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                      error, 0, text, sizeof text, nullptr);
  std::string reason(text, length);
  while (!reason.empty() && (reason.back() == '\n' || reason.back() == '\r' || reason.back() == '.'))
    reason.pop_back();
  return reason.empty() ? "error " + std::to_string(error) : reason;
}
