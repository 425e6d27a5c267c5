// CatalogueItem.h - takes a window out of a catalogue's item line into the record.
#pragma once

#include <string_view>

#include "inc/WindowParams.h"

namespace brevanta {

// `line` is "key; width cm; length cm; frame width cm; frame depth cm; opening code; description" as the
// drawing keeps its texts. Missing and empty fields leave the record as it is, an opening code "-" is
// fixed glazing; the key becomes `text2`, the description `text3`. Throws Refusal for a size that is no
// number and a text that does not fit.
void TakeCatalogueItem(std::string_view line, WindowParams& record);

}  // namespace brevanta
