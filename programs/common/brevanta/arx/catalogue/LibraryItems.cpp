// LibraryItems.cpp - collects the items of both catalogues and writes them section by section.
#include "arx/catalogue/LibraryItems.h"

#include <memory>

#include "inc/LibraryMerge.h"
#include "lttools/SUPP.h"

namespace brevanta {

namespace {

// The key of a split item line: the first field without its leading blanks.
const char* KeyOf(const lttools::TextList& fields) {
  const char* key = fields[0];
  while (*key == ' ')
    ++key;
  return key;
}

}  // namespace

bool LibraryItems::Collect(CatalogueReader& file, bool unique) {
  ItemIndex::Section section = ItemIndex::NO_SECTION;
  lttools::TextList fields;
  while (file.NextLine()) {
    if (file.Line().empty()) continue;
    if (IsSectionHeader(file.Line())) {
      section = index_.NumberSection(file.Line());
    } else if (section != ItemIndex::NO_SECTION) {
      lttools::SplitFields(file.Text(), FIELD_DELIMITER, fields);
      AddItem(section, KeyOf(fields), file, unique);
      fields.Empty();
    }
  }
  return !file.Failed();
}

// As Add or AddUnique of the set, but with the index in place of a walk over the set.
void LibraryItems::AddItem(ItemIndex::Section section, const char* key, CatalogueReader& file, bool unique) {
  if (index_.NoteKey(section, key) && unique) return;
  auto item = std::make_unique<CBrevantaItem>();
  item->index = unique ? static_cast<std::uint32_t>(set_.GetCount()) : 0;
  item->section = index_.SectionName(section);
  item->key = CString(key);
  item->line = CString(file.Line());
  index_.NoteItem(section);
  set_.Add(item.get());
  item.release();
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
