// SUPP.h - string routines: copies, splitting, bounded joining, wildcard patterns.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "inc/HostStatus.h"

namespace lttools {

// Size of the buffers in which texts and patterns are compared and joined, terminator included. What is
// longer is cut.
constexpr int WORKING_BUFFER_SIZE = 512;

// A copy of the first `length` characters of the text (all of it when it is shorter), terminated, from the
// process heap: the caller releases it with HeapRelease. Without memory a fatal report.
char* DupSubstring(const char* text, std::size_t length);

// A growable list of texts, each made by DupSubstring; releases them.
class TextList {
 public:
  TextList() = default;
  ~TextList();
  TextList(const TextList&) = delete;
  TextList& operator=(const TextList&) = delete;

  std::int32_t GetCount() const { return count_; }
  const char* operator[](std::int32_t index) const { return static_cast<char**>(storage_)[index]; }

  // Takes over a text of DupSubstring.
  void Append(char* text);
  void RemoveAt(std::int32_t index);
  // Removes all texts and keeps the room.
  void Empty();

 private:
  std::int32_t count_ = 0;
  std::int32_t capacity_ = 0;
  void* storage_ = nullptr;
};

// Appends the fields of the text, split at the first character of `delimiters`, to the list; empty ones too,
// but not when that character is a blank. A null or empty text or delimiter text appends nothing. Returns 0.
int SplitFields(const char* text, const char* delimiters, TextList& fields);

// Builds a text from pieces, behind what `destination` holds or, unless `append`, afresh. What goes beyond
// `size` characters is cut silently. A terminator is always stored at position `size`, so the destination
// holds `size` + 1 characters. Returns 0, and -1 without touching it when `size` or the number of pieces is
// below 1.
int ConcatStrings(char* destination, int size, bool append, std::initializer_list<const char*> pieces);

// Returns 1 when the text matches the pattern, else 0; both are cut to the working
// buffer. Pattern characters: '#' a digit, '@' a letter, '.' neither of them, '?' any
// character, '*' any run; every other stands for itself. Letters and digits are those
// of ASCII. A pattern that equals the text always matches. A star never tries the empty
// rest of the text against what follows it, so 'a*' matches 'a' but 'a**' does not.
int MatchWildcard(std::string_view text, std::string_view pattern);

// What MatchPatternList gives for a match.
constexpr int PATTERN_MATCHES = brevanta::STATUS_NORMAL;

// PATTERN_MATCHES when the text matches one of the patterns that `patterns` lists, separated by commas, else
// 0. Blanks around commas belong to the patterns; the list is cut to the working buffer.
int MatchPatternList(std::string_view text, std::string_view patterns);

}  // namespace lttools
