// LibraryItems.cpp - collects the items of both catalogues and writes them section by section.
#include "arx/merge/LibraryItems.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include "inc/LibraryMerge.h"

namespace brevanta {

namespace {

// The key of an item line: what SplitFields gives as the first field, without its leading blanks. Only this
// field is wanted, so the others are not copied.
std::string_view KeyOf(std::string_view line) {
  const std::string_view field = line.substr(0, line.find(FIELD_DELIMITER));
  return field.substr(std::min(field.find_first_not_of(' '), field.size()));
}

}  // namespace

bool LibraryItems::Collect(CatalogueReader& file, bool unique) {
  ItemIndex::Section section = ItemIndex::NO_SECTION;
  while (file.NextLine()) {
    if (file.Line().empty()) continue;
    if (IsSectionHeader(file.Line())) {
      section = index_.NumberSection(file.Line());
    } else if (section != ItemIndex::NO_SECTION) {
      AddItem(section, file.Line(), unique);
    }
  }
  return !file.Failed();
}

// As Add or AddUnique of the set, but with the index in place of a walk over the set.
void LibraryItems::AddItem(ItemIndex::Section section, std::string_view line, bool unique) {
  const std::string_view key = KeyOf(line);
  if (index_.NoteKey(section, key) && unique) return;
  auto item = std::make_unique<CBrevantaItem>();
  item->index = unique ? static_cast<std::uint32_t>(set_.GetCount()) : 0;
  item->section = index_.SectionName(section);
  item->key = CString(key);
  item->line = CString(line);
  index_.NoteItem(section);
  set_.Add(item.get());
  static_cast<void>(item.release());
}

// Removing an item from the set would move all later ones, for every item written. Its place stays instead,
// as null.
void LibraryItems::WriteSection(std::string_view header, CatalogueWriter& target) {
  const ItemIndex::Section section = index_.FindSection(header);
  if (section == ItemIndex::NO_SECTION) return;
  for (std::uint32_t i = index_.FirstItem(section); i != ItemIndex::NO_ITEM; i = index_.NextItem(i)) {
    const std::unique_ptr<CBrevantaItem> item(set_.GetItem(i));
    if (item == nullptr) return;  // the section was written under an earlier header
    WriteLibraryLine(item->line.View(), target);
    set_.SetAt(i, nullptr);
  }
}

void LibraryItems::WriteRest(CatalogueWriter& target) const {
  CString lastSection;
  for (std::uint32_t i = 0; i < set_.GetCount(); ++i) {
    const CBrevantaItem* item = set_.GetItem(i);
    if (item == nullptr) continue;
    if (IsDifferent(item->section, lastSection) != 0) {
      WriteLibraryLine(item->section.View(), target);
      lastSection = item->section;
    }
    WriteLibraryLine(item->line.View(), target);
  }
}

}  // namespace brevanta
