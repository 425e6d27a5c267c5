// ProgramEnd.h - what is left behind when the program is ended from outside.
#pragma once

#include <string>

namespace platform {

// From here on Ctrl-C, a closed terminal and a request to end the program remove the file of RemoveAtEnd and
// then end it as they would have done. What the program's caller has told it to ignore stays ignored.
void WatchForEnd();

// The one file, UTF-8, that must not outlive the program when it is ended so; empty: none.
void RemoveAtEnd(const std::string& path);

// From here on printing into a pipe whose reader is gone is an error, and ends the program no more.
void OutliveClosedPipes();

}  // namespace platform
