// SizeWords.h - sizes of a window that can only be meant in millimetres or centimetres.
#pragma once

#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// Throws Error, naming the size that was probably meant, for a setting of a window's size that no window has
// in metres, and for a length with a decimal comma.
void RefuseOtherUnits(const FieldSetting& setting);

}  // namespace teskarlt
