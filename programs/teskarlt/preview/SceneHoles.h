// SceneHoles.h - holes that are drawn as closed polylines within others.
#pragma once

#include <cstddef>
#include <vector>

#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// Takes the surfaces of closed polylines that are holes (teskarlt/drawing/OutlineHoles.h) out of the scene,
// and cuts them out of those around them; their lines stay. `outlines` are the numbers of the surfaces of
// closed polylines, `tolerance` is a millimetre in drawing units.
void CutOutHoles(Scene& scene, const std::vector<std::size_t>& outlines, double tolerance);

}  // namespace teskarlt::preview
