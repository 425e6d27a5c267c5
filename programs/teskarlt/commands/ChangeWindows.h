// ChangeWindows.h - how every command that changes selected windows does it.
#pragma once

#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/windows/WindowChoice.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// Changes the selected windows of the target's drawing as ordered, saves it and tells what became of them.
// Throws Error, and nothing is written then.
void ChangeWindows(WindowOptions& options, const WindowSelection& selection, const WindowOrder& order,
                   bool isLockedToo);

}  // namespace teskarlt
