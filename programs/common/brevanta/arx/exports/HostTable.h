// HostTable.h - obtains the host's function table and guards each call through it.
#pragma once

#include <cstdint>

#include "inc/HostFunctionTable.h"

namespace brevanta {

// What the guards return when nothing was called.
constexpr std::int32_t HOST_CALL_MISSING = -1;

// The host's table, null when no host module is loaded, it has no such export, or the export gives null.
// Looked up afresh by every user; the host owns it.
HostFunctionTable* GetHostFunctionTable();

// Each guard calls its entry unless the table or the entry is null; then it returns HOST_CALL_MISSING or
// false. The list stays the caller's. The batch guards tell whether a call was made.
std::int32_t MakeEntityFromList(const HostFunctionTable* table, ValueNode* list);
bool BeginEntityBatch(const HostFunctionTable* table);
bool EndEntityBatch(const HostFunctionTable* table, std::int32_t keep);
bool GetDataFolder(const HostFunctionTable* table, std::int32_t kind, char* buffer, std::int32_t size);
std::int32_t DataFolderAccess(const HostFunctionTable* table, std::int32_t kind, std::int32_t operation);

}  // namespace brevanta
