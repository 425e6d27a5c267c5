// SurfaceOutline.h - the outline of a roof surface: what its faces cover together.
#pragma once

#include <utility>
#include <vector>

#include "teskarlt/drawing/RoofSurface.h"
#include "teskarlt/drawing/SlopeFrame.h"

namespace teskarlt {

// Rings in the frame of the surface's plane, the largest first: counter-clockwise around what is covered,
// clockwise around holes. More than one of the first kind where the surface is in pieces.
struct SurfaceOutline {
  SlopeFrame frame;
  std::vector<SlopeRing> rings;
};

// The outline of the surface, one of those made of the faces. `tolerance` is a millimetre in drawing units.
SurfaceOutline OutlineOf(const RoofSurface& surface, const std::vector<RoofFace>& faces, double tolerance);

// Heights of the lowest and the highest corner, drawing units.
std::pair<double, double> HeightRange(const SurfaceOutline& outline);

}  // namespace teskarlt
