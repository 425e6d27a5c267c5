// Obstacles.cpp - finds the faces that stand on a roof, and what they cover of it.
#include "teskarlt/drawing/Obstacles.h"

#include <algorithm>
#include <utility>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr double STANDING_GAP = 300.0;  // millimetres under what stands on rails or feet
constexpr double SAME_DIRECTION = 2.0;  // degrees between skins of one roof

double Size(const PlanBox& box) {
  return std::max(0.0, box.highX - box.lowX) * std::max(0.0, box.highY - box.lowY);
}

PlanBox Common(const PlanBox& a, const PlanBox& b) {
  return {std::max(a.lowX, b.lowX), std::max(a.lowY, b.lowY), std::min(a.highX, b.highX),
          std::min(a.highY, b.highY)};
}

class ObstacleSearch {
 public:
  ObstacleSearch(const Plane& plane, const PlanBox& area, double least, const Roofs& roofs)
      : plane_(plane), frame_(FrameOf(plane)), area_(area), least_(least), roofs_(roofs) {}

  std::vector<Obstacle> Run() {
    for (const RoofFace* face : roofs_.FacesNear(area_))
      if (!IsOfPlan(*face) && !IsSkin(*face)) Take(*face, LineAround(face->corners, face->holes));
    for (const Wall* face : roofs_.WallsNear(area_))
      Take(*face, face->corners);
    return std::move(found_);
  }

 private:
  double HeightOver(const Vec3& p) const { return p.z - HeightAt(plane_, p.x, p.y); }

  double LowestOver(const Ring& ring) const {
    double lowest = HeightOver(ring.front());
    for (const Vec3& corner : ring)
      lowest = std::min(lowest, HeightOver(corner));
    return lowest;
  }

  // Storeys and sections of plans are drawn at any height.
  static bool IsOfPlan(const RoofFace& face) { return face.isFlatKind && face.plane.normal.z == 1.0; }

  bool IsSkin(const RoofFace& face) const {
    static const double LEAST_COSINE = geometry::Cosine(geometry::DegToRad(SAME_DIRECTION));
    const RoofSurface* const surface = roofs_.SurfaceOf(face);
    return surface != nullptr && geometry::VecDot(plane_.normal, face.plane.normal) >= LEAST_COSINE &&
           LowestOver(face.corners) > least_ && 2 * Size(Common(surface->box, area_)) >= Size(area_);
  }

  // The part of the ring that lies higher than `least_` (I. Sutherland, G. Hodgman, Reentrant Polygon
  // Clipping, 1974), seen from above.
  SlopeRing Footprint(const Ring& ring) const {
    SlopeRing footprint;
    const auto add = [&](const Vec3& p) { footprint.push_back(frame_.Of(Plumb(plane_, p))); };
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const Vec3& from = ring[i];
      const Vec3& to = ring[(i + 1) % ring.size()];
      const double a = HeightOver(from) - least_;
      const double b = HeightOver(to) - least_;
      if (a > 0) add(from);
      if ((a > 0) != (b > 0)) add(geometry::Between(from, to, a / (a - b)));
    }
    return footprint;
  }

  template <typename Face>
  void Take(const Face& face, const Ring& ring) {
    if (LowestOver(ring) > STANDING_GAP * roofs_.Tolerance()) return;
    if (SlopeRing footprint = Footprint(ring); !footprint.empty())
      found_.push_back({face.name, face.layer, std::move(footprint)});
  }

  const Plane& plane_;
  const SlopeFrame frame_;
  const PlanBox& area_;
  const double least_;
  const Roofs& roofs_;
  std::vector<Obstacle> found_;
};

}  // namespace

std::vector<Obstacle> ObstaclesOn(const Plane& plane, const PlanBox& area, double least, const Roofs& roofs) {
  return ObstacleSearch(plane, area, least, roofs).Run();
}

}  // namespace teskarlt
