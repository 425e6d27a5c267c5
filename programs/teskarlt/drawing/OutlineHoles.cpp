// OutlineHoles.cpp - finds the closed polylines that are holes.
#include "teskarlt/drawing/OutlineHoles.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "teskarlt/drawing/PlanIndex.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr double SAME_PLANE = 2.0;  // millimetres beside what the faces themselves lie off it

bool IsOutline(const RoofFace& face) {
  return std::string_view(face.type).ends_with("POLYLINE");
}

class HoleFinder {
 public:
  HoleFinder(std::vector<RoofFace>& faces, double tolerance)
      : faces_(faces), tolerance_(tolerance), isHole_(faces.size()) {}

  void Cut() {
    std::vector<Ring> rings;
    for (std::size_t i = 0; i < faces_.size(); ++i) {
      if (!IsOutline(faces_[i])) continue;
      outlines_.push_back(i);
      rings.push_back(faces_[i].corners);
    }
    const RingNest nest = NestOf(rings, [this](std::size_t outer, std::size_t inner) {
      return BelongTogether(faces_[outlines_[outer]], faces_[outlines_[inner]]);
    });
    FindHoles(rings, nest.depths);
    for (std::size_t outer = 0; outer < outlines_.size(); ++outer) {
      if (nest.depths[outer] % 2 == 0) PutHoles(nest.holes[outer], faces_[outlines_[outer]]);
    }
    std::size_t number = 0;
    std::erase_if(faces_, [&](const RoofFace&) { return isHole_[number++]; });
  }

 private:
  bool BelongTogether(const RoofFace& outer, const RoofFace& inner) const {
    return outer.layer == inner.layer && Warp(inner, outer.plane) <= SAME_PLANE * tolerance_ + Warp(outer);
  }

  void FindHoles(const std::vector<Ring>& rings, const std::vector<std::size_t>& depths) {
    std::optional<PlanIndex> index;  // of all faces, where it is needed
    for (std::size_t i = 0; i < rings.size(); ++i) {
      if (depths[i] % 2 == 0) continue;
      if (!index) index.emplace(BoxesOf(faces_));
      isHole_[outlines_[i]] = !IsFilled(faces_[outlines_[i]], PointWithin(rings[i]), *index);
    }
  }

  bool IsFilled(const RoofFace& ring, const Vec3& within, const PlanIndex& index) const {
    const std::vector<std::size_t> near = index.Touching({within.x, within.y, within.x, within.y});
    const Vec3 point = Plumb(ring.plane, within);
    return std::any_of(near.begin(), near.end(), [&](std::size_t number) {
      const RoofFace& face = faces_[number];
      if (IsOutline(face) && face.layer == ring.layer) return false;
      return std::abs(DistanceFrom(face.plane, point)) <= SAME_PLANE * tolerance_ + Warp(face) &&
             LiesOver(face, within.x, within.y);
    });
  }

  void PutHoles(const std::vector<std::size_t>& rings, RoofFace& face) const {
    std::vector<Ring> holes;
    for (const std::size_t ring : rings)
      if (isHole_[outlines_[ring]]) holes.push_back(faces_[outlines_[ring]].corners);
    if (holes.empty()) return;
    std::optional<RoofFace> cut = MakeRoofFace(face.corners, holes, tolerance_);
    if (!cut) return;
    face.holes = std::move(cut->holes);
    face.plane = cut->plane;
  }

  std::vector<RoofFace>& faces_;
  const double tolerance_;
  std::vector<std::size_t> outlines_;  // their numbers among the faces
  std::vector<bool> isHole_;
};

}  // namespace

void CutHoles(std::vector<RoofFace>& faces, double tolerance) {
  HoleFinder(faces, tolerance).Cut();
}

}  // namespace teskarlt
