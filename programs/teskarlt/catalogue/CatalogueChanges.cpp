// CatalogueChanges.cpp - what must hold before a catalogue is changed, and its bytes behind that.
#include "teskarlt/catalogue/CatalogueChanges.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueEditor.h"
#include "teskarlt/catalogue/ItemRules.h"

namespace teskarlt {

namespace {

bool IsSameItem(const CatalogueItem& a, const CatalogueItem& b) {
  return a.section == b.section && a.key == b.key;
}

void CheckWindow(const CatalogueWindow& window) {
  try {
    CheckWritable(window);
  } catch (const Error& error) {
    throw Error(fmt::format("window {}/{}: {}", window.maker, window.texts[FIELD_KEY], error.Message()),
                {.value = error.Place().value});
  }
}

void CheckKeyIsFree(const Catalogue& catalogue, std::size_t section, const std::string& key) {
  const CatalogueItem* item = FindItem(catalogue, section, key);
  if (item == nullptr) return;
  throw Error(fmt::format("{} has a window {} already; teskarlt catalogue edit changes it",
                          CatalogueText(MakerOf(catalogue.sections[section])), key),
              {catalogue.path, ErrorPlace::Unit::Line, item->number, key});
}

}  // namespace

const CatalogueItem* FindItem(const Catalogue& catalogue, std::size_t section, std::string_view key) {
  const auto found = std::find_if(
      catalogue.items.begin(), catalogue.items.end(),
      [&](const CatalogueItem& item) { return item.section == section && CatalogueText(item.key) == key; });
  return found == catalogue.items.end() ? nullptr : &*found;
}

std::string WithWindow(const Catalogue& catalogue, const CatalogueWindow& window,
                       CatalogueEncoding encoding) {
  CheckWindow(window);
  if (const auto section = SectionOf(catalogue, window.maker))
    CheckKeyIsFree(catalogue, *section, window.texts[FIELD_KEY]);
  CatalogueEditor editor(catalogue, encoding);
  editor.Add(window);
  return editor.Bytes();
}

std::string WithChanged(const Catalogue& catalogue, const CatalogueItem& item, const ItemTexts& texts,
                        CatalogueEncoding encoding) {
  CheckWindow({CatalogueText(MakerOf(catalogue.sections[item.section])), texts});
  if (texts[FIELD_KEY] != TextsOf(item.line)[FIELD_KEY])
    CheckKeyIsFree(catalogue, item.section, texts[FIELD_KEY]);
  CatalogueEditor editor(catalogue, encoding);
  editor.Change(item, texts);
  return editor.Bytes();
}

std::vector<const CatalogueItem*> ItemsNamed(const Catalogue& catalogue,
                                             const std::vector<std::string>& names) {
  std::vector<const CatalogueItem*> chosen;
  chosen.reserve(names.size());
  for (const std::string& name : names)
    chosen.push_back(&ChooseItem(catalogue, name, "window"));
  std::vector<const CatalogueItem*> items;
  for (const CatalogueItem& item : catalogue.items) {
    const bool isChosen = std::any_of(chosen.begin(), chosen.end(),
                                      [&](const CatalogueItem* named) { return IsSameItem(*named, item); });
    if (isChosen) items.push_back(&item);
  }
  return items;
}

std::string Without(const Catalogue& catalogue, const std::vector<const CatalogueItem*>& items) {
  CatalogueEditor editor(catalogue, EncodingForChanges(catalogue, ""));
  for (const CatalogueItem* item : items)
    editor.Remove(*item);
  return editor.Bytes();
}

}  // namespace teskarlt
