// TestHost.cpp - the function table of the test host.
#include "TestHost.h"

#include <cstdio>

#include "inc/HostFunctionTable.h"
#include "platform/Export.h"

HostScript hostScript;

namespace {

using brevanta::HostFunction;
using brevanta::HostFunctionTable;

bool GetFolder(std::int32_t kind, char* buffer, std::int32_t size) {
  hostScript.calls.push_back("folder " + std::to_string(kind) + " " + std::to_string(size));
  if (!hostScript.deliversFolder) return false;
  std::snprintf(buffer, static_cast<std::size_t>(size), "%s", hostScript.folder.c_str());
  return true;
}

std::int32_t Access(std::int32_t kind, std::int32_t operation) {
  hostScript.calls.push_back("access " + std::to_string(kind) + " " + std::to_string(operation));
  return operation == 9 ? hostScript.answer : 0;
}

}  // namespace

PLATFORM_EXPORT HostFunctionTable* GetExport2D() {
  static HostFunctionTable table{};
  table.entries[1] = hostScript.hasGetDataFolder ? reinterpret_cast<HostFunction>(GetFolder) : nullptr;
  table.entries[44] = hostScript.hasDataFolderAccess ? reinterpret_cast<HostFunction>(Access) : nullptr;
  return hostScript.hasTable ? &table : nullptr;
}
