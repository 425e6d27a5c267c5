// SlopeFrame.h - coordinates on a roof: along its eaves and up its slope.
#pragma once

#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/Plane.h"

namespace teskarlt {

// A point of a plane in the plane's own frame; drawing units.
struct SlopePoint {
  double across;  // along the eaves, to the right as seen from below them
  double up;      // up the slope
};

// Corners in order; the last one is joined to the first.
using SlopeRing = std::vector<SlopePoint>;

// The frame of a plane: a point of it, and unit vectors along the eaves and up the slope. A plane that does
// not fall has them along the drawing's x and y.
struct SlopeFrame {
  geometry::Vec3 origin;
  geometry::Vec3 across;
  geometry::Vec3 up;

  // The point's foot on the plane.
  SlopePoint Of(const geometry::Vec3& p) const;

  // In drawing coordinates.
  geometry::Vec3 At(const SlopePoint& p) const;
};

SlopeFrame FrameOf(const Plane& plane);

}  // namespace teskarlt
