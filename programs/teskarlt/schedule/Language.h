// Language.h - the languages in which a schedule can be written; each has its words in a file of its own.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace teskarlt::schedule {

struct Language {
  std::string_view name;  // for users and in pages, "en"
  char decimalMark;
  std::span<const std::pair<std::string_view, std::string_view>> words;  // keys and UTF-8 texts

  // The text of that key. A key that is missing gives itself.
  std::string operator[](std::string_view key) const;
};

extern const Language ENGLISH;
extern const Language CZECH;
extern const Language GERMAN;
inline constexpr std::array<const Language*, 3> LANGUAGES = {&ENGLISH, &CZECH, &GERMAN};

// The language of that name, which is one of them.
const Language& LanguageNamed(std::string_view name);

// What an opening code says of the sash: "side-hung, hinges on the left seen from inside, opens outward". A
// code that stands for nothing is given as it is.
std::string OpeningWords(std::string_view code, const Language& language);

// Points of the compass, "N" or "NNE, SSW", in the letters of the language.
std::string CompassWords(std::string_view points, const Language& language);

}  // namespace teskarlt::schedule
