// ProgramArguments.cpp - the command line on Windows, from UTF-16 to UTF-8.
#include "platform/ProgramArguments.h"

#include <windows.h>

#include <cwchar>

#include <shellapi.h>

#include "platform/windows/WideText.h"

std::vector<std::string> ProgramArguments(int /*argc*/, char** /*argv*/) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) {
    arguments.push_back(platform::ToNarrow(wide[i], std::wcslen(wide[i])));
  }
  LocalFree(wide);
  return arguments;
}
