// Terminal.h - the terminal that the program was started in.
#pragma once

#include <cstdio>

namespace platform {

// True when the stream goes to a terminal that a person looks at.
bool IsTerminal(std::FILE* stream);

// Keeps files that are opened from taking the place of a standard stream that the program was started
// without: what is printed there would come into them. To be called before any is opened.
void GuardStandardStreams();

// Makes the terminal show UTF-8, where that has to be asked for.
void UseUtf8Terminal();

}  // namespace platform
