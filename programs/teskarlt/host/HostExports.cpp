// HostExports.cpp - the exports of the host program that the module and its dialog module look up.
#include "inc/DialogServices.h"
#include "inc/HostFunctionTable.h"
#include "platform/Export.h"
#include "teskarlt/host/HostSession.h"

namespace teskarlt {

namespace {

std::int32_t MakeEntity(brevanta::ValueNode* list, std::int32_t /*reserved*/) {
  constexpr std::int32_t noCommand = -1;
  HostSession* session = HostSession::Current();
  return session == nullptr ? noCommand : session->MakeEntity(list);
}

void BeginEntityBatch() {
  if (HostSession* session = HostSession::Current()) session->BeginBatch();
}

void EndEntityBatch(std::int32_t keep) {
  if (HostSession* session = HostSession::Current()) session->EndBatch(keep != 0);
}

template <typename Function>
brevanta::HostFunction Entry(Function* function) {
  return reinterpret_cast<brevanta::HostFunction>(function);
}

brevanta::HostFunctionTable MakeTable() {
  brevanta::HostFunctionTable table{};
  table.entries[brevanta::ENTRY_MAKE_ENTITY] = Entry(MakeEntity);
  table.entries[brevanta::ENTRY_BEGIN_ENTITY_BATCH] = Entry(BeginEntityBatch);
  table.entries[brevanta::ENTRY_END_ENTITY_BATCH] = Entry(EndEntityBatch);
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
  HostSession* session = HostSession::Current();
  return session == nullptr ? nullptr : session->Services();
}

}  // namespace teskarlt
