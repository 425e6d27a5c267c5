// SourceText.h - the bytes of a drawing with the name they came from, and messages about places in them.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/Splice.h"

namespace teskarlt::dxf {

// Owns the bytes; views on them stay valid when the object is moved. A binary drawing is decoded once:
// whoever reads its tags sees text.
class SourceText {
 public:
  // Throws Error with the offset of the byte for a binary drawing that is damaged.
  SourceText(std::string name, platform::FileBytes bytes);

  const std::string& Name() const { return name_; }
  std::string_view Text() const { return decoded_ == nullptr ? bytes_.View() : std::string_view(*decoded_); }
  // The text behind a byte order mark, where one stands in front.
  std::string_view Tags() const;

  bool IsBinary() const { return decoded_ != nullptr; }

  // Where positions of the text, in ascending order, are in the file: the numbers of their lines, from 1, or
  // in a binary drawing the offsets of their tags, from 0. One pass over the text.
  std::vector<std::size_t> PlacesOf(std::span<const char* const> positions) const;

  // The same of one position, with the name of the file.
  ErrorPlace PlaceOf(const char* position) const;

  // Gives the file's bytes with the splices, which lie in the text and are in ascending order, to `sink`,
  // piece by piece: text as text, a binary drawing as a binary one. What no splice touches keeps its bytes.
  void Write(const std::vector<Splice>& splices, const std::function<void(std::string_view)>& sink) const;

  // Throws Error "FILE:LINE: MESSAGE" for a place in the text ("FILE: byte OFFSET: MESSAGE" in a binary
  // drawing), or "FILE: MESSAGE" for the whole file.
  [[noreturn]] void FailAt(const char* position, const std::string& message) const;
  [[noreturn]] void Fail(const std::string& message) const;

 private:
  std::string name_;
  platform::FileBytes bytes_;
  std::unique_ptr<const std::string> decoded_;  // the text of a binary drawing
};

}  // namespace teskarlt::dxf
