// HostExports.cpp - the exports of the host program that the module and its dialog module look up.
#include <cstring>
#include <optional>
#include <string>

#include "inc/DialogServices.h"
#include "inc/HostFunctionTable.h"
#include "inc/LibraryMerge.h"
#include "platform/Export.h"
#include "platform/SystemFolders.h"
#include "teskarlt/modules/DataFolder.h"
#include "teskarlt/modules/KeptException.h"
#include "teskarlt/modules/ModuleSession.h"

namespace teskarlt {

namespace {

std::int32_t MakeEntity(brevanta::ValueNode* list, std::int32_t /*reserved*/) {
  constexpr std::int32_t noCommand = -1;
  ModuleSession* session = ModuleSession::Current();
  return session == nullptr ? noCommand : session->MakeEntity(list);
}

void BeginEntityBatch() {
  if (ModuleSession* session = ModuleSession::Current()) session->BeginBatch();
}

void EndEntityBatch(std::int32_t keep) {
  if (ModuleSession* session = ModuleSession::Current()) session->EndBatch(keep != 0);
}

bool GetDataFolder(std::int32_t kind, char* buffer, std::int32_t size) {
  if (kind != brevanta::CATALOGUE_FOLDER_KIND) return false;
  return AnswerModule(false, [&] {
    const std::optional<std::string> folder = platform::ToSystemPath(DataFolder());
    if (!folder || size <= 0 || folder->size() >= static_cast<std::size_t>(size)) return false;
    std::memcpy(buffer, folder->c_str(), folder->size() + 1);
    return true;
  });
}

std::int32_t DataFolderAccess(std::int32_t kind, std::int32_t operation) {
  return AnswerModule(FOLDER_REFUSED, [&] { return AccessDataFolder(kind, operation); });
}

template <typename Function>
brevanta::HostFunction Entry(Function* function) {
  return reinterpret_cast<brevanta::HostFunction>(function);
}

brevanta::HostFunctionTable MakeTable() {
  brevanta::HostFunctionTable table{};
  table.entries[brevanta::ENTRY_GET_DATA_FOLDER] = Entry(GetDataFolder);
  table.entries[brevanta::ENTRY_MAKE_ENTITY] = Entry(MakeEntity);
  table.entries[brevanta::ENTRY_BEGIN_ENTITY_BATCH] = Entry(BeginEntityBatch);
  table.entries[brevanta::ENTRY_END_ENTITY_BATCH] = Entry(EndEntityBatch);
  table.entries[brevanta::ENTRY_DATA_FOLDER_ACCESS] = Entry(DataFolderAccess);
  return table;
}

}  // namespace

// The table of functions that the module calls.
PLATFORM_EXPORT brevanta::HostFunctionTable* GetExport2D() {
  static brevanta::HostFunctionTable table = MakeTable();
  return &table;
}

// The services of the command that runs now, for the dialog module; null when none does.
PLATFORM_EXPORT brevanta::DialogServices* GetDialogServices() {
  ModuleSession* session = ModuleSession::Current();
  return session == nullptr ? nullptr : session->Services();
}

}  // namespace teskarlt
