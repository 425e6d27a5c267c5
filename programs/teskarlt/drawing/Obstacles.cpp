// Obstacles.cpp - finds the faces that stand on a roof, and what they cover of it.
#include "teskarlt/drawing/Obstacles.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr double STANDING_GAP = 300.0;  // millimetres under what stands on rails or feet
constexpr double SAME_DIRECTION = 2.0;  // degrees between skins of one roof
constexpr double WHOLE_SKIN = 0.9;      // of the roof's area
constexpr double SAME_CORNER = 2.0;     // millimetres

double Size(const PlanBox& box) {
  return std::max(0.0, box.highX - box.lowX) * std::max(0.0, box.highY - box.lowY);
}

PlanBox Common(const PlanBox& a, const PlanBox& b) {
  return {std::max(a.lowX, b.lowX), std::max(a.lowY, b.lowY), std::min(a.highX, b.highX),
          std::min(a.highY, b.highY)};
}

// The part of the ring on the side of a line where `side` is positive (I. Sutherland, G. Hodgman, Reentrant
// Polygon Clipping, 1974); pieces of it hang together along the line.
template <typename Side>
Ring Clipped(const Ring& ring, const Side& side) {
  Ring clipped;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Vec3& from = ring[i];
    const Vec3& to = ring[(i + 1) % ring.size()];
    const double a = side(from);
    const double b = side(to);
    if (a >= 0) clipped.push_back(from);
    if ((a < 0 && b > 0) || (a > 0 && b < 0)) clipped.push_back(geometry::Between(from, to, a / (a - b)));
  }
  return clipped;
}

Ring ClippedTo(const PlanBox& box, Ring ring) {
  ring = Clipped(ring, [&](const Vec3& p) { return p.x - box.lowX; });
  ring = Clipped(ring, [&](const Vec3& p) { return box.highX - p.x; });
  ring = Clipped(ring, [&](const Vec3& p) { return p.y - box.lowY; });
  return Clipped(ring, [&](const Vec3& p) { return box.highY - p.y; });
}

// What stays of a ring that a line cuts is one chain of corners after the other, each from where it leaves
// the line to where it comes back. Joins the ends of the chains along the line that cut them: the first with
// the second as they lie on it, the third with the fourth.
std::vector<SlopeRing> Joined(const std::vector<SlopeRing>& chains) {
  struct End {
    SlopePoint place;
    std::size_t chain;
    bool isLast;
  };
  std::vector<End> ends;
  for (std::size_t chain = 0; chain < chains.size(); ++chain) {
    ends.push_back({chains[chain].front(), chain, false});
    ends.push_back({chains[chain].back(), chain, true});
  }
  const SlopePoint first = ends.front().place;
  const auto distance = [&](const End& end) {
    return std::hypot(end.place.across - first.across, end.place.up - first.up);
  };
  const SlopePoint far = std::max_element(ends.begin(), ends.end(), [&](const End& a, const End& b) {
                           return distance(a) < distance(b);
                         })->place;
  const auto along = [&](const End& end) {
    return (end.place.across - first.across) * (far.across - first.across) +
           (end.place.up - first.up) * (far.up - first.up);
  };
  std::stable_sort(ends.begin(), ends.end(), [&](const End& a, const End& b) { return along(a) < along(b); });
  std::vector<std::size_t> next(chains.size());  // the chain that follows each
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2) {
    const End& last = ends[i].isLast ? ends[i] : ends[i + 1];
    next[last.chain] = (ends[i].isLast ? ends[i + 1] : ends[i]).chain;
  }
  std::vector<bool> isDone(chains.size());
  std::vector<SlopeRing> rings;
  for (std::size_t start = 0; start < chains.size(); ++start) {
    if (isDone[start]) continue;
    SlopeRing& ring = rings.emplace_back();
    for (std::size_t at = start; !isDone[at]; at = next[at]) {
      isDone[at] = true;
      ring.insert(ring.end(), chains[at].begin(), chains[at].end());
    }
  }
  return rings;
}

class ObstacleSearch {
 public:
  ObstacleSearch(const Plane& plane, const std::string& layer, const PlanBox& area, double least,
                 const Roofs& roofs)
      : plane_(plane), frame_(FrameOf(plane)), layer_(layer), area_(area), least_(least), roofs_(roofs) {}

  std::vector<Obstacle> Run() {
    std::vector<const RoofFace*> hovering;
    for (const Wall* wall : roofs_.WallsNear(area_))
      if (Stands(wall->corners)) Take(*wall, wall->corners);
    for (const RoofFace* face : roofs_.FacesNear(area_)) {
      if (IsOfPlan(*face) || IsSkin(*face)) continue;
      if (Stands(face->corners)) {
        Take(*face, LineAround(face->corners, face->holes));
      } else if (HighestOver(face->corners) > least_) {
        hovering.push_back(face);
      }
    }
    std::sort(standing_.begin(), standing_.end(), [](const Vec3& a, const Vec3& b) { return a.x < b.x; });
    for (const RoofFace* face : hovering)
      if (IsBorne(*face)) Take(*face, LineAround(face->corners, face->holes));
    return std::move(found_);
  }

 private:
  double HeightOver(const Vec3& p) const { return p.z - HeightAt(plane_, p.x, p.y); }

  double LowestOver(const Ring& ring) const {
    double lowest = std::numeric_limits<double>::max();
    for (const Vec3& corner : ring)
      lowest = std::min(lowest, HeightOver(corner));
    return lowest;
  }

  double HighestOver(const Ring& ring) const {
    double highest = std::numeric_limits<double>::lowest();
    for (const Vec3& corner : ring)
      highest = std::max(highest, HeightOver(corner));
    return highest;
  }

  // Within the area: beyond it, other roofs go through the plane.
  bool Stands(const Ring& ring) const {
    return HighestOver(ring) > least_ &&
           LowestOver(ClippedTo(area_, ring)) <= STANDING_GAP * roofs_.Tolerance();
  }

  // Storeys and sections of plans are drawn at any height.
  static bool IsOfPlan(const RoofFace& face) { return face.isFlatKind && face.plane.normal.z == 1.0; }

  bool IsSkin(const RoofFace& face) const {
    static const double LEAST_COSINE = geometry::Cosine(geometry::DegToRad(SAME_DIRECTION));
    const RoofSurface* const surface = roofs_.SurfaceOf(face);
    if (surface == nullptr || geometry::VecDot(plane_.normal, face.plane.normal) < LEAST_COSINE ||
        LowestOver(face.corners) <= least_)
      return false;
    return face.layer == layer_ || Size(Common(surface->box, area_)) >= WHOLE_SKIN * Size(area_);
  }

  // Whether each corner is one of something that stands on the roof: the top of a chimney, of a lift shaft.
  bool IsBorne(const RoofFace& face) const {
    const double tolerance = SAME_CORNER * roofs_.Tolerance();
    return std::all_of(face.corners.begin(), face.corners.end(), [&](const Vec3& corner) {
      const auto isLeft = [](const Vec3& p, double x) { return p.x < x; };
      auto at = std::lower_bound(standing_.begin(), standing_.end(), corner.x - tolerance, isLeft);
      for (; at != standing_.end() && at->x <= corner.x + tolerance; ++at)
        if (Distance(*at, corner) <= tolerance) return true;
      return false;
    });
  }

  // What lies higher than `least_`, seen from above.
  std::vector<SlopeRing> Footprints(const Ring& ring) const {
    const std::size_t count = ring.size();
    const auto over = [&](std::size_t i) { return HeightOver(ring[i % count]) - least_; };
    const auto seen = [&](const Vec3& p) { return frame_.Of(Plumb(plane_, p)); };
    std::size_t start = 0;  // a corner after which the ring comes up through the plane
    while (start < count && !(over(start) <= 0 && over(start + 1) > 0))
      ++start;
    std::vector<SlopeRing> chains;
    if (start == count) chains.emplace_back();
    for (std::size_t step = 0; step < count; ++step) {
      const std::size_t i = (start + step) % count;
      const double a = over(i);
      const double b = over(i + 1);
      if (a <= 0 && b > 0) chains.emplace_back();
      if (a > 0) chains.back().push_back(seen(ring[i]));
      if ((a > 0) != (b > 0))
        chains.back().push_back(seen(geometry::Between(ring[i], ring[(i + 1) % count], a / (a - b))));
    }
    return start == count ? chains : Joined(chains);
  }

  template <typename Face>
  void Take(const Face& face, const Ring& ring) {
    for (SlopeRing& footprint : Footprints(ring))
      found_.push_back({face.name, face.layer, std::move(footprint)});
    standing_.insert(standing_.end(), face.corners.begin(), face.corners.end());
  }

  const Plane& plane_;
  const SlopeFrame frame_;
  const std::string& layer_;
  const PlanBox& area_;
  const double least_;
  const Roofs& roofs_;
  std::vector<Obstacle> found_;
  std::vector<Vec3> standing_;  // corners of what was found, at last by their x
};

}  // namespace

std::vector<Obstacle> ObstaclesOn(const Plane& plane, const std::string& layer, const PlanBox& area,
                                  double least, const Roofs& roofs) {
  return ObstacleSearch(plane, layer, area, least, roofs).Run();
}

}  // namespace teskarlt
