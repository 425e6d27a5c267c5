// Curves.h - the points along lines, polylines, arcs, ellipses and splines.
#pragma once

#include <optional>
#include <vector>

#include "geometry/Matrix4.h"
#include "geometry/Vec3.h"
#include "teskarlt/dxf/read/TagList.h"

namespace teskarlt {

using CurvePoints = std::vector<geometry::Vec3>;

// The points of an entity that is a curve, in drawing coordinates: arcs in steps of at most 5 degrees, closed
// curves ending where they begin. `lists` are the entity's own one and those of its vertices. Nothing for
// entities that are no curves, an empty list for one without extent.
std::optional<CurvePoints> PointsOf(const std::vector<dxf::TagList>& lists);

// A vertex of a polyline in a plane; `bulge` is the tangent
// of a quarter of the angle of the arc to the next one.
struct BulgeVertex {
  geometry::Vec3 point;
  double bulge = 0;
};

// The points of a polyline in the plane z = constant, of which there is at least one vertex; a closed one
// ends where it begins.
CurvePoints WithBulges(const std::vector<BulgeVertex>& vertices, bool isClosed);

// The points of an arc around the z axis of its centre from the angle `start` on, over `angle`, both radians
// and counter-clockwise.
CurvePoints ArcPoints(const geometry::Vec3& centre, double radius, double start, double angle);

// The extrusion direction of an entity that names none.
constexpr geometry::Vec3 UPWARDS = {0, 0, 1};

// From the coordinates that an entity with this extrusion direction (group 210) has, to those of the drawing:
// the arbitrary axis rule of the format.
geometry::Matrix4 ObjectToDrawing(const geometry::Vec3& extrusion);

}  // namespace teskarlt
