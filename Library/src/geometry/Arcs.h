// Arcs.h - circular arcs in the plan: through three points, fractions along them, and their intersections.
#pragma once

#include "geometry/Vec3.h"

namespace geometry {

// All of these work in the XY plane and read z only where it is said. Lengths are drawing units; angles are
// radians, counter-clockwise from +x, as atan2 gives them. A flag `counterClockwise` is 1 or 0. A fraction is
// 0 at the arc's start, 1 at its end and above 1 beyond the end, up to a full turn; it is never clipped, so a
// hit lies on an arc when its fraction is within 0..1. Outputs may be the inputs themselves.
//
// Coordinates that are infinite or not numbers are not refused: the result is then a failure or holds NaN.

// Results of ArcThroughPoints.
constexpr int ARC_FOUND = 0;
constexpr int ARC_NONE = -1;

// The arc that runs from p0 through p1 to p2. Gives ARC_FOUND with the centre (z 0), the radius, the angles
// of the three points seen from the centre and the direction of travel. Gives ARC_NONE, with nothing written,
// when p0 and p2 are nearer than the tolerance, when p1 is nearer to the chord than the tolerance times its
// length (collinear), or when rounding leaves nothing of the turn.
int ArcThroughPoints(const Vec3& p0, const Vec3& p1, const Vec3& p2, Vec3& outCentre, double& outRadius,
                     double& outAngle0, double& outAngle1, double& outAngle2, int& outCounterClockwise);

// The fraction of the arc from start to end at which the direction from the centre towards q lies; q need not
// be on the circle. Gives 0.0 when start, end or q is nearer to the centre than the tolerance, or when the
// start's and the end's angles, as atan2 gives them, differ by less than the tolerance, a full circle
// included. A q that rounding puts just before the start lies almost a full turn behind it and has the
// fraction of that place.
double ArcFractionAt(const Vec3& start, const Vec3& end, const Vec3& centre, int counterClockwise,
                     const Vec3& q);

// The point of the arc at the fraction, at the distance of the start from the centre and with the centre's z.
// A fraction outside 0..1 goes on round the circle. A full circle (start and end in one direction) stays at
// the start. It is the centre itself when start or end is nearer to the centre than the tolerance.
void ArcPointAt(const Vec3& start, const Vec3& end, const Vec3& centre, double fraction, int counterClockwise,
                Vec3& out);

// Results of the two intersections: the number of hits, or that both arcs lie on the same circle.
constexpr int ARC_NO_HIT = 0;  // also when an arc or the line is degenerate
constexpr int ARC_ONE_HIT = 1;
constexpr int ARC_TWO_HITS = 2;
constexpr int ARC_SAME_CIRCLE = 3;

// Intersects the endless line p0 + t (p1 - p0) with the circle of the arc from arcStart through arcMid to
// arcEnd. With ARC_ONE_HIT (tangent: the discriminant of the quadratic equation in t, divided by the radius,
// is below the tolerance) the first hit, t and fraction are written; with ARC_TWO_HITS all, in the order of
// t. The hits have the z of the line. The centre and the direction of travel are written whenever the arc is
// found. The discriminant grows with the squared length of p1 - p0, so a short line is found tangent more
// readily than a long one.
int LineArcIntersect(const Vec3& p0, const Vec3& p1, const Vec3& arcStart, const Vec3& arcEnd,
                     const Vec3& arcMid, Vec3& outCentre, int& outCounterClockwise, Vec3& outHit1,
                     Vec3& outHit2, double& outT1, double& outT2, double& outFraction1, double& outFraction2);

// Intersects the circles of two arcs, each from its start through its mid to its end. With ARC_ONE_HIT
// (touching within the tolerance) the first hit and its fractions on A and on B are written, with
// ARC_TWO_HITS both hits, whose z is 0: the first lies to the right of the direction from B's centre to A's.
// A's centre and direction of travel are written when A is found, B's when both are.
//
// One circle inside the other, short of touching by less than the tolerance, counts as touching only if the
// radii are of the order of the distance of the centres; with nearly concentric circles the hits of
// ARC_TWO_HITS are then not numbers.
int ArcArcIntersect(const Vec3& startA, const Vec3& endA, const Vec3& midA, const Vec3& startB,
                    const Vec3& endB, const Vec3& midB, Vec3& outCentreA, int& outCounterClockwiseA,
                    Vec3& outCentreB, int& outCounterClockwiseB, Vec3& outHit1, Vec3& outHit2,
                    double& outFractionA1, double& outFractionA2, double& outFractionB1,
                    double& outFractionB2);

}  // namespace geometry
