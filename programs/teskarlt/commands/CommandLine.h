// CommandLine.h - the program's subcommands.
#pragma once

#include <string>
#include <vector>

namespace teskarlt {

constexpr int EXIT_DONE = 0;
constexpr int EXIT_REFUSED = 1;  // refused or failed; nothing was changed
constexpr int EXIT_USAGE = 2;

// Runs the subcommand that the arguments name (UTF-8, without the program's name): results go to standard
// output, messages to standard error. Returns the program's exit status.
int RunCommandLine(const std::vector<std::string>& arguments);

}  // namespace teskarlt
