// Intersections.cpp - elementary intersections of points, lines and planes.
#include "geometry/Intersections.h"

#include <cmath>

namespace geometry {

int LineLineXY(const Vec3& p0, const Vec3& p1, const Vec3& p2, const Vec3& p3, Vec3& point, double& t,
               double& u) {
  Vec3 d1{};
  Vec3 d2{};
  Vec3 w{};
  VecSub(p1, p0, d1);
  VecSub(p3, p2, d2);
  VecSub(p2, p0, w);
  const double den = d2.x * d1.y - d1.x * d2.y;
  const double nt = d2.x * w.y - w.x * d2.y;
  const double nu = w.x * d1.y - d1.x * w.y;
  if (std::abs(den) < KernelTolerance) {
    const bool coincide = std::abs(nt) < KernelTolerance && std::abs(nu) < KernelTolerance;
    return coincide ? INTERSECT_CONTAINED : INTERSECT_PARALLEL;
  }
  t = nt / den;
  u = -nu / den;
  point = {p0.x + t * d1.x, p0.y + t * d1.y, 0.0};
  return INTERSECT_POINT;
}

int PointOnPlane3(const Vec3& a, const Vec3& b, const Vec3& c, const Vec3& q) {
  Vec3 ab{};
  Vec3 ac{};
  Vec3 n{};
  VecSub(b, a, ab);
  VecSub(c, a, ac);
  VecCross(ab, ac, n);
  return std::abs(VecDot(n, a) - VecDot(n, q)) < KernelTolerance ? 1 : 0;
}

int PointOnSegment(const Vec3& a, const Vec3& b, const Vec3& c) {
  constexpr int offLine = 0;
  constexpr int onSegment = 1;
  constexpr int outside = 2;
  Vec3 u{};
  Vec3 w{};
  Vec3 e{};
  VecSub(b, a, u);
  VecSub(c, a, w);
  VecSub(c, b, e);
  const double lu = VecLength(u);
  const double lw = VecLength(w);
  const double le = VecLength(e);
  if (lu < KernelTolerance || lw < KernelTolerance) return outside;
  Vec3 across{};
  VecNormalize(u, u);
  VecNormalize(w, w);
  VecCross(u, w, across);
  if (VecLength(across) > KernelTolerance) return offLine;
  return lu + KernelTolerance > lw + le ? onSegment : outside;
}

int PointLineDistance(const Vec3& p0, const Vec3& p1, const Vec3& q, double& distance) {
  Vec3 d{};
  VecSub(p1, p0, d);
  const double squared = VecDot(d, d);
  if (squared < KernelTolerance) return STATUS_ERROR;
  Vec3 toFoot{};
  VecSub(q, p0, toFoot);
  VecScale(d, VecDot(d, toFoot) / squared, d);
  Vec3 foot{};
  VecAdd(p0, d, foot);
  VecSub(foot, q, toFoot);
  distance = VecLength(toFoot);
  return STATUS_NORMAL;
}

int LinePlane(const Vec3& p, const Vec3& direction, const Vec3& planePoint, const Vec3& planeNormal,
              double& t) {
  const double den = VecDot(direction, planeNormal);
  const double num = VecDot(p, planeNormal) - VecDot(planePoint, planeNormal);
  if (std::abs(den) < KernelTolerance) {
    return std::abs(num) < KernelTolerance ? INTERSECT_CONTAINED : INTERSECT_PARALLEL;
  }
  t = -num / den;
  return INTERSECT_POINT;
}

int PlanePlane(const Vec3& p0, const Vec3& n0, const Vec3& p1, const Vec3& n1, Vec3& point, Vec3& direction) {
  Vec3 along{};
  VecCross(n0, n1, along);
  Vec3 s{};  // in the first plane, across the common line
  VecCross(n0, along, s);
  double t = 0.0;
  const bool found = !(VecLength(along) < KernelTolerance) && LinePlane(p0, s, p1, n1, t) == INTERSECT_POINT;
  if (found) point = {p0.x + t * s.x, p0.y + t * s.y, p0.z + t * s.z};
  direction = along;
  return found ? 0 : -1;
}

}  // namespace geometry
