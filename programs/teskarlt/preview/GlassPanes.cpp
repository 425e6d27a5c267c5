// GlassPanes.cpp - raises lines onto the panes of windows.
#include "teskarlt/preview/GlassPanes.h"

#include <algorithm>
#include <cmath>

#include "geometry/Vectors.h"

namespace teskarlt::preview {

namespace {

using geometry::Cross;
using geometry::Difference;

// Of the pane's size.
constexpr double TOLERANCE = 1e-3;
constexpr double DEEPEST = 0.5;

double SizeOf(const std::vector<Vec3>& corners) {
  Box box;
  for (const Vec3& corner : corners)
    box.Add(corner);
  return geometry::Distance(box.low, box.high);
}

// Whether a point lies over or under the convex outline with that unit normal, or so near to it.
bool IsWithin(const Vec3& point, const std::vector<Vec3>& outline, const Vec3& normal, double tolerance) {
  for (std::size_t k = 0; k < outline.size(); ++k) {
    const Vec3 edge = Difference(outline[(k + 1) % outline.size()], outline[k]);
    const double inward = geometry::VecDot(Cross(edge, Difference(point, outline[k])), normal);
    if (inward < -tolerance * geometry::VecLength(edge)) return false;
  }
  return true;
}

}  // namespace

GlassPanes::GlassPanes(const Scene& scene) : scene_(scene) {
  for (const Surface& surface : scene.surfaces)
    if (surface.isGlass) panes_.try_emplace(surface.window, &surface);
}

std::vector<Vec3> GlassPanes::OntoPane(const Curve& curve) const {
  const auto found = panes_.find(curve.window);
  if (found == panes_.end() || curve.points.empty()) return curve.points;
  const std::vector<Vec3>& pane = found->second->corners;
  const double size = SizeOf(pane);
  const Vec3 normal = NormalOf(pane);
  const Vec3& up = scene_.windows[static_cast<std::size_t>(curve.window)].facing;
  const auto heightOf = [&](const Vec3& point) {
    return geometry::VecDot(Difference(point, pane.front()), up);
  };
  const double height = heightOf(curve.points.front());
  const bool isUnder = height < 0 && height > -DEEPEST * size &&
                       std::all_of(curve.points.begin(), curve.points.end(), [&](const Vec3& point) {
                         return std::abs(heightOf(point) - height) < TOLERANCE * size &&
                                IsWithin(point, pane, normal, TOLERANCE * size);
                       });
  if (!isUnder) return curve.points;
  std::vector<Vec3> raised;
  raised.reserve(curve.points.size());
  for (const Vec3& point : curve.points)
    raised.push_back(geometry::Moved(point, up, TOLERANCE * size - height));
  return raised;
}

}  // namespace teskarlt::preview
