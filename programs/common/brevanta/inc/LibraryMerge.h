// LibraryMerge.h - the catalogue file and the module's export that merges one catalogue into another.
#pragma once

#include <cstdint>

namespace brevanta {

// The catalogue's file name. It is appended to a path that ends in a backslash or a slash; any other path is
// the file itself.
constexpr const char* CATALOGUE_FILE = "BREVANTA.LIB";

// A line that matches heads the section of one maker; the whole line is the section's name.
constexpr const char* SECTION_PATTERN = "VYROBCE*";

// Stands between the fields of an item; the first field, leading blanks removed, is the item's key.
constexpr char FIELD_DELIMITER = ';';

// The three characters that replace the last three of the catalogue's path while it is rewritten. A merge
// that was stopped leaves the whole old catalogue there.
constexpr const char* BACKUP_ENDING = "OLD";

// The host's data folder that holds the catalogue, and the operations with which a merge asks for it
// (HostFunctionTable.h).
constexpr std::int32_t CATALOGUE_FOLDER_KIND = 4;
constexpr std::int32_t FOLDER_REQUEST = 9;
constexpr std::int32_t FOLDER_RELEASE = 4;
constexpr std::int32_t FOLDER_GIVE_BACK = 2;
constexpr std::int32_t FOLDER_GRANTED = 1;
constexpr std::int32_t FOLDER_UNUSABLE = 2;

// Results of a merge.
constexpr std::int32_t MERGE_DONE = 0;             // also when there is no target to merge into
constexpr std::int32_t MERGE_NOT_POSSIBLE = 1;     // another folder kind, or the target cannot be rewritten
constexpr std::int32_t MERGE_NO_SOURCE = -1;       // no source given, or it cannot be read
constexpr std::int32_t MERGE_NO_DATA_FOLDER = -2;  // no host, no such folder, or access refused

// The export. `reserved` is not read; the paths name a catalogue or its folder; a null `target` stands for
// the catalogue in the host's data folder; `folderKind` must be CATALOGUE_FOLDER_KIND.
constexpr const char* MERGE_LIBRARY_FILES_EXPORT = "mergeLibraryFiles";
using MergeLibraryFilesFunction = std::int32_t (*)(void* reserved, const char* source, const char* target,
                                                   std::int32_t folderKind);

}  // namespace brevanta
