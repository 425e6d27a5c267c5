// CodePageDecoder.cpp - code pages by the system's own conversion.
#include "platform/CodePageDecoder.h"

#include <windows.h>

namespace platform {
namespace {

constexpr int UNKNOWN = -1;
constexpr wchar_t FIRST_PRIVATE = 0xE000;
constexpr wchar_t LAST_PRIVATE = 0xF8FF;

}  // namespace

CodePageDecoder::CodePageDecoder(int number)
    : number_(IsValidCodePage(static_cast<UINT>(number)) != 0 ? number : UNKNOWN) {}

CodePageDecoder::~CodePageDecoder() = default;

bool CodePageDecoder::IsKnown() const {
  return number_ != UNKNOWN;
}

std::optional<char32_t> CodePageDecoder::Decode(std::string_view bytes) const {
  wchar_t output[2];
  const int length = MultiByteToWideChar(static_cast<UINT>(number_), MB_ERR_INVALID_CHARS, bytes.data(),
                                         static_cast<int>(bytes.size()), output, 2);
  // Undefined bytes of some pages become private characters here.
  if (length != 1 || (output[0] >= FIRST_PRIVATE && output[0] <= LAST_PRIVATE)) return std::nullopt;
  return output[0];
}

std::optional<char32_t> CodePageDecoder::DecodePair(std::string_view bytes) const {
  if (IsDBCSLeadByteEx(static_cast<UINT>(number_), static_cast<BYTE>(bytes[0])) == 0) return std::nullopt;
  return Decode(bytes);
}

}  // namespace platform
