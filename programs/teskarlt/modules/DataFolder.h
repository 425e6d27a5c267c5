// DataFolder.h - the folder in which the module keeps its catalogue, and the access to it.
#pragma once

#include <cstdint>
#include <string>

namespace teskarlt {

// Answer of AccessDataFolder besides those of LibraryMerge.h: refused, since another process holds the
// folder, or the operation is none.
constexpr std::int32_t FOLDER_REFUSED = 0;

// The folder of the catalogue, UTF-8, with a separator at its end: $TESKAR_DATA, else "teskar" in the user's
// data folder. Throws Error when the system names no such folder.
std::string DataFolder();

// Asks for or gives back the data folder of `kind` for this process, by the operations of LibraryMerge.h.
std::int32_t AccessDataFolder(std::int32_t kind, std::int32_t operation);

}  // namespace teskarlt
