// BinaryForm.cpp - tags as bytes: their codes, their values, and the way to lines of text and back.
#include "teskarlt/dxf/tags/BinaryForm.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <limits>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Digits.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/ValueKind.h"

namespace teskarlt::dxf {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view SENTINEL = "AutoCAD Binary DXF\r\n\x1A\0"sv;
constexpr std::size_t BITS_OF_BYTE = 8;
constexpr std::size_t BYTES_OF_LONG_CODE = 2;
constexpr int LONG_CODE_FOLLOWS = 255;
constexpr std::size_t LONGEST_CHUNK = 255;

enum class Form { Unknown, Text, Chunk, Real, Integer8, Integer16, Integer32, Integer64 };

// Of codes that files have and entities do not: comments, and what is left of the texts from 100 on.
Form FormOfOther(int code) {
  constexpr int FIRST_TEXT = 100;
  constexpr int LAST_TEXT = 109;
  return code == CODE_COMMENT || (code >= FIRST_TEXT && code <= LAST_TEXT) ? Form::Text : Form::Unknown;
}

// Unknown codes are refused: how long their values are is not known.
Form FormOf(int code) {
  switch (KindOf(code)) {
    case ValueKind::None:
      return FormOfOther(code);
    case ValueKind::Text:
    case ValueKind::Handle:
      return Form::Text;
    case ValueKind::Binary:
      return Form::Chunk;
    case ValueKind::Point:
    case ValueKind::Real:
      return Form::Real;
    case ValueKind::Boolean:
      return Form::Integer8;
    case ValueKind::Integer16:
      return Form::Integer16;
    case ValueKind::Integer32:
      return Form::Integer32;
    case ValueKind::Integer64:
      return Form::Integer64;
  }
  return Form::Unknown;
}

std::size_t SizeOf(Form form) {
  switch (form) {
    case Form::Integer8:
      return sizeof(std::uint8_t);
    case Form::Integer16:
      return sizeof(std::int16_t);
    case Form::Integer32:
      return sizeof(std::int32_t);
    case Form::Real:
    case Form::Integer64:
      return sizeof(std::int64_t);
    case Form::Unknown:
    case Form::Text:
    case Form::Chunk:
      break;
  }
  return 0;
}

std::uint64_t BitsOf(std::string_view value) {
  std::uint64_t bits = 0;
  for (std::size_t i = value.size(); i-- > 0;)
    bits = bits << BITS_OF_BYTE | static_cast<unsigned char>(value[i]);
  return bits;
}

void AppendBits(std::string& out, std::uint64_t bits, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i)
    out += static_cast<char>(bits >> (i * BITS_OF_BYTE) & std::numeric_limits<unsigned char>::max());
}

std::int64_t IntegerOf(Form form, std::uint64_t bits) {
  if (form == Form::Integer16) return static_cast<std::int16_t>(bits);
  if (form == Form::Integer32) return static_cast<std::int32_t>(bits);
  return static_cast<std::int64_t>(bits);
}

template <typename Number>
void AppendNumber(std::string& out, Number number) {
  char digits[LONGEST_NUMBER];
  out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

void AppendLine(std::string& out, std::string_view text) {
  for (const char byte : text) {
    if (byte == '\n') {
      out += "^J";
    } else if (byte == '\r') {
      out += "^M";
    } else {
      out += byte;
    }
  }
}

void AppendHexadecimal(std::string& out, std::string_view chunk) {
  constexpr std::string_view DIGITS = "0123456789ABCDEF";
  for (const char byte : chunk) {
    const std::size_t bits = static_cast<unsigned char>(byte);
    out += DIGITS[bits / HEXADECIMAL];
    out += DIGITS[bits % HEXADECIMAL];
  }
}

void AppendText(std::string& out, const BinaryTag& tag) {
  AppendNumber(out, tag.code);
  out += '\n';
  const Form form = FormOf(tag.code);
  if (form == Form::Text) {
    AppendLine(out, tag.value);
  } else if (form == Form::Chunk) {
    AppendHexadecimal(out, tag.value);
  } else if (form == Form::Real) {
    AppendNumber(out, std::bit_cast<double>(BitsOf(tag.value)));
  } else {
    AppendNumber(out, IntegerOf(form, BitsOf(tag.value)));
  }
  out += '\n';
}

[[noreturn]] void Refuse(const std::string& name, int code, std::string_view value) {
  throw Error(fmt::format("group {} of a binary drawing cannot hold {}", code, Quoted(value)),
              {.file = name, .value = std::string(value)});
}

void AppendCode(std::string& out, int code, bool hasShortCodes) {
  if (hasShortCodes && code < LONG_CODE_FOLLOWS) {
    out += static_cast<char>(code);
    return;
  }
  if (hasShortCodes) out += static_cast<char>(LONG_CODE_FOLLOWS);
  AppendBits(out, static_cast<std::uint64_t>(code), BYTES_OF_LONG_CODE);
}

bool AppendChunk(std::string& out, std::string_view digits) {
  constexpr std::size_t DIGITS_OF_BYTE = 2;
  if (digits.size() % DIGITS_OF_BYTE != 0 || digits.size() / DIGITS_OF_BYTE > LONGEST_CHUNK) return false;
  out += static_cast<char>(digits.size() / DIGITS_OF_BYTE);
  for (; !digits.empty(); digits.remove_prefix(DIGITS_OF_BYTE)) {
    const char* const end = digits.data() + DIGITS_OF_BYTE;
    unsigned char byte = 0;
    if (std::from_chars(digits.data(), end, byte, HEXADECIMAL).ptr != end) return false;
    out += static_cast<char>(byte);
  }
  return true;
}

bool AppendInteger(std::string& out, Form form, std::string_view digits) {
  const auto value = ParseInteger(digits);
  if (!value) return false;
  const auto bits = static_cast<std::uint64_t>(*value);
  const bool isByte = *value >= 0 && *value <= std::numeric_limits<std::uint8_t>::max();
  const bool fits = form == Form::Integer8 ? isByte : IntegerOf(form, bits) == *value;
  if (fits) AppendBits(out, bits, SizeOf(form));
  return fits;
}

bool AppendReal(std::string& out, std::string_view digits) {
  const auto value = ParseReal(digits);
  if (value) AppendBits(out, std::bit_cast<std::uint64_t>(*value), sizeof *value);
  return value.has_value();
}

bool AppendValue(std::string& out, int code, std::string_view value) {
  switch (const Form form = FormOf(code)) {
    case Form::Unknown:
      return false;
    case Form::Text:
      out.append(value) += '\0';
      return true;
    case Form::Chunk:
      return AppendChunk(out, value);
    case Form::Real:
      return AppendReal(out, value);
    default:
      return AppendInteger(out, form, value);
  }
}

// Offset behind the line that begins at `at`.
std::size_t BehindLine(std::string_view text, std::size_t at) {
  const auto end = text.find('\n', at);
  return end == std::string_view::npos ? text.size() : end + 1;
}

// Walks the tags of a drawing in both its forms at once.
class Pairs {
 public:
  Pairs(const std::string& name, std::string_view bytes, std::string_view text)
      : reader_(name, bytes), text_(text), binaryAt_(SENTINEL.size()) {}

  // To the tag that holds the byte at `offset` of the text, or begins there.
  void GoTo(std::size_t offset) {
    while (textAt_ < text_.size() && TextEnd() <= offset)
      Step();
  }

  void Step() {
    const std::size_t end = TextEnd();
    BinaryTag tag;
    reader_.Next(tag);
    textAt_ = end;
    binaryAt_ = reader_.End();
  }

  std::size_t TextBegin() const { return textAt_; }
  std::size_t TextEnd() const { return BehindLine(text_, BehindLine(text_, textAt_)); }
  std::size_t BinaryBegin() const { return binaryAt_; }
  bool HasShortCodes() const { return reader_.HasShortCodes(); }

 private:
  BinaryReader reader_;
  std::string_view text_;
  std::size_t textAt_ = 0;
  std::size_t binaryAt_;
};

}  // namespace

bool IsBinaryForm(std::string_view bytes) {
  return bytes.starts_with(SENTINEL);
}

BinaryReader::BinaryReader(const std::string& name, std::string_view bytes)
    : name_(name), bytes_(bytes), at_(SENTINEL.size()), tagBegin_(at_) {
  // The first tag is 0 SECTION, or a comment. A short code 0 is followed by a letter.
  const std::string_view begin = bytes.substr(at_, BYTES_OF_LONG_CODE);
  const std::uint64_t code = BitsOf(begin);
  hasShortCodes_ = code != CODE_TYPE && code != CODE_COMMENT;
}

bool BinaryReader::Next(BinaryTag& tag) {
  if (isAtEnd_) return false;
  tagBegin_ = at_;
  if (at_ == bytes_.size()) Fail("the file is cut short: EOF is missing at its end");
  tag.code = ReadCode();
  const Form form = FormOf(tag.code);
  if (form == Form::Unknown) Fail(fmt::format("{} is not a group code", tag.code));
  if (form == Form::Text) {
    tag.value = ReadText();
  } else if (form == Form::Chunk) {
    tag.value = ReadBytes(static_cast<std::size_t>(BitsOf(ReadBytes(1))));
  } else {
    tag.value = ReadBytes(SizeOf(form));
  }
  isAtEnd_ = tag.code == CODE_TYPE && tag.value == TYPE_FILE_END;
  return true;
}

int BinaryReader::ReadCode() {
  if (!hasShortCodes_) return static_cast<int>(BitsOf(ReadBytes(BYTES_OF_LONG_CODE)));
  const int code = static_cast<int>(BitsOf(ReadBytes(1)));
  return code == LONG_CODE_FOLLOWS ? static_cast<int>(BitsOf(ReadBytes(BYTES_OF_LONG_CODE))) : code;
}

std::string_view BinaryReader::ReadBytes(std::size_t size) {
  if (bytes_.size() - at_ < size) Fail("the file is cut short in the tag that begins here");
  at_ += size;
  return bytes_.substr(at_ - size, size);
}

std::string_view BinaryReader::ReadText() {
  const auto end = bytes_.find('\0', at_);
  if (end == std::string_view::npos) Fail("the file is cut short in the tag that begins here");
  const std::string_view text = bytes_.substr(at_, end - at_);
  at_ = end + 1;
  return text;
}

void BinaryReader::Fail(const std::string& message) const {
  throw Error(message, {.file = name_, .unit = ErrorPlace::Unit::Byte, .position = tagBegin_});
}

std::string TextOfBinary(const std::string& name, std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() * 5 / 2);  // most drawings need less; growing would need as much again
  BinaryReader reader(name, bytes);
  for (BinaryTag tag; reader.Next(tag);)
    AppendText(text, tag);
  return text;
}

std::vector<std::size_t> OffsetsInBinary(const std::string& name, std::string_view bytes,
                                         std::string_view text, std::span<const std::size_t> textOffsets) {
  std::vector<std::size_t> offsets;
  Pairs pairs(name, bytes, text);
  for (const std::size_t offset : textOffsets) {
    pairs.GoTo(offset);
    offsets.push_back(pairs.BinaryBegin());
  }
  return offsets;
}

void AppendBinary(const std::string& name, std::string_view tags, bool hasShortCodes, std::string& out) {
  for (std::size_t at = 0; at < tags.size();) {
    const std::size_t valueAt = BehindLine(tags, at);
    const std::size_t end = BehindLine(tags, valueAt);
    const std::string_view value = tags.substr(valueAt, end - valueAt - 1);
    const auto code = static_cast<int>(ParseInteger(tags.substr(at, valueAt - at - 1)).value_or(-1));
    AppendCode(out, code, hasShortCodes);
    if (!AppendValue(out, code, value)) Refuse(name, code, value);
    at = end;
  }
}

void WriteBinary(const std::string& name, std::string_view bytes, std::string_view text,
                 const std::vector<Splice>& splices, const std::function<void(std::string_view)>& sink) {
  Pairs pairs(name, bytes, text);
  std::size_t kept = 0;  // offset of the first byte that is not written yet
  const auto encode = [&](std::string_view tags) {
    std::string encoded;
    AppendBinary(name, tags, pairs.HasShortCodes(), encoded);
    sink(encoded);
  };
  for (const Splice& splice : splices) {
    const auto begin = static_cast<std::size_t>(splice.begin - text.data());
    const auto end = static_cast<std::size_t>(splice.end - text.data());
    pairs.GoTo(begin);
    sink(bytes.substr(kept, pairs.BinaryBegin() - kept));
    std::string tags(text.substr(pairs.TextBegin(), begin - pairs.TextBegin()));
    tags += splice.text;
    pairs.GoTo(end);
    if (pairs.TextBegin() < end) {
      tags += text.substr(end, pairs.TextEnd() - end);
      pairs.Step();
    }
    encode(tags);
    if (splice.more != nullptr) std::for_each(splice.more->begin(), splice.more->end(), encode);
    kept = pairs.BinaryBegin();
  }
  sink(bytes.substr(kept));
}

}  // namespace teskarlt::dxf
