// Terminal.cpp - the terminal on Linux, which shows UTF-8 already.
#include "platform/Terminal.h"

#include <unistd.h>

namespace platform {

bool IsTerminal(std::FILE* stream) {
  return isatty(fileno(stream)) == 1;
}

void UseUtf8Terminal() {}

}  // namespace platform
