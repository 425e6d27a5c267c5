// TestDialog.cpp - a dialog module whose answers come from the program that plays the host.
#include "tests/arx/loaded/TestDialog.h"

#include "platform/Export.h"
#include "platform/ModuleServices.h"

PLATFORM_EXPORT std::int32_t Dialog(void* hostContext, brevanta::WindowParams* record, std::int32_t dialogArg,
                                    std::int32_t editFlag);
PLATFORM_EXPORT std::int32_t EraseWindow();

std::int32_t Dialog(void* hostContext, brevanta::WindowParams* record, std::int32_t dialogArg,
                    std::int32_t editFlag) {
  auto* context = static_cast<TestDialogContext*>(hostContext);
  return context->run(context, record, dialogArg, editFlag);
}

std::int32_t EraseWindow() {
  return ExportedFunction<TestEraseFunction>(GetModuleHandleA(nullptr), TEST_ERASE_EXPORT)();
}
