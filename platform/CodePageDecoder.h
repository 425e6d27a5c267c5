// CodePageDecoder.h - what the system knows about the bytes
// of a code page; CodePage.h makes its tables from it.
#pragma once

#include <optional>
#include <string_view>

namespace platform {

class CodePageDecoder {
 public:
  explicit CodePageDecoder(int number);
  ~CodePageDecoder();  // NOLINT(performance-trivially-destructible): some systems have a converter to close
  CodePageDecoder(const CodePageDecoder&) = delete;
  CodePageDecoder& operator=(const CodePageDecoder&) = delete;

  bool IsKnown() const;

  // The character of one byte, or of two that belong together;
  // nothing for bytes without a meaning of their own.
  std::optional<char32_t> Decode(std::string_view bytes) const;
  std::optional<char32_t> DecodePair(std::string_view bytes) const;

 private:
  int number_;
  void* converter_ = nullptr;  // of systems that have one for each page
};

}  // namespace platform
