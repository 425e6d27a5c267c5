// MergeLibraryFiles.h - the exported merge of one catalogue into another.
#pragma once

#include <cstdint>

#include "platform/Export.h"

namespace brevanta {

// Merges the items of the catalogue `source` into the catalogue `target` (a null target: the one in the
// host's data folder), for `folderKind` CATALOGUE_FOLDER_KIND only; LibraryMerge.h holds the results. The
// target keeps its preamble, headers, empty lines and order of sections; in every section its own items come
// first, then the new ones, then its empty lines; sections that it does not have follow at its end. An item
// of the target wins over one of the source with the same section and key.
//
// The target is renamed to its backup (BACKUP_ENDING), written anew, and only then is the backup deleted, so
// one complete catalogue is on disk at every moment. When writing fails the result is MERGE_NOT_POSSIBLE and
// the backup stays. With a path that gives no backup name of its own, or without memory for both catalogues,
// nothing is touched and the result is MERGE_NOT_POSSIBLE too.
//
// Kept on purpose: the rename's result is not looked at. When it fails and a stale backup stands in its way,
// that backup gives the layout and is deleted. A backup that cannot be opened after the rename is deleted
// too, and the target is then empty, with MERGE_DONE.
PLATFORM_EXPORT std::int32_t mergeLibraryFiles(void* reserved, const char* source, const char* target,
                                               std::int32_t folderKind);

}  // namespace brevanta
