// SUPP.cpp - string routines.
#include "lttools/SUPP.h"

#include <algorithm>
#include <cstring>
#include <locale>

#include "lttools/Err.h"
#include "lttools/resrel.h"
#include "platform/Heap.h"

namespace lttools {

namespace {

constexpr std::int32_t LINE_DUP_SUBSTRING = 98;
constexpr std::int32_t TEXT_LIST_GROWTH = 10;  // texts

}  // namespace

char* DupSubstring(const char* text, std::size_t length) {
  const std::size_t copied = strnlen(text, length);
  auto* copy = static_cast<char*>(HeapAllocate(copied + 1));
  if (copy == nullptr) {
    ErrFile = "SUPP";
    ErrLine = LINE_DUP_SUBSTRING;
    Err(ERR_FATAL, "Low memory");
    return nullptr;  // GCOVR_EXCL_LINE: a fatal report does not return
  }
  std::memcpy(copy, text, copied);
  copy[copied] = '\0';
  return copy;
}

TextList::~TextList() {
  Empty();
  HeapRelease(storage_);
}

void TextList::Append(char* text) {
  ArrayAppend(count_, capacity_, TEXT_LIST_GROWTH, storage_, sizeof text, static_cast<const void*>(&text));
}

void TextList::RemoveAt(std::int32_t index) {
  HeapRelease(static_cast<char**>(storage_)[index]);
  ArrayRemoveAt(count_, storage_, sizeof(char*), index);
}

void TextList::Empty() {
  while (count_ > 0)
    RemoveAt(count_ - 1);
}

int SplitFields(const char* text, const char* delimiters, TextList& fields) {
  if (text == nullptr || *text == '\0' || delimiters == nullptr || *delimiters == '\0') return 0;
  const char delimiter = *delimiters;
  for (const char* end = std::strchr(text, delimiter); end != nullptr; end = std::strchr(text, delimiter)) {
    fields.Append(DupSubstring(text, static_cast<std::size_t>(end - text)));
    text = end + 1;
  }
  fields.Append(DupSubstring(text, std::strlen(text)));
  if (delimiter == ' ') {
    for (std::int32_t i = fields.GetCount() - 1; i >= 0; --i)
      if (*fields[i] == '\0') fields.RemoveAt(i);
  }
  return 0;
}

int ConcatStrings(char* destination, int size, bool append, std::initializer_list<const char*> pieces) {
  if (size < 1 || pieces.size() < 1) return -1;
  const auto limit = static_cast<std::size_t>(size);
  std::size_t length = append ? strnlen(destination, limit) : 0;
  for (const char* piece : pieces) {
    const std::size_t fitting = strnlen(piece, limit - length);
    std::memcpy(destination + length, piece, fitting);
    length += fitting;
    destination[length] = '\0';
  }
  destination[limit] = '\0';
  return 0;
}

namespace {

bool IsDigit(char c) {
  return std::isdigit(c, std::locale::classic());
}

bool IsLetter(char c) {
  return std::isalpha(c, std::locale::classic());
}

// One pattern character other than '*' against one character.
bool MatchesCharacter(char pattern, char c) {
  switch (pattern) {
    case '#':
      return IsDigit(c);
    case '@':
      return IsLetter(c);
    case '.':
      return !IsLetter(c) && !IsDigit(c);
    case '?':
      return true;
    default:
      return pattern == c;
  }
}

enum class Outcome {
  MATCH,
  MISMATCH,
  STAR_FAILED,  // a star was reached, and what follows it matches nowhere to the right
};

Outcome Match(std::string_view text, std::string_view pattern);

// What follows a star, against the rests of the text from here on but the empty one. Once a further star has
// been reached in vain, it would be from every later start too: then only a rest that equals the pattern is
// left to try. So the time stays within text times pattern.
Outcome MatchAfterStar(std::string_view text, std::string_view rest) {
  if (rest.empty()) return Outcome::MATCH;
  for (; !text.empty(); text.remove_prefix(1)) {
    const Outcome outcome = Match(text, rest);
    if (outcome == Outcome::MATCH) return outcome;
    if (outcome == Outcome::STAR_FAILED && !text.ends_with(rest)) break;
  }
  return Outcome::STAR_FAILED;
}

Outcome Match(std::string_view text, std::string_view pattern) {
  const auto outcome = [](bool matches) { return matches ? Outcome::MATCH : Outcome::MISMATCH; };
  if (text == pattern) return Outcome::MATCH;
  if (pattern.empty()) return Outcome::MISMATCH;
  for (std::size_t i = 0;; ++i) {
    if (i == pattern.size()) return outcome(i == text.size());
    if (i == text.size()) return outcome(pattern.substr(i) == "*");
    if (pattern[i] == '*') return MatchAfterStar(text.substr(i), pattern.substr(i + 1));
    if (!MatchesCharacter(pattern[i], text[i])) return Outcome::MISMATCH;
  }
}

// What a working buffer holds of a text.
std::string_view Cut(std::string_view text) {
  return text.substr(0, WORKING_BUFFER_SIZE - 1);
}

}  // namespace

int MatchWildcard(std::string_view text, std::string_view pattern) {
  return Match(Cut(text), Cut(pattern)) == Outcome::MATCH ? 1 : 0;
}

int MatchPatternList(std::string_view text, std::string_view patterns) {
  patterns = Cut(patterns);
  for (;;) {
    const std::size_t comma = std::min(patterns.find(','), patterns.size());
    if (MatchWildcard(text, patterns.substr(0, comma)) == 1) return PATTERN_MATCHES;
    if (comma == patterns.size()) return 0;
    patterns.remove_prefix(comma + 1);
  }
}

}  // namespace lttools
