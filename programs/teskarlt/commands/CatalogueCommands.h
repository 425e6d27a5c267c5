// CatalogueCommands.h - the subcommands of "catalogue".
#pragma once

#include <string>

#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/catalogue/ItemFields.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Options.h"

namespace teskarlt {

// Each adds subcommands that run in place of showing the catalogue.
void AddCatalogueChangeCommands(Subcommand& catalogue);  // new, add, edit, remove
void AddCatalogueLookCommands(Subcommand& catalogue);    // search, check
void AddCatalogueTableCommands(Subcommand& catalogue);   // import, export

// The catalogue that a command reads: `file`, or the usual one where that is empty. Tells where that is the
// one that lies beside the program. Throws Error.
Catalogue ReadChosenCatalogue(const std::string& file);

// The fields of a window for programs: "key", "widthCm" ...
Json FieldsJson(const ItemTexts& texts);

}  // namespace teskarlt
