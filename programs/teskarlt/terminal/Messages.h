// Messages.h - what the program tells people on standard error.
#pragma once

#include <string>
#include <string_view>

namespace teskarlt {

// The text in one line: a blank for each line break and other control character.
std::string OneLine(std::string_view text);

// One line each, which begins with the program's name: the message alone for what cannot be done, "warning: "
// or "note: " before it else. Texts are UTF-8.
void Tell(std::string_view message);
void TellWarning(std::string_view message);
void TellNote(std::string_view message);

}  // namespace teskarlt
