// DefaultParams.h - the defaults of a window record.
#pragma once

#include "inc/WindowParams.h"

namespace brevanta {

// Writes the default of every field that has one (WindowParams.h) and nothing else: of the texts only the
// first byte; points and padding stay as they are. Returns the record.
WindowParams* SetDefaultWindowParams(WindowParams* record);

}  // namespace brevanta
