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
// than `least` above it, plumb in the unit of the faces, and come down there to it or to less than 0.3 m
// above it; and those all of whose corners are corners of such faces, as the top of a chimney. A face that
// rises above the plane in several places counts as often. Left out are level lines and fillings of plans,
// and the upper skin of a roof of which the plane is the lower one: parallel surfaces on the layer of the
// roof, or over most of it.
std::vector<Obstacle> ObstaclesOn(const Plane& plane, const std::string& layer, const PlanBox& area,
                                  double least, const Roofs& roofs);

}  // namespace teskarlt
