// DataFolder.h - the folder in which the module keeps its catalogue, and the access to it.
#pragma once

#include <cstdint>
#include <string>

namespace teskarlt {

// The kind of data folder that holds the catalogue; the host has no other.
constexpr std::int32_t CATALOGUE_FOLDER = 4;

// Operations and answers of the access protocol.
constexpr std::int32_t ACCESS_GIVE_BACK = 2;  // after ACCESS_UNUSABLE
constexpr std::int32_t ACCESS_RELEASE = 4;
constexpr std::int32_t ACCESS_REQUEST = 9;
constexpr std::int32_t ACCESS_REFUSED = 0;  // another process holds the folder
constexpr std::int32_t ACCESS_GRANTED = 1;
constexpr std::int32_t ACCESS_UNUSABLE = 2;  // granted, but the folder cannot be worked in

// The folder of the catalogue, UTF-8, with a separator at its end: $TESKAR_DATA, else "teskar" in the user's
// data folder. Throws Error when the system names no such folder.
std::string DataFolder();

// Asks for or gives back the data folder of `kind` for this process.
std::int32_t AccessDataFolder(std::int32_t kind, std::int32_t operation);

}  // namespace teskarlt
