// TextCodec.cpp - escapes and code pages of a drawing's texts.
#include "teskarlt/dxf/tags/TextCodec.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/Names.h"

namespace teskarlt::dxf {
namespace {

constexpr char32_t REPLACEMENT = 0xFFFD;
constexpr std::string_view UNICODE_ESCAPE = "\\U+";
constexpr std::size_t UNICODE_DIGITS = 4;
constexpr char32_t FIRST_PAIRED = 0x10000;  // characters from here on are escaped as two surrogates
constexpr char32_t HIGH_SURROGATE = 0xD800;
constexpr char32_t LOW_SURROGATE = 0xDC00;
constexpr char32_t FIRST_BEYOND_ASCII = 0x80;
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
  return unit >= HIGH_SURROGATE && unit < LOW_SURROGATE;
}

bool IsLowSurrogate(char32_t unit) {
  return unit >= LOW_SURROGATE && unit < 0xE000;
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
      platform::AppendUtf8(out, FIRST_PAIRED + ((*unit - HIGH_SURROGATE) << 10) + (*low - LOW_SURROGATE));
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

void AppendUnicodeEscape(char32_t character, std::string& out) {
  if (character >= FIRST_PAIRED) {
    const char32_t distance = character - FIRST_PAIRED;
    AppendUnicodeEscape(HIGH_SURROGATE + (distance >> 10), out);
    AppendUnicodeEscape(LOW_SURROGATE + (distance & 0x3FF), out);
  } else {
    fmt::format_to(std::back_inserter(out), "{}{:04X}", UNICODE_ESCAPE, std::uint32_t{character});
  }
}

// The text with escapes for what would end it or be read as an escape.
std::string WithEscapes(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (std::size_t at = 0; at < utf8.size(); ++at) {
    const char byte = utf8[at];
    if (byte >= '\0' && byte < ' ') {
      out += '^';
      out += static_cast<char>(byte + FIRST_CONTROL_LETTER);
    } else if (byte == '^') {
      out += "^ ";
    } else if (byte == '\\' && UnicodeEscape(utf8.substr(at))) {
      AppendUnicodeEscape(U'\\', out);
    } else {
      out += byte;
    }
  }
  return out;
}

// The text in bytes of the page; what the page, or all of it where there is none, lacks beyond ASCII is
// escaped.
std::string InPage(std::string_view utf8, const platform::CodePage* page) {
  std::string out;
  for (std::size_t at = 0; at < utf8.size();) {
    const char32_t character = *platform::NextCharacter(utf8, at);
    if (character < FIRST_BEYOND_ASCII) {
      out += static_cast<char>(character);
    } else if (page == nullptr || !page->Append(character, out)) {
      AppendUnicodeEscape(character, out);
    }
  }
  return out;
}

bool IsUtf8(std::string_view bytes) {
  return IsAscii(bytes) || HoldsUtf8(bytes);
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

TextCodec::TextCodec(std::string pageName, bool isUtf8) : pageName_(std::move(pageName)), isUtf8_(isUtf8) {}

const platform::CodePage& TextCodec::Page() const {
  if (page_) return *page_;
  page_ = platform::FindCodePage(pageName_);
  if (!page_) {
    isPageAssumed_ = true;
    page_ = platform::FindCodePage(DEFAULT_CODE_PAGE);
  }
  return *page_;
}

std::string TextCodec::Decode(std::string_view raw) const {
  if (IsAscii(raw)) return ResolveEscapes(raw);
  return ResolveEscapes(isUtf8_ ? WithoutMalformed(raw) : Page().ToUtf8(raw));
}

std::string TextCodec::Encode(std::string_view utf8) const {
  if (!IsUtf8(utf8)) throw Error("the text is not UTF-8", {.value = std::string(utf8)});
  std::string escaped = WithEscapes(utf8);
  if (isUtf8_ || IsAscii(escaped)) return escaped;
  std::string raw = InPage(escaped, &Page());
  // A drawing whose only texts beyond ASCII are UTF-8 by chance would be taken for one in UTF-8.
  return HoldsUtf8(raw) ? InPage(escaped, nullptr) : raw;
}

std::string TextCodec::Note() const {
  if (!isPageAssumed_) return {};
  return fmt::format("the code page \"{}\" is not known; texts beyond ASCII are taken to be in {}", pageName_,
                     DEFAULT_CODE_PAGE);
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
