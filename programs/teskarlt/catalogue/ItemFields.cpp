// ItemFields.cpp - lines of a catalogue taken apart and put together.
#include "teskarlt/catalogue/ItemFields.h"

#include <algorithm>

#include "inc/LibraryMerge.h"
#include "teskarlt/catalogue/Catalogue.h"

namespace teskarlt {

namespace {

constexpr std::string_view BETWEEN_FIELDS = "; ";

// Where the field begins and ends between its semicolons; the line has it.
struct FieldRange {
  std::size_t begin;
  std::size_t end;
};

FieldRange RangeOf(std::string_view line, std::size_t field) {
  std::size_t begin = 0;
  for (; field > 0; --field)
    begin = line.find(brevanta::FIELD_DELIMITER, begin) + 1;
  return {begin, std::min(line.find(brevanta::FIELD_DELIMITER, begin), line.size())};
}

}  // namespace

ItemTexts TextsOf(std::string_view line) {
  ItemTexts texts;
  const std::string_view key = line.substr(0, line.find(brevanta::FIELD_DELIMITER));
  texts[FIELD_KEY] = CatalogueText(key.substr(std::min(key.find_first_not_of(' '), key.size())));
  for (std::size_t field = FIELD_KEY + 1; field < FIELD_COUNT; ++field)
    texts[field] = CatalogueText(ItemField(line, field));
  return texts;
}

std::string LineOf(const ItemTexts& texts) {
  std::size_t count = FIELD_COUNT;
  while (count > 2 && texts[count - 1].empty())
    --count;
  std::string line = texts[FIELD_KEY];
  for (std::size_t field = 1; field < count; ++field)
    line.append(BETWEEN_FIELDS).append(texts[field]);
  return line;
}

std::string WithField(std::string_view line, std::size_t field, std::string_view text) {
  std::string changed(line);
  const auto last = static_cast<std::size_t>(std::count(line.begin(), line.end(), brevanta::FIELD_DELIMITER));
  for (std::size_t i = last; i < field; ++i)
    changed += BETWEEN_FIELDS;
  const FieldRange range = RangeOf(changed, field);
  const std::string blank = field == FIELD_KEY ? "" : " ";
  return changed.replace(range.begin, range.end - range.begin, blank + std::string(text));
}

}  // namespace teskarlt
