// CodePage.h - texts in the bytes of an 8-bit or double-byte code page, to UTF-8 and back.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

// The Windows number of a code page by its name in a drawing ("ANSI_1250", "ansi_1252", "dos850", "8859_2",
// "big5"...; case does not matter); nothing for an unknown name.
std::optional<int> CodePageNumber(std::string_view name);

// Conversions are strict and the same on every system. A byte that the page does not define stands for the
// character of its own number (U+0080 to U+00FF) and comes back as that byte, unless it leads the pairs of a
// double-byte page.
class CodePage {
 public:
  // Throws Error (platform/Error.h) when the system does not know the page.
  explicit CodePage(int number);

  int Number() const;

  // Takes every text.
  std::string ToUtf8(std::string_view bytes) const;

  // Throws Error, naming the character, for one that the page does not have, and for malformed UTF-8.
  std::string FromUtf8(std::string_view utf8) const;

  // Puts the bytes of the character behind the text; false when the page does not have it.
  bool Append(char32_t character, std::string& bytes) const;

 private:
  struct Tables;
  std::shared_ptr<const Tables> tables_;
};

// The code page of that name; nothing when the name or, to this system, the page is not known.
std::optional<CodePage> FindCodePage(std::string_view name);

// Steps through UTF-8: the character at `position`, which moves behind it. Nothing, and one byte further,
// when the bytes there are malformed. `position` is below the text's size.
std::optional<char32_t> NextCharacter(std::string_view utf8, std::size_t& position);

// Puts a character behind the text.
void AppendUtf8(std::string& text, char32_t character);

}  // namespace platform
