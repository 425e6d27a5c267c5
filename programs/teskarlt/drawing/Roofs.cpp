// Roofs.cpp - the roofs of a drawing and what lies over a point.
#include "teskarlt/drawing/Roofs.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "teskarlt/drawing/RoofSearch.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt {

namespace {

constexpr std::size_t NO_SURFACE = std::numeric_limits<std::size_t>::max();

void TakeToWorking(const WorkingUnit& unit, Ring& ring) {
  for (geometry::Vec3& corner : ring)
    corner = ToWorking(corner, unit);
}

void TakeToWorking(const WorkingUnit& unit, RoofFace& face) {
  TakeToWorking(unit, face.corners);
  for (Ring& hole : face.holes)
    TakeToWorking(unit, hole);
  face.plane.point = ToWorking(face.plane.point, unit);
}

}  // namespace

Roofs::Roofs(std::vector<RoofFace> faces, double tolerance, const WorkingUnit& unit, UnreadEntities unread,
             std::vector<Wall> walls)
    : faces_(std::move(faces)),
      walls_(std::move(walls)),
      unread_(std::move(unread)),
      tolerance_(tolerance),
      unit_(unit),
      index_(BoxesOf(faces_)),
      wallIndex_(BoxesOf(walls_)),
      surfaces_(SurfacesOf(faces_, index_, tolerance)),
      surfaceOf_(faces_.size(), NO_SURFACE) {
  for (std::size_t surface = 0; surface < surfaces_.size(); ++surface) {
    for (const std::size_t face : surfaces_[surface].faces)
      surfaceOf_[face] = surface;
    const std::string& name = surfaces_[surface].name;
    if (!name.empty()) namedSurfaces_.emplace(dxf::FoldedName(name), surface);
  }
  for (std::size_t face = 0; face < faces_.size(); ++face)
    named_[dxf::FoldedName(faces_[face].name)].push_back(face);
}

bool Roofs::IsEmpty() const {
  return std::none_of(surfaces_.begin(), surfaces_.end(), [](const RoofSurface& s) { return s.isPlanar; });
}

const RoofSurface* Roofs::SurfaceOf(const RoofFace& face) const {
  const std::size_t surface = surfaceOf_[static_cast<std::size_t>(&face - faces_.data())];
  return surface == NO_SURFACE ? nullptr : &surfaces_[surface];
}

const RoofSurface* Roofs::SurfaceNamed(std::string_view name) const {
  const auto found = namedSurfaces_.find(dxf::FoldedName(name));
  return found == namedSurfaces_.end() ? nullptr : &surfaces_[found->second];
}

std::vector<const RoofFace*> Roofs::FacesNear(const PlanBox& area) const {
  std::vector<const RoofFace*> near;
  for (const std::size_t number : index_.Touching(area))
    near.push_back(&faces_[number]);
  return near;
}

std::vector<const Wall*> Roofs::WallsNear(const PlanBox& area) const {
  std::vector<const Wall*> near;
  for (const std::size_t number : wallIndex_.Touching(area))
    near.push_back(&walls_[number]);
  return near;
}

std::vector<FaceOver> Roofs::FacesAt(double x, double y) const {
  std::vector<FaceOver> found;
  for (const RoofFace* face : FacesNear({x, y, x, y})) {
    const RoofSurface* surface = SurfaceOf(*face);
    if (surface != nullptr && LiesOver(*face, x, y))
      found.push_back({face, surface, HeightAt(surface->plane, x, y)});
  }
  return found;
}

std::optional<FaceOver> Roofs::UppermostAt(double x, double y) const {
  std::optional<FaceOver> uppermost;
  for (const FaceOver& found : FacesAt(x, y))
    if (!uppermost || found.height > uppermost->height) uppermost = found;
  return uppermost;
}

std::vector<const RoofFace*> Roofs::FacesNamed(std::string_view name) const {
  std::vector<const RoofFace*> named;
  const auto found = named_.find(dxf::FoldedName(PresentName(name)));
  if (found == named_.end()) return named;
  for (const std::size_t number : found->second)
    named.push_back(&faces_[number]);
  return named;
}

bool Roofs::IsWall(std::string_view name) const {
  const std::string folded = dxf::FoldedName(PresentName(name));
  return std::any_of(walls_.begin(), walls_.end(),
                     [&](const Wall& wall) { return dxf::FoldedName(wall.name) == folded; });
}

Roofs FindRoofs(const dxf::Document& drawing, double tolerance) {
  FoundFaces found = SearchFaces(drawing, tolerance);
  return {std::move(found.faces), tolerance, IN_DRAWING_UNITS, std::move(found.unread),
          std::move(found.walls)};
}

Roofs FindRoofs(const dxf::Document& drawing, const WorkingUnit& unit) {
  const double tolerance = RoofTolerance(unit);
  FoundFaces found = SearchFaces(drawing, ToDrawn(tolerance, unit));
  for (RoofFace& face : found.faces)
    TakeToWorking(unit, face);
  for (Wall& wall : found.walls)
    TakeToWorking(unit, wall.corners);
  return {std::move(found.faces), tolerance, unit, std::move(found.unread), std::move(found.walls)};
}

}  // namespace teskarlt
