// Glb.h - a drawing as a 3D model that other programs read.
#pragma once

#include <string>

#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// A binary glTF 2.0 file: metres, y up, the middle of the drawing's plan at the origin and its lowest point
// at height 0. One node a window, with its name and its values as extras, and one a layer for the rest of the
// drawing, named after it; within a window, too, there is a node a layer. Surfaces are triangles, of windows
// with the materials "frame" and "glass"; edges and lines are line segments with dashes cut out, and what is
// drawn under a pane lies on it. Surfaces, their edges and the closed curves that outline them carry the
// number of the surface, from 1 on, in the attribute _SURFACE. The asset's extras hold the drawing's name,
// where the origin lies in the drawing, and the windows with node, number, name, label, middle, size and
// facing direction.
std::string Glb(const Scene& scene);

}  // namespace teskarlt::preview
