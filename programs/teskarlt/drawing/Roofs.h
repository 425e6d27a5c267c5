// Roofs.h - the roofs of a drawing: its faces, the surfaces that they make, and which lie over a point.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "teskarlt/drawing/PlanIndex.h"
#include "teskarlt/drawing/RoofFace.h"
#include "teskarlt/drawing/RoofSurface.h"
#include "teskarlt/drawing/UnreadEntities.h"
#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// A face over or under a point of the plan; both belong to the Roofs that gave them.
struct FaceOver {
  const RoofFace* face;
  const RoofSurface* surface;
  double height;  // of the surface's plane at the point, drawing units
};

class Roofs {
 public:
  // `tolerance` is a millimetre in the unit of the faces, which are drawing units where nothing else is said;
  // `unread` is what of the drawing may be a roof besides, `walls` are its vertical faces.
  Roofs(std::vector<RoofFace> faces, double tolerance, const WorkingUnit& unit = IN_DRAWING_UNITS,
        UnreadEntities unread = {}, std::vector<Wall> walls = {});

  double Tolerance() const { return tolerance_; }

  // Of the faces.
  const WorkingUnit& Unit() const { return unit_; }

  // Whether no face can take a window.
  bool IsEmpty() const;

  // What may hold roofs that were not found.
  const UnreadEntities& Unread() const { return unread_; }

  // In the order given. Steep ones are among them.
  const std::vector<RoofFace>& Faces() const { return faces_; }

  // The vertical faces in the order given.
  const std::vector<Wall>& Walls() const { return walls_; }

  // In the order of their first faces (RoofSurface.h).
  const std::vector<RoofSurface>& Surfaces() const { return surfaces_; }

  // The surface of that name, without regard to case; null when there is none.
  const RoofSurface* SurfaceNamed(std::string_view name) const;

  // The surface of a face of Faces(); null for one that has none (RoofSurface.h).
  const RoofSurface* SurfaceOf(const RoofFace& face) const;

  // The faces of surfaces, planar or not, over and under (x, y), in the order of Faces().
  std::vector<FaceOver> FacesAt(double x, double y) const;

  // The uppermost of them, the first of several at the same height.
  std::optional<FaceOver> UppermostAt(double x, double y) const;

  // The faces whose boxes in the plan touch the area, in the order of Faces().
  std::vector<const RoofFace*> FacesNear(const PlanBox& area) const;

  // The same for Walls().
  std::vector<const Wall*> WallsNear(const PlanBox& area) const;

  // Whether a vertical face has that name, without regard to case.
  bool IsWall(std::string_view name) const;

  // The faces of that name (RoofSearch.h), also of one that it had before, without regard to case; several
  // where the drawing uses a handle twice.
  std::vector<const RoofFace*> FacesNamed(std::string_view name) const;

 private:
  std::vector<RoofFace> faces_;
  std::vector<Wall> walls_;
  UnreadEntities unread_;
  double tolerance_;
  WorkingUnit unit_;
  PlanIndex index_;
  PlanIndex wallIndex_;
  std::vector<RoofSurface> surfaces_;
  std::vector<std::size_t> surfaceOf_;                               // by the number of the face; NO_SURFACE
  std::unordered_map<std::string, std::vector<std::size_t>> named_;  // numbers of faces by folded names
  std::unordered_map<std::string, std::size_t> namedSurfaces_;       // and of surfaces
};

// The roofs of the model space, in drawing units; and in those in which windows are computed.
Roofs FindRoofs(const dxf::Document& drawing, double tolerance);
Roofs FindRoofs(const dxf::Document& drawing, const WorkingUnit& unit);

}  // namespace teskarlt
