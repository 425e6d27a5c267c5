// RingsAround.h - the rings around what polygons of a plane cover together.
#pragma once

#include <vector>

#include "teskarlt/drawing/SlopeFrame.h"

namespace teskarlt {

// The area of the ring, positive when it runs counter-clockwise.
double SignedArea(const SlopeRing& ring);

// The rings around what the polygons cover together, the largest first: counter-clockwise around what is
// covered, clockwise around holes. The polygons may run either way round and lie over one another. Corners
// within `gap` of one another become one, and so do a corner and an edge, which closes slivers and gaps of
// that width; corners on a straight edge are left out.
std::vector<SlopeRing> RingsAround(const std::vector<SlopeRing>& polygons, double gap);

// What the rings enclose, less their holes, in square drawing units.
double AreaWithin(const std::vector<SlopeRing>& rings);

}  // namespace teskarlt
