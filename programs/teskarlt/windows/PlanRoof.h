// PlanRoof.h - the plane of a roof that is only drawn in plan, by an edge, its height and the pitch.
#pragma once

#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// Three points of the plane, the ends of the edge first, in the unit of the edge's points, of which
// `perMetre` are a metre. Throws Error, naming the option, when too little or too much is said of the roof,
// or when its edge has no length.
std::vector<geometry::Vec3> PlaneOf(const PlanRoof& roof, double perMetre);

}  // namespace teskarlt
