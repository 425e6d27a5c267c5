// CatalogueCheck.h - what is wrong with a catalogue.
#pragma once

#include <vector>

#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/catalogue/CatalogueFinding.h"

namespace teskarlt {

// All findings, in the order of their lines. What hides the windows of a file altogether is no finding:
// ReadCatalogue refuses it.
std::vector<CatalogueFinding> CheckCatalogue(const Catalogue& catalogue);

}  // namespace teskarlt
