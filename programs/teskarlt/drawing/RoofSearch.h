// RoofSearch.h - finds the faces of a drawing that can take a roof window.
#pragma once

#include <string_view>
#include <vector>

#include "teskarlt/drawing/RoofFace.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct RoofFaces {
  std::vector<RoofFace> planar;
  std::vector<RoofFace> warped;  // no window fits into them
};

// The faces of the model space in the order of the file: 3D faces, the faces of polyface and polygon meshes,
// and closed 3D polylines. Planar are those whose warp is at most `tolerance` (drawing units). Left out are
// vertical faces and the faces of roof windows.
RoofFaces FindAllRoofFaces(const dxf::Document& drawing, double tolerance);

// The planar ones of them.
std::vector<RoofFace> FindRoofFaces(const dxf::Document& drawing, double tolerance);

// The faces of that name (RoofFace.h), without regard to case; several where the drawing uses a handle twice.
std::vector<const RoofFace*> FacesNamed(const std::vector<RoofFace>& faces, std::string_view name);

}  // namespace teskarlt
