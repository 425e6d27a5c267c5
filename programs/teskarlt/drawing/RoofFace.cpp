// RoofFace.cpp - planar faces: making, measuring and finding them.
#include "teskarlt/drawing/RoofFace.h"

#include <algorithm>
#include <cmath>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr double VERTICAL_LIMIT = 1e-4;  // of the unit normal's z; the module takes no steeper roof
constexpr double FLAT_LIMIT = 1e-4;      // of the unit normal's plan length

bool Coincide(const Vec3& a, const Vec3& b) {
  return a.x == b.x && a.y == b.y && a.z == b.z;
}

std::vector<Vec3> WithoutRepeats(const std::vector<Vec3>& corners) {
  std::vector<Vec3> kept;
  for (const Vec3& corner : corners) {
    if (kept.empty() || !Coincide(kept.back(), corner)) kept.push_back(corner);
  }
  while (kept.size() > 1 && Coincide(kept.front(), kept.back()))
    kept.pop_back();
  return kept;
}

double DistanceFromPlane(const RoofFace& face, const Vec3& p) {
  return geometry::VecDot(face.normal, Difference(p, face.corners[0]));
}

bool OnPlanEdge(const Vec3& a, const Vec3& b, double x, double y) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double across = dx * (y - a.y) - dy * (x - a.x);
  const double length = std::hypot(dx, dy);
  constexpr double relative = 1e-9;
  if (std::abs(across) > relative * length * length) return false;
  const double along = dx * (x - a.x) + dy * (y - a.y);
  return along >= -relative * length * length && along <= (1 + relative) * length * length;
}

// Even-odd rule; points on an edge are inside.
bool InsidePlan(const std::vector<Vec3>& corners, double x, double y) {
  bool inside = false;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const Vec3& a = corners[i];
    const Vec3& b = corners[(i + 1) % corners.size()];
    if (OnPlanEdge(a, b, x, y)) return true;
    if ((a.y > y) == (b.y > y)) continue;
    if (x < a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x)) inside = !inside;
  }
  return inside;
}

}  // namespace

std::optional<RoofFace> MakeRoofFace(const std::vector<Vec3>& corners, double tolerance) {
  RoofFace face;
  face.corners = WithoutRepeats(corners);
  if (face.corners.size() < 3) return std::nullopt;
  const Vec3 area = AreaVector(face.corners);
  const double twiceArea = geometry::VecLength(area);
  if (!(twiceArea > tolerance * tolerance)) return std::nullopt;
  face.normal = Scaled(area, (area.z < 0 ? -1.0 : 1.0) / twiceArea);
  if (face.normal.z < VERTICAL_LIMIT) return std::nullopt;
  return face;
}

double Warp(const RoofFace& face) {
  double warp = 0.0;
  for (const Vec3& corner : face.corners)
    warp = std::max(warp, std::abs(DistanceFromPlane(face, corner)));
  return warp;
}

double Pitch(const RoofFace& face) {
  return geometry::RadToDeg(geometry::ArcTangent2(std::hypot(face.normal.x, face.normal.y), face.normal.z));
}

std::optional<double> FallDirection(const RoofFace& face) {
  if (std::hypot(face.normal.x, face.normal.y) < FLAT_LIMIT) return std::nullopt;
  const double degrees = geometry::RadToDeg(geometry::ArcTangent2(face.normal.y, face.normal.x));
  return degrees < 0 ? degrees + 360.0 : degrees;
}

double Area(const RoofFace& face) {
  return geometry::VecLength(AreaVector(face.corners)) / 2;
}

std::optional<double> HeightOver(const RoofFace& face, double x, double y) {
  if (!InsidePlan(face.corners, x, y)) return std::nullopt;
  const Vec3& o = face.corners[0];
  return o.z - (face.normal.x * (x - o.x) + face.normal.y * (y - o.y)) / face.normal.z;
}

const RoofFace* UppermostOver(const std::vector<RoofFace>& faces, double x, double y) {
  const RoofFace* uppermost = nullptr;
  double best = 0.0;
  for (const RoofFace& face : faces) {
    const std::optional<double> height = HeightOver(face, x, y);
    if (!height || (uppermost != nullptr && *height <= best)) continue;
    uppermost = &face;
    best = *height;
  }
  return uppermost;
}

std::vector<const RoofFace*> CoplanarWith(const RoofFace& face, const std::vector<RoofFace>& faces,
                                          double tolerance) {
  std::vector<const RoofFace*> found;
  for (const RoofFace& other : faces) {
    const bool coplanar = std::all_of(other.corners.begin(), other.corners.end(), [&](const Vec3& corner) {
      return std::abs(DistanceFromPlane(face, corner)) <= tolerance;
    });
    if (coplanar && &other != &face) found.push_back(&other);
  }
  return found;
}

}  // namespace teskarlt
