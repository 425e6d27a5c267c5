// FaceCover.h - how much of a convex outline a set of faces covers, in the plan.
#pragma once

#include <vector>

#include "geometry/Vec3.h"

namespace brevanta {

using PlanPolygon = std::vector<geometry::Vec3>;  // corners in order, either way round; z has no part in it

// The area, not negative.
double PlanArea(const PlanPolygon& polygon);

// The area of the convex outline that lies inside the polygon, which may be concave.
double CoveredArea(const PlanPolygon& outline, const PlanPolygon& polygon);

}  // namespace brevanta
