// main.cpp - the command-line program.
#include "platform/ProgramArguments.h"
#include "platform/Terminal.h"
#include "teskarlt/commands/CommandLine.h"

int main(int argc, char** argv) {
  platform::UseUtf8Terminal();
  return teskarlt::RunCommandLine(ProgramArguments(argc, argv));
}
