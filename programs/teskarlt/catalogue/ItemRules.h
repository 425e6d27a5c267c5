// ItemRules.h - what a window of a catalogue must keep to, so that it can be inserted.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/catalogue/CatalogueFinding.h"
#include "teskarlt/catalogue/ItemFields.h"

namespace teskarlt {

// A size as the dialog reads it: a finite number with a point, blanks around it. Nothing for anything else.
std::optional<double> SizeIn(std::string_view text);

// What is wrong with the window itself, whatever stands beside it; in the order of the fields, without lines.
std::vector<CatalogueFinding> FindingsOf(const ItemTexts& texts);

// Throws Error with the first finding that is an error, and for a text with a semicolon or of more than one
// line, which no catalogue can hold.
void CheckWritable(const CatalogueWindow& window);

}  // namespace teskarlt
