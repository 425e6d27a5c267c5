// ModuleServices.cpp - what Windows does not bring itself of the services in ModuleServices.h.
#include "platform/ModuleServices.h"

#include "platform/FileOperations.h"

HMODULE AfxLoadLibrary(LPCSTR name) {
  return name == nullptr ? nullptr : LoadLibraryA(name);
}

std::string ModuleLoadError() {
  return platform::SystemReason(static_cast<int>(GetLastError()));
}
