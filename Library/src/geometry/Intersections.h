// Intersections.h - elementary intersections, distances and incidence tests of points, lines and planes.
#pragma once

#include "geometry/Vec3.h"

namespace geometry {

// How two lines in the plan, or a line and a plane, lie to each other.
constexpr int INTERSECT_CONTAINED = 1;  // the lines coincide; the line lies in the plane
constexpr int INTERSECT_PARALLEL = 2;
constexpr int INTERSECT_POINT = 3;

// Intersects, in the XY plane only, the line through p0 and p1 with the line through p2 and p3. Gives
// INTERSECT_POINT with the point p0 + t (p1 - p0) = p2 + u (p3 - p2), whose z is always 0, or one of the two
// other cases with nothing written.
int LineLineXY(const Vec3& p0, const Vec3& p1, const Vec3& p2, const Vec3& p3, Vec3& point, double& t,
               double& u);

// 1 when q lies in the plane through a, b and c, else 0. The normal is not made a unit vector, so the test
// gets stricter with the size of the triangle.
int PointOnPlane3(const Vec3& a, const Vec3& b, const Vec3& c, const Vec3& q);

// Where c lies to the segment from a to b: 1 on it; 2 on its line but outside, also when a and b or a and c
// coincide; 0 off the line.
int PointOnSegment(const Vec3& a, const Vec3& b, const Vec3& c);

// Distance of q from the line through p0 and p1: STATUS_NORMAL, or STATUS_ERROR, with nothing written, when
// the squared distance of p0 and p1 is below the tolerance.
int PointLineDistance(const Vec3& p0, const Vec3& p1, const Vec3& q, double& distance);

// Intersects the line p + t direction with the plane through planePoint; neither vector needs unit length.
// Gives INTERSECT_POINT with t, or one of the two other cases with t not written.
int LinePlane(const Vec3& p, const Vec3& direction, const Vec3& planePoint, const Vec3& planeNormal,
              double& t);

// The line common to two planes, each given by a point and a normal: 0 with a point and the direction n0 x
// n1, which is not normalised; -1, with the point untouched, when that is shorter than 0.01 (the tolerance's
// root: for unit normals, planes within 0.57 degrees of parallel). The direction is written in every case.
int PlanePlane(const Vec3& p0, const Vec3& n0, const Vec3& p1, const Vec3& n1, Vec3& point, Vec3& direction);

}  // namespace geometry
