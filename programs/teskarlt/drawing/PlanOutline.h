// PlanOutline.h - what things cover in the plan, seen from above.
#pragma once

#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/Rings.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// The smallest convex ring of the plan around the points, counter-clockwise and without corners on its edges
// (A. Andrew, Another Efficient Algorithm for Convex Hulls in Two Dimensions, 1979). Its corners are points
// of the list with their heights. Of points on one line it has the two ends, of one point that alone.
Ring PlanHull(std::vector<geometry::Vec3> points);

// The hull of all the window's entities, drawing units; empty for a window without entities.
Ring PlanOutlineOf(const dxf::Document& drawing, const DrawnWindow& window);

// The point on the edges of the ring, which is not empty, that is nearest in the plan, with the edge's
// height.
geometry::Vec3 NearestOn(const Ring& ring, const geometry::Vec3& point);

// How far two points are apart in the plan.
double PlanDistance(const geometry::Vec3& a, const geometry::Vec3& b);

}  // namespace teskarlt
