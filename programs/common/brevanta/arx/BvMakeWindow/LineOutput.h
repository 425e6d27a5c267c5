// LineOutput.h - writes one line of a window into the drawing.
#pragma once

#include <cstdint>

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "arx/BvMakeWindow/EntityCodes.h"

namespace brevanta {

// Hands a line between two roof-local points to the host, on the named layer, with the window's
// `currentLinetype` if it has one and with the window's extended data. The host's answer is ignored.
void WriteLine(const CbvMakeWindow& window, const GcGePoint3d& start, const GcGePoint3d& end,
               const char* layer, std::int32_t colour);

// The list that WriteLine hands over; the caller releases it with FreeValueList.
ValueNode* BuildLineList(const CbvMakeWindow& window, const GcGePoint3d& start, const GcGePoint3d& end,
                         const char* layer, std::int32_t colour);

}  // namespace brevanta
