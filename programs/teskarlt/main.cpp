// main.cpp - the stand-alone host of the roof window module.
#include "platform/ProgramArguments.h"
#include "teskarlt/commands/CommandLine.h"

int main(int argc, char** argv) {
  UseUtf8Terminal();
  return teskarlt::RunCommandLine(ProgramArguments(argc, argv));
}
