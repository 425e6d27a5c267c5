// TextCodec.h - texts as they stand in a drawing: code page or UTF-8, with escapes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace teskarlt::dxf {

// The texts of one drawing: in UTF-8 in the program, and as they stand in the file, which is also how the
// module and its records have them.
class TextCodec {
 public:
  // `pageName` as $DWGCODEPAGE has it; where no page of that name is known, it is that of DEFAULT_CODE_PAGE.
  // `isUtf8`: the file itself holds UTF-8 whatever the page says.
  TextCodec(std::string pageName, bool isUtf8);

  // From the file's bytes to UTF-8: \U+XXXX, ^A to ^_ and "^ " resolved, malformed bytes as U+FFFD.
  std::string Decode(std::string_view raw) const;

  // From UTF-8 to the file's bytes, which Decode brings back: control characters as ^A, "^" as "^ ", what the
  // code page lacks as \U+XXXX, and so the backslash of what would be read as that. Throws Error for
  // malformed UTF-8.
  std::string Encode(std::string_view utf8) const;

  // What is doubtful about the texts converted so far, for people; empty when nothing is.
  std::string Note() const;

 private:
  const platform::CodePage& Page() const;

  std::string pageName_;
  bool isUtf8_;
  mutable std::optional<platform::CodePage> page_;  // looked up when first needed
  mutable bool isPageAssumed_ = false;
};

// Whether the bytes are UTF-8 throughout and hold something beyond ASCII. Texts of a code page that are UTF-8
// by chance throughout a drawing are next to impossible.
bool HoldsUtf8(std::string_view bytes);

// UTF-8 with letters in capitals, as far as names of layers and the like compare without regard to case:
// Latin, Greek and Cyrillic.
std::string FoldedName(std::string_view utf8);

}  // namespace teskarlt::dxf
