// CatalogueSearch.h - finds windows by what people remember of their names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/catalogue/Catalogue.h"

namespace teskarlt {

// UTF-8 for comparing: small letters without accents, as far as Latin ones go; other letters without regard
// to case.
std::string PlainLetters(std::string_view utf8);

// The items of which every word of `text` stands somewhere in maker, key or description, compared by
// PlainLetters; in the order of the file. None for a text without words.
std::vector<const CatalogueItem*> FindItems(const Catalogue& catalogue, std::string_view text);

}  // namespace teskarlt
