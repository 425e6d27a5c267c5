// PlanDirection.h - a point against a segment by directions in the plan, compared in coarse buckets.
#pragma once

#include <cstdint>

#include "geometry/Vec3.h"

namespace geometry {

// The distance of two points in drawing units.
double Distance3(const Vec3& a, const Vec3& b);

// 1 when the distance from a to b is less than the tolerance, else 0.
int NearPoint(const Vec3& a, const Vec3& b, double tolerance);

// The direction in the plan from one point to another: radians, counter-clockwise from +x, from 0 up to 2 pi.
// A direction that is negative by less than the rounding of 2 pi comes out as 2 pi itself. Equal points have
// the direction 0.
double PlanDirection(const Vec3& from, const Vec3& to);

// -1, 0 or 1 as a is below, equal to or above b. With a tolerance other than 0 the values are compared by the
// buckets of ten times the tolerance in which they lie, counted from 0: values in one bucket are equal, and
// neighbours on either side of a boundary are not, however close. A value that is not a number equals all.
int BucketCompare(double a, double b, double tolerance);

// Classes of a point against a segment.
constexpr std::int8_t OFF_LINE = -1;
constexpr std::int8_t ON_SEGMENT = 0;  // an end included
constexpr std::int8_t BEFORE_START = 1;
constexpr std::int8_t BEYOND_END = 2;

// The class of q against the segment from p0 to p1. An end is met within 0.0001 in space. Otherwise plan
// directions decide, equal within buckets of 0.001 radians, so that heights do not count: a point above the
// segment is on it, and the farther away, the wider "on the line" is. Directions on either side of a bucket's
// boundary differ, so a point within rounding of the line can be off it. Over a segment that is vertical
// (both ends with exactly the same x and y) q is on it only when p0.z < q.z < p1.z, hence never when the
// segment runs downwards, and else before p0 or beyond p1 by which of them is nearer (beyond p1 when neither
// is), wherever q lies in the plan.
std::int8_t ClassifyOnSegment(const Vec3& p0, const Vec3& p1, const Vec3& q);

}  // namespace geometry
