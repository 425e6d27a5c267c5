// FindCatalogueItem.h - looks an item up in a catalogue file.
#pragma once

#include <cstdint>

namespace brevanta {

// The position of the first line that holds `key` with a semicolon and a blank behind it, counted from 0
// behind the section header "`prefix`+ `qualifier`" or "`prefix`- `qualifier`"; -1 when there is none or the
// library, a file or a folder path that ends in a separator, cannot be read, be it for want of memory. Both
// headers and the key are patterns (SUPP.h) and cut to the working buffer. Empty lines do not count; later
// headers count like items, the search goes on past them.
std::int32_t FindCatalogueItem(const char* prefix, const char* libraryPath, const char* qualifier,
                               const char* key);

}  // namespace brevanta
