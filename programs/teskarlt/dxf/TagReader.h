// TagReader.h - walks the tags of a range of a drawing's bytes.
#pragma once

#include <string_view>

#include "teskarlt/dxf/SourceText.h"
#include "teskarlt/dxf/Tag.h"

namespace teskarlt::dxf {

// Comments (999) are passed over. The source must outlive the reader.
class TagReader {
 public:
  // `range` is a part of the source's text that starts with a code line.
  TagReader(const SourceText& source, std::string_view range);

  // The next tag; false at the end of the range. Throws Error with the line for a bad group code and for a
  // pair that is cut in the middle.
  bool Next(Tag& tag);

  // Start of the code line of the tag that Next gave last, and the byte behind its value line.
  const char* TagBegin() const { return tagBegin_; }
  const char* TagEnd() const { return at_; }

  // Value of a tag, throws Error with its line when it is malformed (TagValue.h).
  double Real(const Tag& tag) const;
  std::int64_t Integer(const Tag& tag) const;

 private:
  bool ReadCode(int& code);
  [[noreturn]] void FailAtCode() const;

  const SourceText* source_;
  const char* at_;
  const char* end_;
  const char* tagBegin_;
};

}  // namespace teskarlt::dxf
