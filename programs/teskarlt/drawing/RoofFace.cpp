// RoofFace.cpp - makes and measures the faces of a drawing.
#include "teskarlt/drawing/RoofFace.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/Vectors.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr double VERTICAL_LIMIT = 1e-4;  // of the unit normal's z; the module takes no steeper roof

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

// The point in the middle of the corners, of which there is at least one; seen from the first one, since far
// from the origin sums lose their last digits.
Vec3 Middle(const std::vector<Vec3>& corners) {
  Vec3 sum{};
  for (const Vec3& corner : corners)
    sum = Sum(sum, Difference(corner, corners[0]));
  return Moved(corners[0], sum, 1.0 / static_cast<double>(corners.size()));
}

// The diagonal of the box around the face.
double Extent(const RoofFace& face) {
  Vec3 low = face.corners[0];
  Vec3 high = low;
  for (const Vec3& corner : face.corners) {
    low = {std::min(low.x, corner.x), std::min(low.y, corner.y), std::min(low.z, corner.z)};
    high = {std::max(high.x, corner.x), std::max(high.y, corner.y), std::max(high.z, corner.z)};
  }
  return Distance(low, high);
}

// Twice its area times its unit normal.
Vec3 AreaVectorOf(const RoofFace& face) {
  Vec3 area = AreaVector(face.corners);
  for (const Ring& hole : face.holes)
    area = Sum(area, AreaVector(hole));
  return area;
}

// The holes that have an area, all of them the other way round than the corners.
std::vector<Ring> HolesIn(const Ring& corners, const std::vector<Ring>& holes, double tolerance) {
  std::vector<Ring> made;
  for (const Ring& hole : holes) {
    Ring ring = TurnedAgainst(corners, WithoutRepeats(hole));
    if (geometry::VecLength(AreaVector(ring)) > tolerance * tolerance) made.push_back(std::move(ring));
  }
  return made;
}

}  // namespace

std::optional<RoofFace> MakeRoofFace(const std::vector<Vec3>& corners, double tolerance) {
  return MakeRoofFace(corners, {}, tolerance);
}

std::optional<RoofFace> MakeRoofFace(const std::vector<Vec3>& corners, const std::vector<Ring>& holes,
                                     double tolerance) {
  std::optional<RoofFace> face = MakeAnyFace(corners, holes, tolerance);
  if (face && IsVertical(*face)) return std::nullopt;
  return face;
}

std::optional<RoofFace> MakeAnyFace(const std::vector<Vec3>& corners, const std::vector<Ring>& holes,
                                    double tolerance) {
  RoofFace face;
  face.corners = WithoutRepeats(corners);
  if (face.corners.size() < 3) return std::nullopt;
  face.holes = HolesIn(face.corners, holes, tolerance);
  const Vec3 area = AreaVectorOf(face);
  const double twiceArea = geometry::VecLength(area);
  if (!(twiceArea > tolerance * tolerance)) return std::nullopt;
  face.plane = {Middle(face.corners), Scaled(area, (area.z < 0 ? -1.0 : 1.0) / twiceArea)};
  if (!(face.plane.normal.z >= 0)) return std::nullopt;  // where numbers end
  return face;
}

bool IsVertical(const RoofFace& face) {
  return face.plane.normal.z < VERTICAL_LIMIT;
}

bool CancelsItself(const std::vector<Vec3>& corners, double tolerance) {
  constexpr double LEAST_SIDE = 100.0;  // millimetres; a smaller part is no roof
  const std::vector<Vec3> kept = WithoutRepeats(corners);
  if (kept.size() < 4 || geometry::VecLength(AreaVector(kept)) > tolerance * tolerance) return false;
  for (std::size_t i = 1; i + 1 < kept.size(); ++i) {
    const Vec3 part = Cross(Difference(kept[i], kept[0]), Difference(kept[i + 1], kept[0]));
    const double twiceArea = geometry::VecLength(part);
    if (std::sqrt(twiceArea) > LEAST_SIDE * tolerance && std::abs(part.z) >= VERTICAL_LIMIT * twiceArea)
      return true;
  }
  return false;
}

double Warp(const RoofFace& face, const Plane& plane) {
  double warp = 0.0;
  const auto measure = [&](const Ring& ring) {
    for (const Vec3& corner : ring)
      warp = std::max(warp, std::abs(DistanceFrom(plane, corner)));
  };
  measure(face.corners);
  std::for_each(face.holes.begin(), face.holes.end(), measure);
  return warp;
}

double Warp(const RoofFace& face) {
  return Warp(face, face.plane);
}

double WarpLimit(const RoofFace& face, double tolerance) {
  constexpr double PART_OF_EXTENT = 1.0 / 500.0;
  return std::max(ROOF_UNEVENNESS * tolerance, PART_OF_EXTENT * Extent(face));
}

bool IsPlanar(const RoofFace& face, double tolerance) {
  return Warp(face) <= WarpLimit(face, tolerance);
}

bool IsSteep(const RoofFace& face) {
  constexpr double STEEPEST = 85.0;  // degrees
  return Pitch(face.plane) > STEEPEST;
}

bool IsNarrow(const RoofFace& face, double tolerance) {
  constexpr double MILLIMETRES = 50.0;
  double longest = 0.0;
  for (std::size_t i = 0; i < face.corners.size(); ++i)
    longest = std::max(longest, Distance(face.corners[i], face.corners[(i + 1) % face.corners.size()]));
  return 2 * Area(face) < MILLIMETRES * tolerance * longest;
}

double Area(const RoofFace& face) {
  return geometry::VecLength(AreaVectorOf(face)) / 2;
}

bool LiesOver(const RoofFace& face, double x, double y) {
  return LiesOver(face.corners, x, y) &&
         std::none_of(face.holes.begin(), face.holes.end(),
                      [&](const Ring& hole) { return SideOf(hole, x, y) == RingSide::Inside; });
}

bool LiesOver(const Ring& corners, double x, double y) {
  return SideOf(corners, x, y) != RingSide::Outside;
}

}  // namespace teskarlt
