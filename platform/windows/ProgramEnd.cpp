// ProgramEnd.cpp - the events of the console on Windows.
#include "platform/ProgramEnd.h"

#include <windows.h>

#include <atomic>

#include "platform/windows/WideText.h"

namespace platform {
namespace {

constexpr std::size_t LONGEST_PATH = 32768;

// The system calls the handler in a thread of its own.
wchar_t fileAtEnd[LONGEST_PATH];
std::atomic<bool> hasFileAtEnd{false};

// The file goes when its last handle is closed, which the end of the program does.
BOOL WINAPI EndByConsole(DWORD) {
  if (hasFileAtEnd) DeleteFileW(fileAtEnd);
  return FALSE;  // the next handler, the system's, ends the program
}

}  // namespace

void WatchForEnd() {
  SetConsoleCtrlHandler(EndByConsole, TRUE);
}

void RemoveAtEnd(const std::string& path) {
  hasFileAtEnd = false;
  const std::wstring wide = ToWide(path);
  if (wide.empty() || wide.size() >= LONGEST_PATH) return;
  wide.copy(fileAtEnd, wide.size());
  fileAtEnd[wide.size()] = L'\0';
  hasFileAtEnd = true;
}

void OutliveClosedPipes() {}  // here they are errors already

}  // namespace platform
