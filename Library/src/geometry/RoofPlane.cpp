// RoofPlane.cpp - the roof-plane fit, its local frame, and intersections with planes.
#include "geometry/RoofPlane.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "geometry/Intersections.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"

namespace geometry {

RoofPlane roofPlane{};

namespace {

// Three normals, each scaled to a largest component of 1, span at most this volume when they lie in one
// plane: the rounding of their triple product stays below 18 units of 2^-53.
constexpr double SINGULAR_VOLUME = 1e-14;

// Two edges from corner `first` on span the normal; true when it reaches the tolerance.
bool NormalFrom(int first, RoofPlane& plane) {
  const Vec3& a = plane.corners[first];
  const Vec3& b = plane.corners[(first + 1) % 4];
  const Vec3& c = plane.corners[(first + 2) % 4];
  plane.normal = Cross(Difference(a, b), Difference(b, c));
  return VecLength(plane.normal) >= KernelTolerance;
}

// A normal that only the fourth attempt finds is rejected too.
bool FindNormal(RoofPlane& plane) {
  int attempts = 0;
  bool found = false;
  while (!found && attempts < 4)
    found = NormalFrom(attempts++, plane);
  return attempts < 4;
}

// The turn about z that takes the normal's plan direction to local -y, in radians.
double SlopeDirection(const Vec3& normal) {
  const bool horizontal = std::abs(normal.x) < KernelTolerance && std::abs(normal.y) < KernelTolerance;
  return horizontal ? 0.0 : ArcTangent2(-normal.x, -normal.y);
}

void SetFrame(double angle, const Vec3& origin, RoofPlane& plane) {
  Matrix4 turn{};
  Matrix4 shift{};
  MatRotationZ(angle, turn);
  MatTranslation({-origin.x, -origin.y, -origin.z}, shift);
  MatMultiply(turn, shift, plane.worldToLocal);
  MatRotationZ(-angle, turn);
  MatTranslation(origin, shift);
  MatMultiply(shift, turn, plane.localToWorld);
}

void OrderAlongX(Vec3& left, Vec3& right) {
  if (left.x > right.x) std::swap(left, right);
}

// False where RoofPlaneThrough gives none, with corners and normal overwritten.
bool Fit(const Vec3& p1, const Vec3& p2, const Vec3& p3, RoofPlane& plane) {
  const Vec3 picked[4] = {p1, p2, p3, p3};  // the points may be the plane's own corners
  plane.isHorizontal = 0;
  std::copy(std::begin(picked), std::end(picked), plane.corners);
  if (!FindNormal(plane)) return false;
  VecNormalize(plane.normal, plane.normal);
  if (plane.normal.z < 0.0) VecScale(plane.normal, -1.0, plane.normal);

  SetFrame(SlopeDirection(plane.normal), {picked[2].x, picked[2].y, plane.originZ}, plane);
  for (int i = 0; i < 3; ++i)
    plane.localCorners[i] = ToLocal(plane, plane.corners[i]);
  MatTransformVector(plane.worldToLocal, plane.normal, plane.localNormal);
  OrderAlongX(plane.localCorners[0], plane.localCorners[1]);
  OrderAlongX(plane.localCorners[3], plane.localCorners[2]);
  return true;
}

bool LiesAlongX(const Vec3& n) {
  return std::abs(n.y) <= KernelTolerance && std::abs(n.z) <= KernelTolerance;
}
bool LiesAlongY(const Vec3& n) {
  return std::abs(n.x) <= KernelTolerance && std::abs(n.z) <= KernelTolerance;
}
bool LiesAlongZ(const Vec3& n) {
  return std::abs(n.x) <= KernelTolerance && std::abs(n.y) <= KernelTolerance;
}

// The normal without its size, which may be anything.
Vec3 OfSizeOne(const Vec3& n) {
  const double largest = std::max({std::abs(n.x), std::abs(n.y), std::abs(n.z)});
  return {n.x / largest, n.y / largest, n.z / largest};
}

// False when the normals lie in one plane but for rounding, and when one of them is not finite.
bool Independent(const Vec3& nA, const Vec3& nB, const Vec3& nC) {
  return std::abs(VecDot(Cross(OfSizeOne(nA), OfSizeOne(nB)), OfSizeOne(nC))) > SINGULAR_VOLUME;
}

Vec3 AuxiliaryNormal(const Vec3& nA, const Vec3& nB) {
  if (!LiesAlongX(nA) && !LiesAlongX(nB)) return {1, 0, 0};
  if (!LiesAlongY(nA) && !LiesAlongY(nB)) return {0, 1, 0};
  if (!LiesAlongZ(nA) && !LiesAlongZ(nB)) return {0, 0, 1};
  return {0, 0, 0};
}

}  // namespace

std::optional<RoofPlane> RoofPlaneThrough(const Vec3& p1, const Vec3& p2, const Vec3& p3) {
  RoofPlane plane{};
  if (!Fit(p1, p2, p3, plane)) return std::nullopt;
  return plane;
}

Vec3 ToWorld(const RoofPlane& plane, const Vec3& local) {
  Vec3 world{};
  MatTransformPoint(plane.localToWorld, local, world);
  return world;
}

Vec3 ToLocal(const RoofPlane& plane, const Vec3& world) {
  Vec3 local{};
  MatTransformPoint(plane.worldToLocal, world, local);
  return local;
}

double SlopeAngle(const RoofPlane& plane) {
  return std::abs(ArcTangent(plane.localNormal.y / plane.localNormal.z));
}

Vec3 PointOver(const RoofPlane& plane, const Vec3& p) {
  Vec3 onPlane = p;
  ProjectAlong(p, {0, 0, 1}, plane.localCorners[0], plane.localNormal, onPlane);
  return onPlane;
}

Vec3 PointAtHeight(const RoofPlane& plane, const Vec3& onPlane, double z) {
  Vec3 slid = onPlane;
  ProjectAlong({onPlane.x, onPlane.y, z}, {0, 1, 0}, onPlane, plane.localNormal, slid);
  return slid;
}

int FitRoofPlane(const Vec3& p1, const Vec3& p2, const Vec3& p3, std::int32_t /*unitFactor*/) {
  return Fit(p1, p2, p3, roofPlane) ? 1 : 0;
}

void RoofToWorld(const Vec3& p, Vec3& out) {
  MatTransformPoint(roofPlane.localToWorld, p, out);
}

void WorldToRoof(const Vec3& p, Vec3& out) {
  MatTransformPoint(roofPlane.worldToLocal, p, out);
}

void TransformByMatrix(const Vec3& p, const Matrix4& m, Vec3& out) {
  Vec3 moved{};
  MatTransformPoint(m, p, moved);
  out = moved;
}

int ProjectAlong(const Vec3& p, const Vec3& direction, const Vec3& planePoint, const Vec3& planeNormal,
                 Vec3& out) {
  double t = 0.0;
  if (LinePlane(p, direction, planePoint, planeNormal, t) != INTERSECT_POINT) return 0;
  out = {p.x + t * direction.x, p.y + t * direction.y, p.z + t * direction.z};
  return 1;
}

int HitRoofPlane(const Vec3& p, const Vec3& direction, Vec3& out) {
  double t = 0.0;
  if (LinePlane(p, direction, roofPlane.localCorners[0], roofPlane.localNormal, t) != INTERSECT_POINT)
    return HIT_NONE;
  out = {p.x + t * direction.x, p.y + t * direction.y, p.z + t * direction.z};
  return t < -KernelTolerance ? HIT_BEHIND : HIT_AHEAD;
}

int IntersectThreePlanes(const Vec3& nA, const Vec3& pA, const Vec3& nB, const Vec3& pB, const Vec3& nC,
                         const Vec3& pC, Vec3& out) {
  Matrix4 system = {{{nA.x, nA.y, nA.z, 0}, {nB.x, nB.y, nB.z, 0}, {nC.x, nC.y, nC.z, 0}, {0, 0, 0, 1}}};
  double solution[4] = {VecDot(nA, pA), VecDot(nB, pB), VecDot(nC, pC), 0};
  std::int32_t index[4];
  double parity = 0.0;
  if (LuDecompose(system, index, parity) == 0 || !Independent(nA, nB, nC)) return 0;
  LuSolve(system, index, solution);
  out = {solution[0], solution[1], solution[2]};
  return 1;
}

int IntersectTwoPlanes(const Vec3& pA, const Vec3& nA, const Vec3& pB, const Vec3& nB, Vec3& outPoint,
                       Vec3& outDirection) {
  Vec3 direction{};
  VecCross(nA, nB, direction);
  int found = 0;
  if (VecLength(direction) >= KernelTolerance)
    found = IntersectThreePlanes(nA, pA, nB, pB, AuxiliaryNormal(nA, nB), {0, 0, 0}, outPoint);
  outDirection = direction;
  return found;
}

}  // namespace geometry
