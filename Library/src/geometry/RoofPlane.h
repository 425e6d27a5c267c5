// RoofPlane.h - the roof plane through three picked points, its local frame, and intersections with planes.
#pragma once

#include <cstdint>
#include <optional>

#include "geometry/Matrix4.h"
#include "geometry/Vec3.h"

namespace geometry {

// The fitted roof plane. In its local frame the fall line runs in the y-z plane, the roof rises along +y, z
// is up and the origin is the third picked point's place in the plan at height 0. World means drawing
// coordinates. A plane is horizontal when both plan components of its unit normal are below the tolerance:
// its local frame is not turned, and it may fall any way by that much.
struct RoofPlane {
  Vec3 corners[4];  // the picked points, world; the fourth repeats the third
  // The picked points, local, ordered along x by two exchanges: the first with the second, the third with the
  // fourth. The fourth is never computed, only exchanged.
  Vec3 localCorners[4];
  Vec3 normal;       // unit normal, world, z never negative
  Vec3 localNormal;  // the normal in the local frame: x = 0, y not positive but in a horizontal plane
  double originZ;    // z of the local origin; always 0
  std::int32_t isHorizontal;  // reset to 0 by each fit
  Matrix4 worldToLocal;
  Matrix4 localToWorld;  // the placement matrix
};

// The plane through three points in drawing coordinates, in either direction of picking; none when
// (p1 - p2) x (p2 - p3) is shorter than the tolerance or not a number. Points so far away that the product
// overflows give a frame of NaN.
std::optional<RoofPlane> RoofPlaneThrough(const Vec3& p1, const Vec3& p2, const Vec3& p3);

// The point from the plane's local frame to drawing coordinates, and back.
Vec3 ToWorld(const RoofPlane& plane, const Vec3& local);
Vec3 ToLocal(const RoofPlane& plane, const Vec3& world);

// The plane's angle to the horizontal in radians, from 0 to pi / 2.
double SlopeAngle(const RoofPlane& plane);

// The plane's point straight above or below p; p itself where the plane is vertical. Local coordinates.
Vec3 PointOver(const RoofPlane& plane, const Vec3& p);

// The plane's point of the height z that lies straight up or down the slope from `onPlane`; `onPlane` itself
// where the plane is too flat for that. Local coordinates.
Vec3 PointAtHeight(const RoofPlane& plane, const Vec3& onPlane, double z);

// The module-wide instance: zeroed at load, overwritten by each fit, never reset. One command thread uses it.
extern RoofPlane roofPlane;

// Fits the module-wide instance as RoofPlaneThrough does, but for the third and fourth local corner, with
// which the last fit's fourth one may be exchanged. Gives 1; or 0, with the state partly overwritten (corners
// and normal), where that gives none. `unitFactor` has no effect.
int FitRoofPlane(const Vec3& p1, const Vec3& p2, const Vec3& p3, std::int32_t unitFactor);

// The point from the local frame to drawing coordinates and back, by the last fit. `out` may be p.
void RoofToWorld(const Vec3& p, Vec3& out);
void WorldToRoof(const Vec3& p, Vec3& out);
void TransformByMatrix(const Vec3& p, const Matrix4& m, Vec3& out);

// Intersects the line p + t direction with the plane. Gives 1 and the point, or 0, with `out` untouched, when
// the line is parallel to the plane or lies in it. `out` may be p.
int ProjectAlong(const Vec3& p, const Vec3& direction, const Vec3& planePoint, const Vec3& planeNormal,
                 Vec3& out);

// Results of HitRoofPlane.
constexpr int HIT_NONE = 1;  // parallel to the roof or in it: `out` is untouched
constexpr int HIT_AHEAD = 2;
constexpr int HIT_BEHIND = 3;  // t is less than minus the tolerance

// Intersects the line p + t direction, in local coordinates, with the fitted roof.
int HitRoofPlane(const Vec3& p, const Vec3& direction, Vec3& out);

// The point common to three planes, each given by a normal of any length and a point on it: 1, or 0, with
// `out` untouched, when the normals lie in one plane (their triple product, each normal scaled to a largest
// component of 1, is at most 1e-14), when one is zero and when one is not finite.
int IntersectThreePlanes(const Vec3& nA, const Vec3& pA, const Vec3& nB, const Vec3& pB, const Vec3& nC,
                         const Vec3& pC, Vec3& out);

// The line common to two planes: 1 with a point and the direction nA x nB, which is not normalised. The point
// is where the line meets an auxiliary plane through the world origin: that across x, unless a normal lies
// along x; then that across y, unless a normal lies along y; else that across z. Gives 0 when nA x nB is
// shorter than the tolerance, as short normals make it too, and when the line does not meet the auxiliary
// plane. The direction is written in every case.
int IntersectTwoPlanes(const Vec3& pA, const Vec3& nA, const Vec3& pB, const Vec3& nB, Vec3& outPoint,
                       Vec3& outDirection);

}  // namespace geometry
