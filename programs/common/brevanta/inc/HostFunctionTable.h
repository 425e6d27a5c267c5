// HostFunctionTable.h - the functions that the host offers to the module, as an array of pointers.
#pragma once

#include <cstdint>

#include "inc/ValueNode.h"

namespace brevanta {

using HostFunction = void (*)();

// The name by which the modules find the stand-alone host among the modules of the process.
constexpr const char* HOST_PROGRAM = "TESKARLT.EXE";

// Positions in the table, fixed for every host. An entry may be null: the host does not offer that operation.
constexpr int ENTRY_GET_DATA_FOLDER = 1;
constexpr int ENTRY_MAKE_ENTITY = 15;
constexpr int ENTRY_BEGIN_ENTITY_BATCH = 17;
constexpr int ENTRY_END_ENTITY_BATCH = 19;
constexpr int ENTRY_DATA_FOLDER_ACCESS = 44;
constexpr int HOST_FUNCTION_COUNT = 45;

// Entry 1. Puts the path of the data folder of `kind` into
// `buffer` of `size` characters; true when it is there.
using GetDataFolderFunction = bool (*)(std::int32_t kind, char* buffer, std::int32_t size);

// Entry 15. Makes an entity of the list, which stays the caller's; `reserved` is always 0. STATUS_NORMAL
// (HostStatus.h), or negative: failed.
using MakeEntityFunction = std::int32_t (*)(ValueNode* list, std::int32_t reserved);

// Entry 17 comes before the first and entry 19, with 1, behind the last entity of one window.
using BeginEntityBatchFunction = void (*)();
using EndEntityBatchFunction = void (*)(std::int32_t keep);

// Entry 44. Operation 9 requests the data folder of `kind` (answer 1: granted, 2: granted but unusable,
// other: refused), 4 releases it, 2 gives back a request that was answered with 2.
using DataFolderAccessFunction = std::int32_t (*)(std::int32_t kind, std::int32_t operation);

// Owned by the host; valid while the host stays loaded. Hosts may have more entries than these.
struct HostFunctionTable {
  HostFunction entries[HOST_FUNCTION_COUNT];
};

// The host's export that gives its table (or null).
constexpr const char* HOST_TABLE_EXPORT = "GetExport2D";
using GetExport2DFunction = HostFunctionTable* (*)();

}  // namespace brevanta
