// CatalogueChanges.h - windows added to a catalogue, changed in it and taken out of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/catalogue/CatalogueEncoding.h"
#include "teskarlt/catalogue/ItemFields.h"

namespace teskarlt {

// The first item of that section and key, compared exactly; null when there is none. The catalogue owns it.
const CatalogueItem* FindItem(const Catalogue& catalogue, std::size_t section, std::string_view key);

// Each gives the bytes of the changed catalogue. Throws Error, naming the window, where it cannot be: a key
// that the section has already, a size or code that no window has, a text that the encoding does not hold.
std::string WithWindow(const Catalogue& catalogue, const CatalogueWindow& window, CatalogueEncoding encoding);
std::string WithChanged(const Catalogue& catalogue, const CatalogueItem& item, const ItemTexts& texts,
                        CatalogueEncoding encoding);

// The items that the names stand for (Catalogue.h, ChooseItem), with all lines of the same key in their
// sections, in the order of the file. Throws Error.
std::vector<const CatalogueItem*> ItemsNamed(const Catalogue& catalogue,
                                             const std::vector<std::string>& names);

// The bytes of the catalogue without these items.
std::string Without(const Catalogue& catalogue, const std::vector<const CatalogueItem*>& items);

}  // namespace teskarlt
