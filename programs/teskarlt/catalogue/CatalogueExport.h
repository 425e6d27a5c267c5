// CatalogueExport.h - a catalogue as a table for other programs.
#pragma once

#include <string>

#include "teskarlt/catalogue/Catalogue.h"

namespace teskarlt {

// Rows of maker and fields, UTF-8, under a head that ImportTable knows by itself; sizes are centimetres.
// Comments are left out.
std::string TableOf(const Catalogue& catalogue, char delimiter);

}  // namespace teskarlt
