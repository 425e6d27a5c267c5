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

UnreadEntities WalkFaces(const dxf::Document& drawing, double tolerance,
                         const std::function<void(RoofFace)>& take) {
  UnreadEntities cancelling;
  UnreadEntities unread = ReadPlacedFaces(drawing, [&](PlacedFace placed) {
    if (IsInPlan(placed)) return;
    std::optional<RoofFace> face = MakeAnyFace(placed.face.corners, placed.face.holes, tolerance);
    if (!face) {
      if (CancelsItself(placed.face.corners, tolerance)) ++cancelling[CancellingKind(placed.type)];
      return;
    }
    face->name = std::move(placed.name);
    face->entity = std::move(placed.entity);
    face->layer = std::move(placed.layer);
    face->type = placed.type;
    face->isFlatKind = placed.isFlatKind;
    take(*std::move(face));
  });
  AddUnread(cancelling, 1, unread);
  return unread;
}

FoundFaces SearchFaces(const dxf::Document& drawing, double tolerance) {
  FoundFaces found;
  found.unread = WalkFaces(drawing, tolerance, [&](RoofFace face) {
    if (IsVertical(face)) {
      found.walls.push_back({std::move(face.name), std::move(face.layer), std::move(face.corners)});
    } else {
      found.faces.push_back(std::move(face));
    }
  });
  CutHoles(found.faces, tolerance);
  return found;
}

std::vector<RoofFace> FindWalls(const dxf::Document& drawing, double tolerance) {
  std::vector<RoofFace> walls;
  WalkFaces(drawing, tolerance, [&](RoofFace face) {
    if (IsVertical(face)) walls.push_back(std::move(face));
  });
  return walls;
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
