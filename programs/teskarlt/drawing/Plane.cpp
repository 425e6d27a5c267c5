// Plane.cpp - pitch and direction of a plane.
#include "teskarlt/drawing/Plane.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"

namespace teskarlt {

Plane PlaneOf(const std::vector<geometry::Vec3>& corners) {
  const geometry::Vec3 area = geometry::AreaVector(corners);
  return {corners.front(), geometry::Scaled(area, (area.z < 0 ? -1.0 : 1.0) / geometry::VecLength(area))};
}

double Pitch(const Plane& plane) {
  const geometry::Vec3& normal = plane.normal;
  return geometry::RadToDeg(geometry::ArcTangent2(std::hypot(normal.x, normal.y), normal.z));
}

std::optional<double> FallDirection(const Plane& plane) {
  constexpr double FLAT_LIMIT = 1e-4;  // of the unit normal's plan length
  const geometry::Vec3& normal = plane.normal;
  if (std::hypot(normal.x, normal.y) < FLAT_LIMIT) return std::nullopt;
  const double degrees = geometry::RadToDeg(geometry::ArcTangent2(normal.y, normal.x));
  constexpr double ROUNDING = 1e-9;  // of degrees: what falls to the east has 0, and not nearly 360
  return degrees < -ROUNDING ? degrees + 360.0 : std::max(0.0, degrees);
}

std::string_view CompassPoint(double degrees) {
  constexpr std::array<std::string_view, 16> POINTS = {"E", "ENE", "NE", "NNE", "N", "NNW", "NW", "WNW",
                                                       "W", "WSW", "SW", "SSW", "S", "SSE", "SE", "ESE"};
  const double steps = degrees / 360.0 * POINTS.size();
  return POINTS[static_cast<std::size_t>(std::lround(steps)) % POINTS.size()];
}

}  // namespace teskarlt
