// RoofFace.h - a face of a drawing: its plane, how even and how steep it is, and what lies under it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/Plane.h"
#include "teskarlt/drawing/Rings.h"

namespace teskarlt {

// Drawing coordinates and units.
struct RoofFace {
  std::string name;         // RoofSearch.h; stable, and safe in a shell
  std::string entity;       // the name without the number of the face
  std::string layer;        // UTF-8
  std::string type;         // of its entity, as EntityFaces has it
  Ring corners;             // in order around the face
  std::vector<Ring> holes;  // in order around them, the other way round
  Plane plane;              // of the face's mean normal (Newell), through the middle of the corners
  bool isFlatKind = false;  // of a kind with which plans are drawn too, as EntityFaces has it
};

// A vertical face, of a wall, a chimney or the side of a dormer. Drawing coordinates and units.
struct Wall {
  std::string name;  // as RoofFace has both
  std::string layer;
  Ring corners;
};

// `tolerance` is a millimetre in drawing units (RoofTolerance in Units.h) in all of these.

// The face with these corners and holes, either way round, when it has an area, for which the tolerance is a
// length, and is not vertical; consecutive corners that coincide become one. Names and layer stay empty.
std::optional<RoofFace> MakeRoofFace(const std::vector<geometry::Vec3>& corners, double tolerance);
std::optional<RoofFace> MakeRoofFace(const std::vector<geometry::Vec3>& corners,
                                     const std::vector<Ring>& holes, double tolerance);

// The same for a face that may be vertical, too.
std::optional<RoofFace> MakeAnyFace(const std::vector<geometry::Vec3>& corners,
                                    const std::vector<Ring>& holes, double tolerance);

// True within 0.006 degrees of the vertical: the module takes no plane for such a wall.
bool IsVertical(const RoofFace& face);

// Whether the corners have no area since they cross themselves or run back on themselves, though each part
// for itself has one that is not vertical.
bool CancelsItself(const std::vector<geometry::Vec3>& corners, double tolerance);

// How far the farthest corner lies off the plane; for the face's own plane 0 but for rounding when it is
// planar.
double Warp(const RoofFace& face, const Plane& plane);
double Warp(const RoofFace& face);

constexpr double ROOF_UNEVENNESS = 20.0;  // millimetres; less does not matter to a window

// How far a corner may lie off the plane of a roof: that, or 1/500 of the face's extent where that is more,
// as roofs are in models of real towns.
double WarpLimit(const RoofFace& face, double tolerance);

bool IsPlanar(const RoofFace& face, double tolerance);

// True above 85 degrees: such a face is a wall that is not quite upright, and no roof.
bool IsSteep(const RoofFace& face);

// True below 50 mm: the direction of such a sliver between two triangles says little.
bool IsNarrow(const RoofFace& face, double tolerance);

// The face's own area without its holes, in square drawing units.
double Area(const RoofFace& face);

// Whether the point lies within the face in the plan, and in none of its holes; the edges belong to it.
bool LiesOver(const RoofFace& face, double x, double y);

// Whether it lies within the ring; the edges belong to it.
bool LiesOver(const Ring& corners, double x, double y);

}  // namespace teskarlt
