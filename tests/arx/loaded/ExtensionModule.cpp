// ExtensionModule.cpp - the host in its second form: an extension module that hands out a table it was given.
#include "inc/HostFunctionTable.h"
#include "platform/Export.h"

namespace {

brevanta::HostFunctionTable* givenTable = nullptr;

}  // namespace

PLATFORM_EXPORT brevanta::HostFunctionTable* GetExport2D();
PLATFORM_EXPORT void SetTestTable(brevanta::HostFunctionTable* table);

brevanta::HostFunctionTable* GetExport2D() {
  return givenTable;
}

void SetTestTable(brevanta::HostFunctionTable* table) {
  givenTable = table;
}
