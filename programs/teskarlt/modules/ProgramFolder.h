// ProgramFolder.h - where the program lies, with its modules.
#pragma once

#include <string>

namespace teskarlt {

// Both in the system's 8-bit code page, as modules are loaded; the folder has the separator at its end.
std::string ProgramPath();
std::string ProgramFolder();

}  // namespace teskarlt
