// PartGroups.cpp - joins parts by their points, and what they become by their middles.
#include "teskarlt/drawing/PartGroups.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>

#include "geometry/Vectors.h"
#include "teskarlt/drawing/WindowParts.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

// Sets of numbers that are joined step by step.
class JoinedSets {
 public:
  explicit JoinedSets(std::size_t count) : parents_(count) {
    std::iota(parents_.begin(), parents_.end(), std::size_t{0});
  }

  // The number that stands for the set.
  std::size_t SetOf(std::size_t number) {
    while (parents_[number] != number)
      number = parents_[number] = parents_[parents_[number]];
    return number;
  }

  void Join(std::size_t a, std::size_t b) { parents_[SetOf(a)] = SetOf(b); }

 private:
  std::vector<std::size_t> parents_;
};

// A point of the part, or of the set, with that number.
struct OwnedPoint {
  Vec3 point;
  std::size_t owner;
};

// Joins the owners of points that are no farther apart than `reach`.
void JoinNear(std::vector<OwnedPoint> points, double reach, JoinedSets& sets) {
  // Along a line on which next to no two of them fall together, neighbours lie side by side.
  constexpr Vec3 DIRECTION{0.7548776662466927, 0.5698402909980532, 0.3247179572447460};  // about a unit
  const auto along = [&](const OwnedPoint& p) { return VecDot(p.point, DIRECTION); };
  std::sort(points.begin(), points.end(),
            [&](const OwnedPoint& a, const OwnedPoint& b) { return along(a) < along(b); });
  for (std::size_t i = 0; i < points.size(); ++i) {
    for (std::size_t next = i + 1; next < points.size(); ++next) {
      if (along(points[next]) - along(points[i]) > reach) break;
      if (Distance(points[i].point, points[next].point) <= reach)
        sets.Join(points[i].owner, points[next].owner);
    }
  }
}

struct Box {
  static constexpr double FAR = std::numeric_limits<double>::max();
  Vec3 least{FAR, FAR, FAR};
  Vec3 most{-FAR, -FAR, -FAR};

  void Add(const Vec3& p) {
    least = {std::min(least.x, p.x), std::min(least.y, p.y), std::min(least.z, p.z)};
    most = {std::max(most.x, p.x), std::max(most.y, p.y), std::max(most.z, p.z)};
  }
};

// The middles of the sets that the points make now.
std::vector<OwnedPoint> MiddlesOf(const std::vector<OwnedPoint>& points, JoinedSets& sets) {
  std::map<std::size_t, Box> boxes;
  for (const OwnedPoint& point : points)
    boxes[sets.SetOf(point.owner)].Add(point.point);
  std::vector<OwnedPoint> middles;
  middles.reserve(boxes.size());
  for (const auto& [set, box] : boxes)
    middles.push_back({geometry::Between(box.least, box.most, 0.5), set});
  return middles;
}

}  // namespace

std::vector<std::vector<const dxf::Entity*>> GroupByPlace(const dxf::Document& drawing,
                                                          const std::vector<const dxf::Entity*>& entities,
                                                          double tolerance, double reach) {
  std::vector<OwnedPoint> points;
  points.reserve(entities.size() * 4);
  for (std::size_t i = 0; i < entities.size(); ++i) {
    const WindowParts part = ReadParts(drawing, {&entities[i], 1}, IN_DRAWING_UNITS);
    for (const PartCorners& corners : part.faces) {
      for (const Vec3& corner : corners)
        points.push_back({corner, i});
    }
    for (const PartCorners& ends : part.lines) {
      points.push_back({ends[0], i});
      points.push_back({ends[1], i});
    }
  }
  JoinedSets sets(entities.size());
  JoinNear(points, tolerance, sets);
  JoinNear(MiddlesOf(points, sets), reach, sets);
  std::vector<std::vector<const dxf::Entity*>> groups;
  std::map<std::size_t, std::size_t> groupOf;  // by its set
  for (std::size_t i = 0; i < entities.size(); ++i) {
    const auto [found, isNew] = groupOf.try_emplace(sets.SetOf(i), groups.size());
    if (isNew) groups.emplace_back();
    groups[found->second].push_back(entities[i]);
  }
  return groups;
}

}  // namespace teskarlt
