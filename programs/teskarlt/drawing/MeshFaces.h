// MeshFaces.h - the faces of meshes: MESH, polyface mesh and polygon mesh.
#pragma once

#include <vector>

#include "teskarlt/drawing/EntityFace.h"
#include "teskarlt/dxf/read/TagList.h"

namespace teskarlt {

// `lists` are the entity's own one and those of its vertices. A face that names a vertex that the mesh does
// not have keeps its place without corners: what it would be cannot be known.

// Of a MESH: its faces as they are drawn, before they are smoothed.
std::vector<EntityFace> FacesOfMesh(const std::vector<dxf::TagList>& lists);

// Of a POLYLINE whose vertices are followed by faces.
std::vector<EntityFace> FacesOfPolyface(const std::vector<dxf::TagList>& lists);

// Of a POLYLINE whose vertices stand in rows and columns; none when their count does not fit.
std::vector<EntityFace> FacesOfPolygonMesh(const std::vector<dxf::TagList>& lists);

}  // namespace teskarlt
