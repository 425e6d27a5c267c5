// PlanDirection.cpp - a point against a segment by directions in the plan.
#include "geometry/PlanDirection.h"

#include <cmath>

#include "geometry/Trigonometry.h"

namespace geometry {

namespace {

// This classification's own tolerance; equal to the kernel's, but not tied to it.
constexpr double CLASS_TOLERANCE = 0.0001;

bool Near(const Vec3& a, const Vec3& b) {
  return NearPoint(a, b, CLASS_TOLERANCE) != 0;
}

bool SameBucket(double a, double b) {
  return BucketCompare(a, b, CLASS_TOLERANCE) == 0;
}

// The direction with the last bucket before the full turn counted as 0.
double WrappedDirection(const Vec3& from, const Vec3& to) {
  double direction = PlanDirection(from, to);
  if (direction > TWO_PI) direction -= TWO_PI;
  return SameBucket(direction, TWO_PI) ? 0.0 : direction;
}

std::int8_t ClassifyOnVertical(const Vec3& p0, const Vec3& p1, const Vec3& q) {
  if (p0.z < q.z && q.z < p1.z) return ON_SEGMENT;
  return Distance3(p1, q) > Distance3(p0, q) ? BEFORE_START : BEYOND_END;
}

}  // namespace

double Distance3(const Vec3& a, const Vec3& b) {
  Vec3 difference{};
  VecSub(b, a, difference);
  return VecLength(difference);
}

int NearPoint(const Vec3& a, const Vec3& b, double tolerance) {
  return Distance3(a, b) < tolerance ? 1 : 0;
}

double PlanDirection(const Vec3& from, const Vec3& to) {
  const double direction = ArcTangent2(to.y - from.y, to.x - from.x);
  return direction < 0.0 ? direction + TWO_PI : direction;
}

int BucketCompare(double a, double b, double tolerance) {
  if (tolerance != 0.0) {
    const double width = 10.0 * tolerance;
    a = std::floor(a / width);
    b = std::floor(b / width);
  }
  return a < b ? -1 : a > b ? 1 : 0;
}

std::int8_t ClassifyOnSegment(const Vec3& p0, const Vec3& p1, const Vec3& q) {
  if (Near(p0, p1)) return Near(q, p0) ? ON_SEGMENT : OFF_LINE;
  if (Near(q, p0) || Near(q, p1)) return ON_SEGMENT;
  if (p0.x == p1.x && p0.y == p1.y) return ClassifyOnVertical(p0, p1, q);

  const bool onRayFromStart = SameBucket(WrappedDirection(p0, p1), WrappedDirection(p0, q));
  const bool onRayFromEnd = SameBucket(WrappedDirection(p1, p0), WrappedDirection(p1, q));
  if (onRayFromStart && onRayFromEnd) return ON_SEGMENT;
  if (onRayFromStart) return BEYOND_END;
  return onRayFromEnd ? BEFORE_START : OFF_LINE;
}

}  // namespace geometry
