// CommandLine.h - parses the command line and runs the subcommand.
#pragma once

#include <string>
#include <vector>

namespace teskarlt {

// Runs the subcommand that the arguments name (UTF-8, without the program's name): results go to standard
// output, messages to standard error. Returns the program's exit status.
int RunCommandLine(const std::vector<std::string>& arguments);

}  // namespace teskarlt
