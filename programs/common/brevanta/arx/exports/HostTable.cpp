// HostTable.cpp - obtains the host's function table and guards each call through it.
#include "arx/exports/HostTable.h"

#include "arx/exports/CompanionModule.h"
#include "platform/ModuleServices.h"

namespace brevanta {

namespace {

// The entry as the function it is; null when the table or the entry is.
template <typename Function>
Function Entry(const HostFunctionTable* table, int index) {
  return table == nullptr ? nullptr : reinterpret_cast<Function>(table->entries[index]);
}

}  // namespace

HostFunctionTable* GetHostFunctionTable() {
  HMODULE host = FindHostModule();
  if (host == nullptr) return nullptr;
  const auto getTable = ExportedFunction<GetExport2DFunction>(host, HOST_TABLE_EXPORT);
  return getTable == nullptr ? nullptr : getTable();
}

std::int32_t MakeEntityFromList(const HostFunctionTable* table, ValueNode* list) {
  const auto makeEntity = Entry<MakeEntityFunction>(table, ENTRY_MAKE_ENTITY);
  return makeEntity == nullptr ? HOST_CALL_MISSING : makeEntity(list, 0);
}

bool BeginEntityBatch(const HostFunctionTable* table) {
  const auto begin = Entry<BeginEntityBatchFunction>(table, ENTRY_BEGIN_ENTITY_BATCH);
  if (begin == nullptr) return false;
  begin();
  return true;
}

bool EndEntityBatch(const HostFunctionTable* table, std::int32_t keep) {
  const auto end = Entry<EndEntityBatchFunction>(table, ENTRY_END_ENTITY_BATCH);
  if (end == nullptr) return false;
  end(keep);
  return true;
}

bool GetDataFolder(const HostFunctionTable* table, std::int32_t kind, char* buffer, std::int32_t size) {
  const auto getFolder = Entry<GetDataFolderFunction>(table, ENTRY_GET_DATA_FOLDER);
  return getFolder != nullptr && getFolder(kind, buffer, size);
}

std::int32_t DataFolderAccess(const HostFunctionTable* table, std::int32_t kind, std::int32_t operation) {
  const auto access = Entry<DataFolderAccessFunction>(table, ENTRY_DATA_FOLDER_ACCESS);
  return access == nullptr ? HOST_CALL_MISSING : access(kind, operation);
}

}  // namespace brevanta
