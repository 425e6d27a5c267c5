// TestDialog.h - between the test dialog module and the program that plays the host.
#pragma once

#include <cstdint>

#include "inc/WindowParams.h"

// What the test programs hand in as `hostContext`: "Dialog" of the test module calls straight back.
struct TestDialogContext {
  std::int32_t (*run)(TestDialogContext* context, brevanta::WindowParams* record, std::int32_t dialogArg,
                      std::int32_t editFlag);
};

// "EraseWindow" has no arguments and reaches the test through this export of the program.
constexpr const char* TEST_ERASE_EXPORT = "TestEraseWindow";
using TestEraseFunction = std::int32_t (*)();
