// EntityFaces.h - the faces that an entity of a drawing is made of.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// Corners in order around the face, in drawing coordinates and units.
struct FaceCorners {
  std::vector<geometry::Vec3> corners;
  std::uint32_t hiddenEdges = 0;  // bit k: the edge from corner k to the next one is not drawn
};

struct EntityFaces {
  const char* type = "";  // "3DFACE", "POLYFACE MESH", "POLYGON MESH" or "3D POLYLINE"
  std::string layer;      // UTF-8
  std::vector<FaceCorners> faces;
};

// The faces of a 3D face, of a polyface or polygon mesh, and the one within a closed 3D polyline, which need
// not be planar; none for other entities.
EntityFaces FacesOf(const dxf::Document& drawing, const dxf::Entity& entity);

}  // namespace teskarlt
