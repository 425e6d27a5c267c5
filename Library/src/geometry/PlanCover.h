// PlanCover.h - how much of a convex outline a set of faces covers, in the plan.
#pragma once

#include <vector>

#include "geometry/Vec3.h"

namespace geometry {

using PlanPolygon = std::vector<Vec3>;  // corners in order, either way round; z has no part in it

// The area, not negative.
double PlanArea(const PlanPolygon& polygon);

// The area of the convex outline that lies inside at least one of the polygons. They may be concave, and
// where they lie over each other the area counts once.
double CoveredArea(const PlanPolygon& outline, const std::vector<PlanPolygon>& polygons);

}  // namespace geometry
