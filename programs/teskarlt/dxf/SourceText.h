// SourceText.h - the bytes of a drawing with the name they came from, and messages about places in them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/FileOperations.h"

namespace teskarlt::dxf {

// Owns the bytes; views on them stay valid when the object is moved.
class SourceText {
 public:
  SourceText(std::string name, platform::FileBytes bytes);

  const std::string& Name() const { return name_; }
  std::string_view Text() const { return bytes_.View(); }
  // The text behind a byte order mark, where one stands in front.
  std::string_view Tags() const;

  // Number of the line, from 1, that holds the byte at `position` of the text. Counts through the file: for
  // messages only.
  std::size_t LineOf(const char* position) const;

  // Throws Error "FILE:LINE: MESSAGE" for a place in the text, or "FILE: MESSAGE" for the whole file.
  [[noreturn]] void FailAt(const char* position, const std::string& message) const;
  [[noreturn]] void Fail(const std::string& message) const;

 private:
  std::string name_;
  platform::FileBytes bytes_;
};

}  // namespace teskarlt::dxf
