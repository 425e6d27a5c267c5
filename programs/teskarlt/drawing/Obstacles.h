// Obstacles.h - what stands through or on a roof: chimneys, dormers, walls, windows of other programs.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/SlopeFrame.h"

namespace teskarlt {

// A face that stands on a roof, as far as it rises above it.
struct Obstacle {
  std::string face;  // its name (RoofSearch.h)
  std::string layer;
  SlopeRing footprint;  // what it covers of the roof, seen from above; of an upright face all on one line
};

// What stands on the plane within the area of the plan, in the frame of the plane: the faces that rise more
// than `least` above it, plumb in the unit of the faces, and come down to it or to less than 0.3 m above it.
// Left out are level lines and fillings of plans, and the upper skin of a roof of which the plane is the
// lower one: a parallel surface over half of the area or more.
std::vector<Obstacle> ObstaclesOn(const Plane& plane, const PlanBox& area, double least, const Roofs& roofs);

}  // namespace teskarlt
