// RoofFace.h - a planar face of a drawing that can take a roof window, and which face lies over a point.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "geometry/Vec3.h"

namespace teskarlt {

// Corners in order around the face, in drawing coordinates and units.
struct RoofFace {
  std::string name;   // handle of its entity; "HANDLE/N" for face N, from 1, of an entity of several
  std::string layer;  // UTF-8
  std::string type;   // "3DFACE", "POLYFACE MESH", "POLYGON MESH" or "3D POLYLINE"
  std::vector<geometry::Vec3> corners;
  geometry::Vec3 normal;  // unit length, z positive
};

// The face with these corners when it has an area, for which `tolerance` (drawing units) is a length, and is
// not vertical; consecutive corners that coincide become one. Names and layer stay empty.
std::optional<RoofFace> MakeRoofFace(const std::vector<geometry::Vec3>& corners, double tolerance);

// How far the farthest corner lies off the plane through the first one with the face's mean normal, in
// drawing units; 0 but for rounding in a planar face.
double Warp(const RoofFace& face);

// Degrees from the horizontal, from 0 up to but not 90.
double Pitch(const RoofFace& face);

// Direction in which the face falls, in the plan: degrees counter-clockwise from the drawing's x axis, from 0
// up to but not 360; none for a flat face.
std::optional<double> FallDirection(const RoofFace& face);

// The face's own area, in square drawing units.
double Area(const RoofFace& face);

// Height of the face over (x, y); none when the point does not lie within the face in the plan. The edges
// belong to it.
std::optional<double> HeightOver(const RoofFace& face, double x, double y);

// The uppermost face over (x, y), the first of several at the same height; null when there is none.
const RoofFace* UppermostOver(const std::vector<RoofFace>& faces, double x, double y);

// The other faces that lie in the plane of `face` within `tolerance` (drawing units).
std::vector<const RoofFace*> CoplanarWith(const RoofFace& face, const std::vector<RoofFace>& faces,
                                          double tolerance);

}  // namespace teskarlt
