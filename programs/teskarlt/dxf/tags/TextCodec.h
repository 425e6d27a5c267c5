// TextCodec.h - texts as they stand in a drawing: code page or UTF-8, with escapes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace teskarlt::dxf {

// The texts of one drawing. Throws Error for what cannot be converted, and for an unknown code page as soon
// as a text beyond ASCII needs it.
class TextCodec {
 public:
  // `pageName` as $DWGCODEPAGE has it. `isUtf8`: the file itself holds UTF-8 whatever the page says.
  TextCodec(std::string fileName, std::string pageName, bool isUtf8);

  // From the file's bytes to UTF-8: \U+XXXX, ^A to ^_ and "^ " resolved, malformed bytes as U+FFFD.
  std::string Decode(std::string_view raw) const;

  // From bytes of the code page to those of the file: control characters as ^A, "^" as "^ ". What would be
  // read as \U+XXXX gets its backslash escaped.
  void Encode(std::string_view bytes, std::string& raw) const;

  std::string ToCodePage(std::string_view utf8) const;
  std::string ToUtf8(std::string_view bytes) const;

 private:
  const platform::CodePage& Page() const;

  std::string fileName_;
  std::string pageName_;
  bool isUtf8_;
  mutable std::optional<platform::CodePage> page_;  // looked up when first needed
};

// Whether the bytes are UTF-8 throughout and hold something beyond ASCII. Texts of a code page that are UTF-8
// by chance throughout a drawing are next to impossible.
bool HoldsUtf8(std::string_view bytes);

// UTF-8 with letters in capitals, as far as names of layers and the like compare without regard to case:
// Latin, Greek and Cyrillic.
std::string FoldedName(std::string_view utf8);

}  // namespace teskarlt::dxf
