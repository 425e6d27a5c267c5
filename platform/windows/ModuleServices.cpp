// ModuleServices.cpp - what Windows does not bring itself of the services in ModuleServices.h.
#include "platform/ModuleServices.h"

HMODULE AfxLoadLibrary(LPCSTR name) {
  return name == nullptr ? nullptr : LoadLibraryA(name);
}
