// EntityFaces.h - the faces that an entity of a drawing is made of.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/drawing/EntityFace.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct EntityFaces {
  const char* type = "";  // for people: "3DFACE", "POLYFACE MESH", "LWPOLYLINE"; empty where it can have none
  std::string layer;      // UTF-8
  bool isFlatKind =
      false;  // of a kind with which plans are drawn too: 2D polylines, hatches, SOLID and TRACE
  std::vector<EntityFace> faces;
};

// Whether entities of this type can have faces.
bool CanHaveFaces(std::string_view type);

// The faces of a 3D face, of a MESH (those drawn, without subdivision), of a polyface or polygon mesh, of a
// SOLID or TRACE, within a closed polyline of any kind and of a HATCH; they need not be planar. A polyline is
// closed by its flag, or where its last point is the first one again. Arcs are in steps of at most 5 degrees.
// A face whose corners are not all known keeps its place without any. No faces for other entities, and for a
// hatch of which a boundary is an ellipse or spline. `lists` are the entity's own one and those of its
// vertices.
EntityFaces FacesOf(const std::vector<dxf::TagList>& lists);
EntityFaces FacesOf(const dxf::Document& drawing, const dxf::Entity& entity);

}  // namespace teskarlt
