// TagReader.h - walks the tags of a range of a drawing's bytes.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/Tag.h"

namespace teskarlt::dxf {

// Comments (999) are passed over. The source must outlive the reader.
class TagReader {
 public:
  // `range` is a part of the source's text that starts with a code line.
  TagReader(const SourceText& source, std::string_view range)
      : source_(&source), at_(range.data()), end_(range.data() + range.size()), tagBegin_(range.data()) {}

  // The next tag; false at the end of the range. Throws Error with the line for a bad group code and for a
  // pair that is cut in the middle.
  bool Next(Tag& tag);

  // Start of the code line of the tag that Next gave last, and the byte behind its value line.
  const char* TagBegin() const { return tagBegin_; }
  const char* TagEnd() const { return at_; }

  // Value of a tag; throws Error with its line when it is malformed (TagValue.h).
  double Real(const Tag& tag) const;
  std::int64_t Integer(const Tag& tag) const;

 private:
  int ReadCode();
  std::string_view ReadValue();
  [[noreturn]] void FailAtCode() const;
  [[noreturn]] void FailAtCut() const;

  const SourceText* source_;
  const char* at_;
  const char* end_;
  const char* tagBegin_;
};

// A town is some fifty million lines: these three are the inner loop of every pass over a drawing.
inline int TagReader::ReadCode() {
  const char* at = at_;
  while (at != end_ && (*at == ' ' || *at == '\t'))
    ++at;
  const bool isNegative = at != end_ && *at == '-';
  if (isNegative) ++at;
  constexpr int MOST_DIGITS = 6;
  const char* const digits = at;
  int code = 0;
  while (at != end_ && *at >= '0' && *at <= '9' && at - digits < MOST_DIGITS)
    code = code * 10 + (*at++ - '0');
  if (at == digits) FailAtCode();
  while (at != end_ && (*at == ' ' || *at == '\t' || *at == '\r'))
    ++at;
  if (at == end_) FailAtCut();
  if (*at != '\n') FailAtCode();
  at_ = at + 1;
  return isNegative ? -code : code;
}

inline std::string_view TagReader::ReadValue() {
  if (at_ == end_) FailAtCut();
  const char* const begin = at_;
  const auto* stop = static_cast<const char*>(std::memchr(at_, '\n', static_cast<std::size_t>(end_ - at_)));
  at_ = stop == nullptr ? end_ : stop + 1;
  if (stop == nullptr) stop = end_;
  if (stop != begin && stop[-1] == '\r') --stop;
  return {begin, static_cast<std::size_t>(stop - begin)};
}

inline bool TagReader::Next(Tag& tag) {
  do {
    if (at_ == end_) return false;
    tagBegin_ = at_;
    tag.code = ReadCode();
    tag.value = ReadValue();
  } while (tag.code == CODE_COMMENT);
  return true;
}

}  // namespace teskarlt::dxf
