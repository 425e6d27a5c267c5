// ProgramArguments.cpp - the command line on Linux is UTF-8 already.
#include "platform/ProgramArguments.h"

std::vector<std::string> ProgramArguments(int argc, char** argv) {
  return {argv + 1, argv + argc};
}
