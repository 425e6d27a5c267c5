// Bridges.h - one line around a face and its holes.
#pragma once

#include <vector>

#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// The corners of a line that runs around the face and, over bridges which it takes there and back, around its
// holes; it crosses itself nowhere, so that it can be divided into triangles. Either way round. A hole that
// no bridge reaches, as one that crosses the outline, is left out.
std::vector<Vec3> LineOverBridges(const std::vector<Vec3>& corners,
                                  const std::vector<std::vector<Vec3>>& holes);

}  // namespace teskarlt::preview
