// OutlineHoles.h - closed polylines that are holes in the faces of others.
#pragma once

#include <vector>

#include "teskarlt/drawing/RoofFace.h"

namespace teskarlt {

// Makes holes of faces that are closed polylines within other ones, on the same layer and in the same plane;
// within a hole, the next one is a face again. One that is filled stays a face of its own: by a face of
// another kind or layer that lies in the same plane. `tolerance` is a millimetre in drawing units.
void CutHoles(std::vector<RoofFace>& faces, double tolerance);

}  // namespace teskarlt
