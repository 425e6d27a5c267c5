// RoofFaces.cpp - the roof that the user chose for the window.
#include "dialog/RoofFaces.h"

#include <algorithm>

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

FaceCorners ReadFace(const DialogServices& services, std::int32_t index, std::int32_t& isBoundary) {
  const std::int32_t count = services.roofFace(services.context, index, nullptr, 0, &isBoundary);
  FaceCorners corners(static_cast<std::size_t>(std::max(count, 0)));
  static_assert(sizeof(Vec3) == 3 * sizeof(double));
  if (count > 0) services.roofFace(services.context, index, &corners[0].x, count, &isBoundary);
  return corners;
}

}  // namespace

Roof ChosenRoof(const DialogServices& services) {
  Roof roof;
  for (std::int32_t index = 0;; ++index) {
    std::int32_t isBoundary = 0;
    FaceCorners corners = ReadFace(services, index, isBoundary);
    if (corners.empty()) return roof;
    roof.isBounded = isBoundary != 0;
    roof.faces.push_back(std::move(corners));
  }
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
