// CodePage.cpp - code pages as tables, filled once from what the system knows about each byte.
#include "platform/CodePage.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <unordered_map>

#include "platform/CodePageDecoder.h"
#include "platform/Error.h"

namespace platform {
namespace {

constexpr unsigned FIRST_HIGH_BYTE = 0x80;
constexpr unsigned BYTE_VALUES = 0x100;
constexpr char32_t LAST_CHARACTER = 0x10FFFF;

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < FIRST_HIGH_BYTE; });
}

bool IsSurrogate(char32_t character) {
  return character >= 0xD800 && character <= 0xDFFF;
}

char LowerAscii(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

std::string LowerAscii(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char byte) { return LowerAscii(byte); });
  return lower;
}

std::string CharacterName(char32_t character) {
  char digits[8];
  const auto end = std::to_chars(digits, digits + sizeof digits, std::uint32_t{character}, 16).ptr;
  std::string hex(digits, end);
  std::transform(hex.begin(), hex.end(), hex.begin(),
                 [](char digit) { return digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit; });
  std::string name = "\"";
  AppendUtf8(name, character);
  return name + "\" (U+" + std::string(hex.size() < 4 ? 4 - hex.size() : 0, '0') + hex + ")";
}

bool IsDoubleByte(int number) {
  constexpr int PAGES[] = {932, 936, 949, 950, 1361};
  return std::find(std::begin(PAGES), std::end(PAGES), number) != std::end(PAGES);
}

}  // namespace

struct CodePage::Tables {
  int number = 0;
  char32_t single[BYTE_VALUES] = {};               // the character of a byte; 0 for a byte that leads a pair
  std::unordered_map<unsigned, char32_t> pairs;    // of lead byte * 256 + second byte
  std::unordered_map<char32_t, unsigned> bytesOf;  // the other way: a byte, or such a pair
};

std::optional<int> CodePageNumber(std::string_view name) {
  const std::string lower = LowerAscii(name);
  struct Named {
    std::string_view name;
    int number;
  };
  constexpr Named NAMED[] = {{"ascii", 1252},  {"mac-roman", 10000}, {"big5", 950},
                             {"ksc5601", 949}, {"johab", 1361},      {"gb2312", 936}};
  for (const Named& named : NAMED)
    if (lower == named.name) return named.number;
  constexpr Named PREFIXES[] = {{"ansi_", 0},        {"ansi", 0},         {"dos", 0},
                                {"cp", 0},           {"windows-", 0},     {"iso-8859-", 28590},
                                {"iso8859-", 28590}, {"iso8859_", 28590}, {"8859_", 28590}};
  for (const Named& prefix : PREFIXES) {
    if (!lower.starts_with(prefix.name)) continue;
    int digits = 0;
    const char* const first = lower.data() + prefix.name.size();
    const char* const last = lower.data() + lower.size();
    const auto parsed = std::from_chars(first, last, digits);
    if (parsed.ec == std::errc() && parsed.ptr == last && digits > 0) return prefix.number + digits;
  }
  return std::nullopt;
}

CodePage::CodePage(int number) {
  auto tables = std::make_shared<Tables>();
  tables->number = number;
  const CodePageDecoder decoder(number);
  if (!decoder.IsKnown()) {
    throw Error("the code page " + std::to_string(number) + " is not known to this system",
                {.value = std::to_string(number)});
  }
  bool leadsPairs[BYTE_VALUES] = {};
  for (unsigned byte = 0; byte < BYTE_VALUES; ++byte) {
    const char text[] = {static_cast<char>(byte)};
    // Control characters and ASCII are the same in every page that drawings use, yen signs of 932 included.
    const char32_t found = byte < FIRST_HIGH_BYTE ? byte : decoder.Decode({text, 1}).value_or(byte);
    tables->single[byte] = found;
  }
  for (unsigned lead = FIRST_HIGH_BYTE; IsDoubleByte(number) && lead < BYTE_VALUES; ++lead) {
    for (unsigned second = 0x30; second < BYTE_VALUES; ++second) {
      const char text[] = {static_cast<char>(lead), static_cast<char>(second)};
      const auto found = decoder.DecodePair({text, 2});
      if (!found) continue;
      tables->pairs.emplace(lead * BYTE_VALUES + second, *found);
      tables->bytesOf.emplace(*found, lead * BYTE_VALUES + second);
      leadsPairs[lead] = true;
    }
  }
  // A byte that leads pairs would form one with what follows it. Of several for a character, the lowest
  // counts.
  for (unsigned byte = BYTE_VALUES; byte-- > 0;)
    if (!leadsPairs[byte]) tables->bytesOf.insert_or_assign(tables->single[byte], byte);
  tables_ = std::move(tables);
}

int CodePage::Number() const {
  return tables_->number;
}

std::string CodePage::ToUtf8(std::string_view bytes) const {
  if (IsAscii(bytes)) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size() * 2);
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    if (byte >= FIRST_HIGH_BYTE && at + 1 < bytes.size()) {
      const auto pair = tables_->pairs.find(byte * BYTE_VALUES + static_cast<unsigned char>(bytes[at + 1]));
      if (pair != tables_->pairs.end()) {
        AppendUtf8(text, pair->second);
        ++at;
        continue;
      }
    }
    AppendUtf8(text, tables_->single[byte]);
  }
  return text;
}

std::string CodePage::FromUtf8(std::string_view utf8) const {
  if (IsAscii(utf8)) return std::string(utf8);
  std::string bytes;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto character = NextCharacter(utf8, at);
    if (!character) throw Error("the text is not UTF-8", {.value = std::string(utf8)});
    if (Append(*character, bytes)) continue;
    const std::string name = CharacterName(*character);
    throw Error("the character " + name + " does not exist in code page " + std::to_string(tables_->number),
                {.value = name});
  }
  return bytes;
}

bool CodePage::Append(char32_t character, std::string& bytes) const {
  const auto found = tables_->bytesOf.find(character);
  if (found == tables_->bytesOf.end()) return false;
  if (found->second >= BYTE_VALUES) bytes += static_cast<char>(found->second / BYTE_VALUES);
  bytes += static_cast<char>(found->second % BYTE_VALUES);
  return true;
}

std::optional<CodePage> FindCodePage(std::string_view name) {
  const std::optional<int> number = CodePageNumber(name);
  if (!number || !CodePageDecoder(*number).IsKnown()) return std::nullopt;
  return CodePage(*number);
}

std::optional<char32_t> NextCharacter(std::string_view utf8, std::size_t& position) {
  const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(utf8[at]); };
  const unsigned lead = byteAt(position++);
  if (lead < 0x80) return lead;
  const unsigned following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || position + following > utf8.size()) return std::nullopt;
  char32_t character = lead & (0x3FU >> following);
  for (unsigned step = 0; step < following; ++step) {
    const unsigned byte = byteAt(position + step);
    if ((byte & 0xC0U) != 0x80) return std::nullopt;
    character = (character << 6) | (byte & 0x3FU);
  }
  constexpr char32_t SMALLEST[] = {0, 0x80, 0x800, 0x10000};
  if (character < SMALLEST[following] || character > LAST_CHARACTER || IsSurrogate(character))
    return std::nullopt;
  position += following;
  return character;
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto add = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (character < 0x80) {
    add(character);
  } else if (character < 0x800) {
    add(0xC0 | (character >> 6));
    add(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    add(0xE0 | (character >> 12));
    add(0x80 | ((character >> 6) & 0x3F));
    add(0x80 | (character & 0x3F));
  } else {
    add(0xF0 | (character >> 18));
    add(0x80 | ((character >> 12) & 0x3F));
    add(0x80 | ((character >> 6) & 0x3F));
    add(0x80 | (character & 0x3F));
  }
}

}  // namespace platform
