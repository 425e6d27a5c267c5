// WindowRules.h - what a window must keep to, wherever it is placed.
#pragma once

#include "inc/WindowParams.h"

namespace brevanta {

// Throws Refusal when a size, a choice or the opening code of the record is not one that can be built.
void CheckWindow(const WindowParams& record);

}  // namespace brevanta
