// RoofSearch.cpp - finds the faces of a drawing of which roofs can be made.
#include "teskarlt/drawing/RoofSearch.h"

#include <algorithm>
#include <utility>

#include "teskarlt/drawing/OutlineHoles.h"
#include "teskarlt/drawing/PlacedFaces.h"

namespace teskarlt {

namespace {

// Whether it is drawn in a plan: a line, or the filling of one.
bool IsInPlan(const PlacedFace& placed) {
  return placed.isFlatKind && std::all_of(placed.face.corners.begin(), placed.face.corners.end(),
                                          [](const geometry::Vec3& corner) { return corner.z == 0; });
}

}  // namespace

FoundFaces SearchFaces(const dxf::Document& drawing, double tolerance) {
  FoundFaces found;
  found.unread = ReadPlacedFaces(drawing, [&](PlacedFace placed) {
    if (IsInPlan(placed)) return;
    if (auto face = MakeRoofFace(placed.face.corners, placed.face.holes, tolerance)) {
      face->name = std::move(placed.name);
      face->entity = std::move(placed.entity);
      face->layer = std::move(placed.layer);
      face->type = placed.type;
      face->isFlatKind = placed.isFlatKind;
      found.faces.push_back(*std::move(face));
    } else if (auto upright = MakeUprightFace(placed.face.corners, tolerance)) {
      upright->name = std::move(placed.name);
      upright->layer = std::move(placed.layer);
      found.uprights.push_back(*std::move(upright));
    }
  });
  CutHoles(found.faces, tolerance);
  return found;
}

std::vector<RoofFace> FindFaces(const dxf::Document& drawing, double tolerance) {
  return SearchFaces(drawing, tolerance).faces;
}

std::string PresentName(std::string_view name) {
  std::string present(name);
  std::replace(present.begin(), present.end(), '/', '.');
  if (present.starts_with('#')) present.front() = 'N';
  return present;
}

}  // namespace teskarlt
