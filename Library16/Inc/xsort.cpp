// xsort.cpp - the collation table and the comparison by keys.
#include "xsort.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "lttools/Err.h"
#include "platform/Heap.h"

namespace xsort {

namespace {

constexpr int MAX_ELEMENTS = 256;
constexpr const char* SEPARATORS = " \n\t,;";
constexpr const char* ERROR_FILE = "xsort";
constexpr std::int32_t ERROR_LINE_COPY = 152;

struct Element {
  const char* text;    // in the table's buffer
  std::int8_t length;  // wraps for more than 127 characters
  std::uint8_t rank;   // place in the file, counted from 1; wraps for the 256th
};

struct Table {
  std::int32_t count;  // 0: no table
  Element elements[MAX_ELEMENTS];
  char* buffer;  // the file's text, owned
};

Table table{};

// The file's size by its end, with the position back at the start; negative when it has none. The end of a
// folder, where it can be opened, is the largest number there is.
long FileSize(std::FILE* file) {
  if (std::fseek(file, 0, SEEK_END) != 0) return -1;
  const long size = std::ftell(file);
  return std::fseek(file, 0, SEEK_SET) == 0 && size < LONG_MAX ? size : -1;
}

// The file's text, NUL-terminated, in a block of the heap; null when there is none.
char* ReadText(std::FILE* file) {
  const long size = FileSize(file);
  if (size < 0) return nullptr;
  const auto room = static_cast<std::size_t>(size);
  auto* text = static_cast<char*>(HeapAllocate(room + 1));
  if (text == nullptr) return nullptr;
  const std::size_t read = std::fread(text, 1, room, file);
  if (read == 0) {
    HeapRelease(text);
    return nullptr;
  }
  text[read] = '\0';
  return text;
}

// Splits the text in place into the table's elements.
void Split(char* text) {
  char* token = text + std::strspn(text, SEPARATORS);
  while (*token != '\0' && table.count < MAX_ELEMENTS) {
    const std::size_t length = std::strcspn(token, SEPARATORS);
    const bool last = token[length] == '\0';
    token[length] = '\0';
    Element& element = table.elements[table.count++];
    element = {token, static_cast<std::int8_t>(length), static_cast<std::uint8_t>(table.count)};
    if (last) return;
    token += length + 1;
    token += std::strspn(token, SEPARATORS);
  }
}

bool LongerFirst(const Element& a, const Element& b) {
  return a.length != b.length ? a.length > b.length : a.rank < b.rank;
}

// The first element in table order that the text begins with; null when it begins with none.
const Element* FindElement(const char* text) {
  for (std::int32_t i = 0; i < table.count; ++i) {
    const Element& element = table.elements[i];
    if (element.length > 0 && std::strncmp(text, element.text, static_cast<std::size_t>(element.length)) == 0)
      return &element;
  }
  return nullptr;
}

char* Duplicate(const char* text) {
  const std::size_t size = std::strlen(text) + 1;
  auto* copy = static_cast<char*>(HeapAllocate(size));
  if (copy != nullptr) std::memcpy(copy, text, size);
  return copy;
}

}  // namespace

int XsortLoad(const char* fileName) {
  if (table.count != 0) return -1;
  std::FILE* file = std::fopen(fileName, "r");
  if (file == nullptr) return -1;
  char* text = ReadText(file);
  std::fclose(file);
  if (text == nullptr) return -1;
  Split(text);
  if (table.count == 0) {
    HeapRelease(text);
    return 0;
  }
  table.buffer = text;
  // The last element stays last whatever its length.
  std::sort(table.elements, table.elements + table.count - 1, LongerFirst);
  return 0;
}

int XsortUnload() {
  if (table.count == 0) return -1;
  table.count = 0;
  HeapRelease(table.buffer);
  table.buffer = nullptr;
  return 0;
}

int XsortKey(const char* text, char* key) {
  if (table.count == 0) return -1;
  const char unknown = static_cast<char>(table.count + 2);
  while (*text != '\0') {
    const Element* element = FindElement(text);
    *key++ = element != nullptr ? static_cast<char>(element->rank) : unknown;
    text += element != nullptr ? element->length : 1;
  }
  *key = '\0';
  return 0;
}

int XsortCompare(const char* a, const char* b) {
  char* keyA = Duplicate(a);
  char* keyB = keyA != nullptr ? Duplicate(b) : nullptr;
  if (keyB == nullptr) {
    HeapRelease(keyA);
    lttools::ErrFile = ERROR_FILE;
    lttools::ErrLine = ERROR_LINE_COPY;
    lttools::Err(lttools::ERR_FATAL, "Low memory");
    return 0;  // GCOVR_EXCL_LINE: a fatal report does not return
  }
  XsortKey(keyA, keyA);
  XsortKey(keyB, keyB);
  const int result = std::strcmp(keyA, keyB);
  HeapRelease(keyA);
  HeapRelease(keyB);
  return result;
}

int CompareTexts(const char* a, const char* b) {
  return XsortCompare(a, b);
}

}  // namespace xsort
