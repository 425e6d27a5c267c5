// CodePageDecoder.cpp - code pages by the C library's iconv.
#include "platform/CodePageDecoder.h"

#include <cstdint>
#include <string>

#include <iconv.h>

namespace platform {
namespace {

constexpr int ISO_8859_BASE = 28590;
constexpr int ISO_8859_LAST = 28605;
constexpr int MAC_ROMAN = 10000;

std::string NameOf(int number) {
  if (number == MAC_ROMAN) return "MACINTOSH";
  if (number > ISO_8859_BASE && number <= ISO_8859_LAST)
    return "ISO-8859-" + std::to_string(number - ISO_8859_BASE);
  return "CP" + std::to_string(number);
}

}  // namespace

CodePageDecoder::CodePageDecoder(int number)
    : number_(number), converter_(iconv_open("UTF-32LE", NameOf(number).c_str())) {}

CodePageDecoder::~CodePageDecoder() {
  if (IsKnown()) iconv_close(converter_);
}

bool CodePageDecoder::IsKnown() const {
  // The C library's mark for a page that it does not have is -1.
  return number_ > 0 && reinterpret_cast<std::intptr_t>(converter_) != -1;
}

std::optional<char32_t> CodePageDecoder::Decode(std::string_view bytes) const {
  iconv(converter_, nullptr, nullptr, nullptr, nullptr);
  char input[2] = {};
  bytes.copy(input, sizeof input);
  char32_t output[2] = {};
  char* from = input;
  std::size_t fromLeft = bytes.size();
  char* to = reinterpret_cast<char*>(output);
  std::size_t toLeft = sizeof output;
  if (iconv(converter_, &from, &fromLeft, &to, &toLeft) != 0) return std::nullopt;
  // Some pages keep a character back until they see whether an accent follows.
  if (iconv(converter_, nullptr, nullptr, &to, &toLeft) != 0) return std::nullopt;
  return toLeft == sizeof output - sizeof *output ? std::optional(output[0]) : std::nullopt;
}

std::optional<char32_t> CodePageDecoder::DecodePair(std::string_view bytes) const {
  return Decode(bytes.substr(0, 1)) ? std::nullopt : Decode(bytes);
}

}  // namespace platform
