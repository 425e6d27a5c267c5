// FaceOutput.h - writes one face of a window into the drawing.
#pragma once

#include <array>
#include <cstdint>

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "arx/BvMakeWindow/EntityCodes.h"

namespace brevanta {

// 1 when the edge that starts at corner 1 to 4 is visible; any other value hides it.
using EdgeFlags = std::array<std::uint8_t, 4>;

// Hands a 3D face with the corners c1 to c4, roof-local, to the host, on the layer of window bodies and with
// the window's extended data. The host's answer is ignored.
void WriteFace(const CbvMakeWindow& window, const GcGePoint3d& c1, const GcGePoint3d& c2,
               const GcGePoint3d& c3, const GcGePoint3d& c4, const EdgeFlags& edges, std::int32_t colour);

// The list that WriteFace hands over; the caller releases it with FreeValueList.
ValueNode* BuildFaceList(const CbvMakeWindow& window, const std::array<GcGePoint3d, 4>& corners,
                         const EdgeFlags& edges, std::int32_t colour);

}  // namespace brevanta
