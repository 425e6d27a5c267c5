// Language.cpp - what a schedule says in words.
#include "teskarlt/schedule/Language.h"

#include <algorithm>
#include <cstddef>

#include "window/Choices.h"

namespace teskarlt::schedule {

namespace {

constexpr std::string_view KINDS = "BCDE";
constexpr std::string_view SUFFIXES = "IOLR";
constexpr char PIVOT = 'D';
constexpr char SIDE_HUNG = 'E';

// What stands behind a letter that is at that place of the code.
std::string_view SuffixesAt(std::string_view code, std::size_t at) {
  const std::string_view behind = code.substr(at + 1);
  return behind.substr(0, std::min(behind.find_first_not_of(SUFFIXES), behind.size()));
}

// The words of one letter with its suffixes. Hinges at a side are on the left where nothing is said of them.
std::string KindWords(char kind, std::string_view suffixes, const Language& language) {
  const auto has = [&](char suffix) { return suffixes.find(suffix) != std::string_view::npos; };
  std::string words = language[std::string("opening.") + kind];
  if (kind == SIDE_HUNG) words += ", " + language[has('R') ? "opening.right" : "opening.left"];
  if (kind == PIVOT) return words;
  if (has('I')) words += ", " + language["opening.inward"];
  if (has('O')) words += ", " + language["opening.outward"];
  return words;
}

}  // namespace

std::string Language::operator[](std::string_view key) const {
  const auto found =
      std::find_if(words.begin(), words.end(), [&](const auto& word) { return word.first == key; });
  return std::string(found == words.end() ? key : found->second);
}

const Language& LanguageNamed(std::string_view name) {
  return **std::find_if(LANGUAGES.begin(), LANGUAGES.end(),
                        [&](const Language* language) { return language->name == name; });
}

std::string OpeningWords(std::string_view code, const Language& language) {
  if (code.empty() || code == brevanta::FIXED_GLAZING) return language["opening.fixed"];
  std::string words;
  for (const char kind : KINDS) {
    const std::size_t at = code.find(kind);
    if (at == std::string_view::npos) continue;
    words += (words.empty() ? "" : " + ") + KindWords(kind, SuffixesAt(code, at), language);
  }
  return words.empty() ? std::string(code) : words;
}

std::string CompassWords(std::string_view points, const Language& language) {
  std::string words;
  for (const char c : points) {
    const bool isPoint = std::string_view("NESW").find(c) != std::string_view::npos;
    words += isPoint ? language[std::string("compass.") + c] : std::string(1, c);
  }
  return words;
}

}  // namespace teskarlt::schedule
