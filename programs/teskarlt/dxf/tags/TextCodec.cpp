// TextCodec.cpp - escapes and code pages of a drawing's texts.
#include "teskarlt/dxf/tags/TextCodec.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/Error.h"

namespace teskarlt::dxf {
namespace {

constexpr char32_t REPLACEMENT = 0xFFFD;
constexpr std::string_view UNICODE_ESCAPE = "\\U+";
constexpr std::size_t UNICODE_DIGITS = 4;
constexpr std::string_view ESCAPED_BACKSLASH = "\\U+005C";
constexpr char FIRST_CONTROL_LETTER = '@';  // ^@ is U+0000
constexpr char LAST_CONTROL_LETTER = '_';

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) == 0; });
}

// The unit that \U+XXXX at the start of the text stands for.
std::optional<char32_t> UnicodeEscape(std::string_view text) {
  if (!text.starts_with(UNICODE_ESCAPE) || text.size() < UNICODE_ESCAPE.size() + UNICODE_DIGITS)
    return std::nullopt;
  const char* const first = text.data() + UNICODE_ESCAPE.size();
  const char* const last = first + UNICODE_DIGITS;
  std::uint32_t unit = 0;
  const auto parsed = std::from_chars(first, last, unit, 16);
  return parsed.ec == std::errc() && parsed.ptr == last ? std::optional<char32_t>(unit) : std::nullopt;
}

bool IsHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

// Resolves the escape at the start of the text, puts its character behind `out` and gives its length; 0 when
// there is none.
std::size_t ResolveUnicode(std::string_view text, std::string& out) {
  constexpr std::size_t LENGTH = UNICODE_ESCAPE.size() + UNICODE_DIGITS;
  const auto unit = UnicodeEscape(text);
  if (!unit) return 0;
  if (IsHighSurrogate(*unit)) {
    const auto low = UnicodeEscape(text.substr(LENGTH));
    if (low && IsLowSurrogate(*low)) {
      platform::AppendUtf8(out, 0x10000 + ((*unit - 0xD800) << 10) + (*low - 0xDC00));
      return 2 * LENGTH;
    }
  }
  platform::AppendUtf8(out, IsHighSurrogate(*unit) || IsLowSurrogate(*unit) ? REPLACEMENT : *unit);
  return LENGTH;
}

std::string ResolveEscapes(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const char byte = text[at];
    const char next = at + 1 < text.size() ? text[at + 1] : '\0';
    if (byte == '\\') {
      if (const std::size_t length = ResolveUnicode(text.substr(at), out); length > 0) {
        at += length;
        continue;
      }
    } else if (byte == '^' &&
               (next == ' ' || (next >= FIRST_CONTROL_LETTER && next <= LAST_CONTROL_LETTER))) {
      out += next == ' ' ? '^' : static_cast<char>(next - FIRST_CONTROL_LETTER);
      at += 2;
      continue;
    }
    out += byte;
    ++at;
  }
  return out;
}

void AppendEscaped(std::string_view text, std::string& out) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char byte = text[at];
    if (byte >= '\0' && byte < ' ') {
      out += '^';
      out += static_cast<char>(byte + FIRST_CONTROL_LETTER);
    } else if (byte == '^') {
      out += "^ ";
    } else if (byte == '\\' && UnicodeEscape(text.substr(at))) {
      out += ESCAPED_BACKSLASH;
    } else {
      out += byte;
    }
  }
}

std::string WithoutMalformed(std::string_view utf8) {
  std::string out;
  for (std::size_t at = 0; at < utf8.size();)
    platform::AppendUtf8(out, platform::NextCharacter(utf8, at).value_or(REPLACEMENT));
  return out;
}

struct CaseRange {
  char32_t first;  // small letters
  char32_t last;
  char32_t distance;  // down to the capitals
};

constexpr CaseRange CASE_RANGES[] = {{U'a', U'z', 0x20},   {0xE0, 0xF6, 0x20},   {0xF8, 0xFE, 0x20},
                                     {0x3B1, 0x3C1, 0x20}, {0x3C3, 0x3C9, 0x20}, {0x430, 0x44F, 0x20},
                                     {0x450, 0x45F, 0x50}};

// Latin Extended-A has its letters in pairs, the capital first.
bool IsSmallOfPair(char32_t character) {
  const bool evenFirst =
      (character >= 0x100 && character <= 0x137) || (character >= 0x14A && character <= 0x177);
  const bool oddFirst =
      (character >= 0x139 && character <= 0x148) || (character >= 0x179 && character <= 0x17E);
  return (evenFirst && character % 2 == 1) || (oddFirst && character % 2 == 0);
}

char32_t Capital(char32_t character) {
  for (const CaseRange& range : CASE_RANGES)
    if (character >= range.first && character <= range.last) return character - range.distance;
  return IsSmallOfPair(character) ? character - 1 : character;
}

}  // namespace

TextCodec::TextCodec(std::string fileName, std::string pageName, bool isUtf8)
    : fileName_(std::move(fileName)), pageName_(std::move(pageName)), isUtf8_(isUtf8) {}

const platform::CodePage& TextCodec::Page() const {
  if (page_) return *page_;
  const auto number = platform::CodePageNumber(pageName_);
  if (!number) {
    throw Error(fmt::format("the code page \"{}\" is not known", pageName_),
                {.file = fileName_, .value = pageName_});
  }
  try {
    page_.emplace(*number);
  } catch (const Error& error) {
    throw Error(error.Message(), {.file = fileName_, .value = error.Place().value});
  }
  return *page_;
}

std::string TextCodec::Decode(std::string_view raw) const {
  if (IsAscii(raw)) return ResolveEscapes(raw);
  return ResolveEscapes(isUtf8_ ? WithoutMalformed(raw) : Page().ToUtf8(raw));
}

void TextCodec::Encode(std::string_view bytes, std::string& raw) const {
  if (IsAscii(bytes)) return AppendEscaped(bytes, raw);
  // The second byte of a double-byte character may look like "^" or "\", so escapes are found in UTF-8.
  std::string escaped;
  AppendEscaped(Page().ToUtf8(bytes), escaped);
  raw += isUtf8_ ? escaped : Page().FromUtf8(escaped);
}

std::string TextCodec::ToCodePage(std::string_view utf8) const {
  if (IsAscii(utf8)) return std::string(utf8);
  try {
    return Page().FromUtf8(utf8);
  } catch (const Error& error) {
    throw Error(error.Message(), {.file = fileName_, .value = error.Place().value});
  }
}

std::string TextCodec::ToUtf8(std::string_view bytes) const {
  return IsAscii(bytes) ? std::string(bytes) : Page().ToUtf8(bytes);
}

bool HoldsUtf8(std::string_view bytes) {
  const auto isBeyondAscii = [](char byte) { return (static_cast<unsigned char>(byte) & 0x80U) != 0; };
  const char* const end = bytes.data() + bytes.size();
  bool holds = false;
  for (const char* at = bytes.data(); (at = std::find_if(at, end, isBeyondAscii)) != end; holds = true) {
    auto position = static_cast<std::size_t>(at - bytes.data());
    if (!platform::NextCharacter(bytes, position)) return false;
    at = bytes.data() + position;
  }
  return holds;
}

std::string FoldedName(std::string_view utf8) {
  std::string folded;
  for (std::size_t at = 0; at < utf8.size();)
    platform::AppendUtf8(folded, Capital(platform::NextCharacter(utf8, at).value_or(REPLACEMENT)));
  return folded;
}

}  // namespace teskarlt::dxf
