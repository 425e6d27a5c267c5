// main.cpp - the command-line program.
#include "platform/ProgramArguments.h"
#include "platform/ProgramEnd.h"
#include "platform/Terminal.h"
#include "teskarlt/commands/CommandLine.h"

int main(int argc, char** argv) {
  platform::GuardStandardStreams();
  platform::UseUtf8Terminal();
  platform::WatchForEnd();
  return teskarlt::RunCommandLine(ProgramArguments(argc, argv));
}
