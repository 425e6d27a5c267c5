// Error.h - what every part throws when it cannot do what the user asked for.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace platform {

// What an error is about, as far as that is known; texts are UTF-8 and empty where there is none.
struct ErrorPlace {
  // What `position` counts: the lines of a text file, from 1, or the bytes of a binary one, from 0.
  enum class Unit { None, Line, Byte };

  std::string file = {};
  Unit unit = Unit::None;
  std::size_t position = 0;
  std::string value = {};  // the text at fault
};

// The one error that people are told. Running out of memory is none: it stays std::bad_alloc.
class Error : public std::runtime_error {
 public:
  // `message` is one sentence for the user, UTF-8. `what()` gives it behind its place: "FILE:LINE: MESSAGE",
  // "FILE: byte OFFSET: MESSAGE" or "FILE: MESSAGE", and alone where the place names no file.
  explicit Error(const std::string& message, ErrorPlace place = {});

  const ErrorPlace& Place() const { return place_; }

  // The sentence without its place.
  const std::string& Message() const { return message_; }

 private:
  ErrorPlace place_;
  std::string message_;
};

}  // namespace platform
