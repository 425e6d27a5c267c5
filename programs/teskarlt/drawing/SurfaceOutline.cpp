// SurfaceOutline.cpp - makes the outline of a roof surface.
#include "teskarlt/drawing/SurfaceOutline.h"

#include <algorithm>
#include <limits>

#include "teskarlt/drawing/RingsAround.h"

namespace teskarlt {

SurfaceOutline OutlineOf(const RoofSurface& surface, const std::vector<RoofFace>& faces, double tolerance) {
  constexpr double HEALED = 5.0;  // millimetres
  SurfaceOutline outline{FrameOf(surface.plane), {}};
  std::vector<SlopeRing> polygons;
  polygons.reserve(surface.faces.size());
  for (const std::size_t face : surface.faces) {
    SlopeRing& polygon = polygons.emplace_back();
    for (const geometry::Vec3& corner : LineAround(faces[face].corners, faces[face].holes))
      polygon.push_back(outline.frame.Of(corner));
  }
  outline.rings = RingsAround(polygons, HEALED * tolerance);
  if (outline.rings.empty()) outline.rings.push_back(polygons.front());  // a sliver alone
  return outline;
}

std::pair<double, double> HeightRange(const SurfaceOutline& outline) {
  double low = std::numeric_limits<double>::max();
  double high = std::numeric_limits<double>::lowest();
  for (const SlopeRing& ring : outline.rings) {
    for (const SlopePoint& corner : ring) {
      const double height = outline.frame.At(corner).z;
      low = std::min(low, height);
      high = std::max(high, height);
    }
  }
  return {low, high};
}

}  // namespace teskarlt
