// RoofSurface.h - the surfaces of roofs: faces that continue each other in one plane.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "teskarlt/drawing/PlanIndex.h"
#include "teskarlt/drawing/RoofFace.h"

namespace teskarlt {

// What people call a roof: in drawings often several faces, and slivers between them.
struct RoofSurface {
  std::string name;                // "R1", "R2" ...; empty where it takes no window
  std::vector<std::size_t> faces;  // their numbers in the list of faces, the largest first
  Plane plane;                     // the best fit, in which each face counts by its area
  double warp = 0.0;               // how far the farthest corner lies off the plane, drawing units
  PlanBox box;                     // around its faces
  bool isPlanar = false;           // it can take a window
};

// True below 1 degree: the ground, a floor, the top of a chimney.
bool IsFlat(const RoofSurface& surface);

// The surfaces that the faces make, each face in at most one. From the largest face on, a surface walks over
// common edges as long as the next face has the same direction, within 2 degrees or being a sliver, and lies
// in the plane within the WarpLimit of the largest. A face that is not planar stays alone, one that is steep
// and no sliver has no surface. They come in the order of their first faces, and those that are planar are
// named in that order, so that the same faces always bear the same names. `index` is that of the faces'
// boxes; `tolerance` a millimetre in drawing units.
std::vector<RoofSurface> SurfacesOf(const std::vector<RoofFace>& faces, const PlanIndex& index,
                                    double tolerance);

}  // namespace teskarlt
