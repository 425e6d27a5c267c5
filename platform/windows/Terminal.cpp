// Terminal.cpp - the console on Windows.
#include "platform/Terminal.h"

#include <windows.h>

#include <io.h>

namespace platform {

bool IsTerminal(std::FILE* stream) {
  return _isatty(_fileno(stream)) != 0;
}

void GuardStandardStreams() {}  // handles of files are no standard streams here

void UseUtf8Terminal() {
  SetConsoleOutputCP(CP_UTF8);
}

}  // namespace platform
