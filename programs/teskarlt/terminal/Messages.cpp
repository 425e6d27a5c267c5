// Messages.cpp - what the program tells people on standard error.
#include "teskarlt/terminal/Messages.h"

#include <fmt/format.h>

namespace teskarlt {

void Tell(std::string_view message) {
  fmt::print(stderr, "teskarlt: {}\n", message);
}

void TellWarning(std::string_view message) {
  fmt::print(stderr, "teskarlt: warning: {}\n", message);
}

void TellNote(std::string_view message) {
  fmt::print(stderr, "teskarlt: note: {}\n", message);
}

}  // namespace teskarlt
