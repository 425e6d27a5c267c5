// Dialog.h - the exports of the dialog module (inc/DialogModule.h says what the module expects of them).
#pragma once

#include <cstdint>

#include "inc/WindowParams.h"
#include "platform/Export.h"

namespace brevanta {

// `hostContext` is the host's DialogServices. Takes the user's answers from it into the record, completes the
// placement and gives DIALOG_CONFIRMED; or 0, with the reason reported, when the window breaks a rule. With
// `editFlag` 1 the record starts from the window being edited, whose entities are taken out of the drawing
// before the confirmation.
PLATFORM_EXPORT std::int32_t Dialog(void* hostContext, WindowParams* record, std::int32_t dialogArg,
                                    std::int32_t editFlag);

// Takes the chosen window's entities out of the drawing; the services come from the host's export. Gives 1
// when there were any, else 0.
PLATFORM_EXPORT std::int32_t EraseWindow();

}  // namespace brevanta
