// DialogModule.h - the exports that the module looks up in its dialog module.
#pragma once

#include <cstdint>

#include "inc/WindowParams.h"

namespace brevanta {

constexpr const char* DIALOG_MODULE = "BREVANTA_D.CRX";

// "Dialog" shows and edits the record in place. `editFlag` is 1 when an existing window is edited: the dialog
// then loads its values into the record and removes its entities when the user confirms. Exactly
// DIALOG_CONFIRMED lets the module insert the window.
constexpr const char* DIALOG_EXPORT = "Dialog";
constexpr std::int32_t DIALOG_CONFIRMED = 1;
using DialogFunction = std::int32_t (*)(void* hostContext, WindowParams* record, std::int32_t dialogArg,
                                        std::int32_t editFlag);

// "EraseWindow" erases a window of the user's choice; its answer goes back to the host.
constexpr const char* ERASE_WINDOW_EXPORT = "EraseWindow";
using EraseWindowFunction = std::int32_t (*)();

// `editMode` of the edit command that erases instead of running the dialog.
constexpr std::int32_t EDIT_MODE_ERASE = 1;

}  // namespace brevanta
