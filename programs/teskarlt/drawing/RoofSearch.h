// RoofSearch.h - finds the faces of a drawing of which roofs can be made.
#pragma once

#include <vector>

#include "teskarlt/drawing/RoofFace.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// The faces of the model space in the order of the file: 3D faces, the faces of polyface and polygon meshes,
// and closed 3D polylines. Left out are vertical faces and those of roof windows. `tolerance` is a millimetre
// in drawing units.
std::vector<RoofFace> FindFaces(const dxf::Document& drawing, double tolerance);

}  // namespace teskarlt
