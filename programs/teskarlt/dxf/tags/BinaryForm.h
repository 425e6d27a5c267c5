// BinaryForm.h - drawings whose tags are bytes instead of lines, read as text and written as bytes again.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/dxf/tags/Splice.h"

namespace teskarlt::dxf {

// Whether the bytes begin with the 22 bytes that every binary drawing begins with.
bool IsBinaryForm(std::string_view bytes);

// A tag as it lies in a binary drawing. The views are on the drawing's bytes.
struct BinaryTag {
  int code = 0;
  std::string_view value;  // without the zero byte of a text and the length byte of a chunk
};

// Walks the tags of a binary drawing up to its EOF; what stands behind it is not looked at. Group codes have
// one byte up to R12 (255 is followed by a code of two) and two bytes since; the first tag shows which.
// Numbers are little-endian.
class BinaryReader {
 public:
  // `name` stands for the file in messages. Both must outlive the reader. Asks for IsBinaryForm(bytes).
  BinaryReader(const std::string& name, std::string_view bytes);

  // The next tag; false behind EOF. Throws Error with the offset of the byte, from 0, for a tag that is cut,
  // for a group code that nothing is known about and for a drawing without EOF.
  bool Next(BinaryTag& tag);

  // Offset of the byte behind the tag that Next gave last.
  std::size_t End() const { return at_; }
  bool HasShortCodes() const { return hasShortCodes_; }

 private:
  int ReadCode();
  std::string_view ReadBytes(std::size_t size);
  std::string_view ReadText();
  [[noreturn]] void Fail(const std::string& message) const;

  const std::string& name_;
  std::string_view bytes_;
  std::size_t at_;
  std::size_t tagBegin_;
  bool hasShortCodes_;
  bool isAtEnd_ = false;
};

// The tags as lines of text, up to EOF: two lines a tag. A line end in a text becomes ^J or ^M, a chunk
// becomes hexadecimal digits; a number gets the shortest digits that are read back as the same. Throws Error
// as BinaryReader does.
std::string TextOfBinary(const std::string& name, std::string_view bytes);

// Offsets in the bytes of the tags that hold the bytes at `textOffsets`, in ascending order, of the text.
std::vector<std::size_t> OffsetsInBinary(const std::string& name, std::string_view bytes,
                                         std::string_view text, std::span<const std::size_t> textOffsets);

// Lines of text, whole tags, as bytes. Throws Error for a value that its group code cannot hold.
void AppendBinary(const std::string& name, std::string_view tags, bool hasShortCodes, std::string& out);

// Gives the bytes with the splices, which lie in the text, to `sink`. Only tags that a splice touches are
// written anew; all others keep their bytes. The splices are in ascending order and no two in one tag.
void WriteBinary(const std::string& name, std::string_view bytes, std::string_view text,
                 const std::vector<Splice>& splices, const std::function<void(std::string_view)>& sink);

}  // namespace teskarlt::dxf
