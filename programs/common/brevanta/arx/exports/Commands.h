// Commands.h - the commands that the module exports to the host, and what it expects of its dialog module.
#pragma once

#include <cstdint>

#include "inc/DialogModule.h"
#include "platform/Export.h"

namespace brevanta {

// Inserts a new roof window: runs the dialog and, when the user confirms, builds
// the window in the drawing. `hostContext` and `dialogArg` go to the dialog as they
// are, `unitFactor` is in drawing units per metre, `reserved` is not read. Gives 0
// when the dialog module cannot be loaded, else 1, whatever the dialog answered.
PLATFORM_EXPORT std::int32_t Brevanta(void* hostContext, std::int32_t unitFactor, void* reserved,
                                      std::int32_t dialogArg);

// Edits a roof window or, with `editMode` 1, erases one. Gives 0 when the dialog module cannot be loaded,
// else what "EraseWindow" or "Dialog" answered. The dialog module stays loaded afterwards.
PLATFORM_EXPORT std::int32_t EditBrevanta(void* hostContext, std::int32_t unitFactor, std::int32_t editMode);

}  // namespace brevanta
