// RoofFaces.cpp - the roof that the user chose for the window.
#include "dialog/RoofFaces.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "dialog/Refusal.h"
#include "geometry/Vectors.h"
#include "inc/RecordPoints.h"

namespace brevanta {

namespace {

using geometry::Vec3;

// Twice the area of the triangle.
double Spread(const Vec3& a, const Vec3& b, const Vec3& c) {
  return geometry::VecLength(Cross(Difference(b, a), Difference(c, a)));
}

// The corner for which the measure is largest.
template <typename Measure>
const Vec3& Farthest(const FaceCorners& face, Measure measure) {
  return *std::max_element(face.begin(), face.end(),
                           [&](const Vec3& a, const Vec3& b) { return measure(a) < measure(b); });
}

// The corners that `read` puts into a buffer of a capacity, giving their number.
template <typename Read>
FaceCorners ReadCorners(Read read) {
  static_assert(sizeof(Vec3) == 3 * sizeof(double));
  const std::int32_t count = read(nullptr, 0);
  FaceCorners corners(static_cast<std::size_t>(std::max(count, 0)));
  if (count > 0) read(&corners[0].x, count);
  return corners;
}

std::vector<FaceCorners> FindFaces(const DialogServices& services, const double (&low)[2],
                                   const double (&high)[2]) {
  std::vector<FaceCorners> faces;
  const std::int32_t count = services.findRoofFaces(services.context, low, high);
  faces.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (std::int32_t index = 0; index < count; ++index) {
    faces.push_back(ReadCorners([&](double* corners, std::int32_t capacity) {
      return services.roofFace(services.context, index, corners, capacity);
    }));
  }
  return faces;
}

}  // namespace

Roof ChosenRoof(const DialogServices& services) {
  std::int32_t isBoundary = 0;
  FaceCorners span = ReadCorners([&](double* corners, std::int32_t capacity) {
    return services.roofPlane(services.context, corners, capacity, &isBoundary);
  });
  return {std::move(span), isBoundary != 0};
}

std::vector<FaceCorners> RoofFacesNear(const DialogServices& services, const FaceCorners& points) {
  double low[2] = {points[0].x, points[0].y};
  double high[2] = {points[0].x, points[0].y};
  for (const Vec3& point : points) {
    low[0] = std::min(low[0], point.x);
    low[1] = std::min(low[1], point.y);
    high[0] = std::max(high[0], point.x);
    high[1] = std::max(high[1], point.y);
  }
  return FindFaces(services, low, high);
}

std::vector<FaceCorners> RoofFaces(const DialogServices& services) {
  constexpr double FAR = std::numeric_limits<double>::max();
  return FindFaces(services, {-FAR, -FAR}, {FAR, FAR});
}

void SpanPlane(const FaceCorners& face, RecordPoint (&points)[3]) {
  if (face.size() < 3) throw Refusal("a roof needs three points");
  if (face.size() == 3) {
    std::transform(face.begin(), face.end(), points, ToRecordPoint);
    return;
  }
  const Vec3& a = face.front();
  const Vec3& b = Farthest(face, [&](const Vec3& p) { return Distance(a, p); });
  const Vec3& c = Farthest(face, [&](const Vec3& p) { return Spread(a, b, p); });
  points[0] = ToRecordPoint(a);
  points[1] = ToRecordPoint(b);
  points[2] = ToRecordPoint(c);
}

}  // namespace brevanta
