// Refusal.h - why the dialog does not confirm a window.
#pragma once

#include <charconv>
#include <stdexcept>
#include <string>
#include <string_view>

namespace brevanta {

// Thrown by the rules and caught in the dialog's exports; `what` is one sentence for the user, in UTF-8.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The text in double quotes; bytes outside ASCII, whose code
// page the dialog does not know, become question marks.
inline std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text)
    quoted += static_cast<unsigned char>(c) < 0x80 ? c : '?';
  return quoted + "\"";
}

// The shortest text that gives the number back, independent of the locale.
template <typename Number>
std::string NumberText(Number value) {
  char buffer[32];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

}  // namespace brevanta
