// ProgramArguments.cpp - the command line on Windows, from UTF-16 to UTF-8.
#include "platform/ProgramArguments.h"

#include <windows.h>

#include <shellapi.h>

std::vector<std::string> ProgramArguments(int /*argc*/, char** /*argv*/) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide[i], -1, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide[i], -1, text.data(), size, nullptr, nullptr);
    text.resize(static_cast<std::size_t>(size) - 1);
    arguments.push_back(text);
  }
  LocalFree(wide);
  return arguments;
}

void UseUtf8Terminal() {
  SetConsoleOutputCP(CP_UTF8);
}
