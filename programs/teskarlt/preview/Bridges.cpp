// Bridges.cpp - connects the holes of a face with its outline.
#include "teskarlt/preview/Bridges.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "geometry/Vectors.h"

namespace teskarlt::preview {

namespace {

using Ring = std::vector<Vec3>;

bool AreSame(const Vec3& a, const Vec3& b) {
  return a.x == b.x && a.y == b.y && a.z == b.z;
}

// Corners of the line and of the hole.
struct Bridge {
  std::size_t from;
  std::size_t to;
  double length;
};

class Bridger {
 public:
  Bridger(Ring corners, std::vector<Ring> holes)
      : line_(std::move(corners)), holes_(std::move(holes)), normal_(NormalOf(line_)) {}

  Ring Run() {
    while (!holes_.empty()) {
      if (!TakeOne()) break;
    }
    return std::move(line_);
  }

 private:
  double Turn(const Vec3& a, const Vec3& b, const Vec3& c) const {
    return geometry::VecDot(geometry::Cross(geometry::Difference(b, a), geometry::Difference(c, a)), normal_);
  }

  // Whether the bridge begins into what the line runs around.
  bool LeadsInside(std::size_t from, const Vec3& to) const {
    const Vec3& before = line_[(from + line_.size() - 1) % line_.size()];
    const Vec3& corner = line_[from];
    const Vec3& after = line_[(from + 1) % line_.size()];
    const bool isLeftOfBoth[] = {Turn(before, corner, to) > 0, Turn(corner, after, to) > 0};
    return Turn(before, corner, after) > 0 ? isLeftOfBoth[0] && isLeftOfBoth[1]
                                           : isLeftOfBoth[0] || isLeftOfBoth[1];
  }

  // Whether they have a point in common, but for ends that are the same.
  bool Meet(const Vec3& a, const Vec3& b, const Vec3& p, const Vec3& q) const {
    const auto isOn = [&](const Vec3& end, const Vec3& from, const Vec3& to) {
      return !AreSame(end, from) && !AreSame(end, to) && Turn(from, to, end) == 0 &&
             geometry::VecDot(geometry::Difference(from, end), geometry::Difference(to, end)) < 0;
    };
    if (isOn(p, a, b) || isOn(q, a, b) || isOn(a, p, q) || isOn(b, p, q)) return true;
    if (AreSame(a, p) || AreSame(a, q) || AreSame(b, p) || AreSame(b, q)) return false;
    return Turn(a, b, p) * Turn(a, b, q) < 0 && Turn(p, q, a) * Turn(p, q, b) < 0;
  }

  bool MeetsRing(const Vec3& a, const Vec3& b, const Ring& ring) const {
    for (std::size_t i = 0; i < ring.size(); ++i)
      if (Meet(a, b, ring[i], ring[(i + 1) % ring.size()])) return true;
    return false;
  }

  bool IsFree(const Bridge& bridge, const Ring& hole) const {
    const Vec3& a = line_[bridge.from];
    const Vec3& b = hole[bridge.to];
    return LeadsInside(bridge.from, b) && !MeetsRing(a, b, line_) &&
           std::none_of(holes_.begin(), holes_.end(),
                        [&](const Ring& other) { return MeetsRing(a, b, other); });
  }

  // Takes the first hole that a bridge reaches; false when none is.
  bool TakeOne() {
    for (std::size_t i = 0; i < holes_.size(); ++i) {
      const std::vector<Bridge> bridges = BridgesTo(holes_[i]);
      const auto free = std::find_if(bridges.begin(), bridges.end(),
                                     [&](const Bridge& bridge) { return IsFree(bridge, holes_[i]); });
      if (free == bridges.end()) continue;
      Take(*free, holes_[i]);
      holes_.erase(holes_.begin() + static_cast<std::ptrdiff_t>(i));
      return true;
    }
    return false;
  }

  // All of them, the shortest first.
  std::vector<Bridge> BridgesTo(const Ring& hole) const {
    std::vector<Bridge> bridges;
    bridges.reserve(line_.size() * hole.size());
    for (std::size_t from = 0; from < line_.size(); ++from) {
      for (std::size_t to = 0; to < hole.size(); ++to)
        bridges.push_back({from, to, geometry::Distance(line_[from], hole[to])});
    }
    std::stable_sort(bridges.begin(), bridges.end(),
                     [](const Bridge& a, const Bridge& b) { return a.length < b.length; });
    return bridges;
  }

  void Take(const Bridge& bridge, const Ring& hole) {
    Ring way;
    for (std::size_t i = 0; i <= hole.size(); ++i)
      way.push_back(hole[(bridge.to + i) % hole.size()]);
    way.push_back(line_[bridge.from]);
    line_.insert(line_.begin() + static_cast<std::ptrdiff_t>(bridge.from) + 1, way.begin(), way.end());
  }

  Ring line_;
  std::vector<Ring> holes_;
  Vec3 normal_;
};

}  // namespace

std::vector<Vec3> LineOverBridges(const std::vector<Vec3>& corners,
                                  const std::vector<std::vector<Vec3>>& holes) {
  return holes.empty() ? corners : Bridger(corners, holes).Run();
}

}  // namespace teskarlt::preview
