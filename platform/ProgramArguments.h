// ProgramArguments.h - the command line in UTF-8 on every system.
#pragma once

#include <string>
#include <vector>

// The arguments behind the program's name, in UTF-8. On Windows they are taken from the system, since those
// handed to main are in the system's code page.
std::vector<std::string> ProgramArguments(int argc, char** argv);
