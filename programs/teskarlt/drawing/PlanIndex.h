// PlanIndex.h - finds what lies where in the plan.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "geometry/Vec3.h"

namespace teskarlt {

// A rectangle along the axes, drawing units; its edges belong to it.
struct PlanBox {
  double lowX;
  double lowY;
  double highX;
  double highY;
};

constexpr PlanBox Around(const PlanBox& a, const PlanBox& b) {
  return {std::min(a.lowX, b.lowX), std::min(a.lowY, b.lowY), std::max(a.highX, b.highX),
          std::max(a.highY, b.highY)};
}

// The box around points, of which there is at least one, `margin` larger on every side.
template <typename Points>
PlanBox PlanBoxOf(const Points& points, double margin = 0.0) {
  PlanBox box{points[0].x, points[0].y, points[0].x, points[0].y};
  for (const geometry::Vec3& p : points)
    box = Around(box, {p.x, p.y, p.x, p.y});
  return {box.lowX - margin, box.lowY - margin, box.highX + margin, box.highY + margin};
}

// The boxes around things with corners.
template <typename Things>
std::vector<PlanBox> BoxesOf(const Things& things) {
  std::vector<PlanBox> boxes;
  boxes.reserve(things.size());
  for (const auto& thing : things)
    boxes.push_back(PlanBoxOf(thing.corners));
  return boxes;
}

constexpr bool Touch(const PlanBox& a, const PlanBox& b) {
  return a.lowX <= b.highX && b.lowX <= a.highX && a.lowY <= b.highY && b.lowY <= a.highY;
}

// Boxes that do not change, in a tree whose nodes know the box around their children (an R-tree packed by
// sort-tile-recursion: S. Leutenegger, M. Lopez, J. Edgington, STR, 1997).
class PlanIndex {
 public:
  // The coordinates must be finite.
  explicit PlanIndex(const std::vector<PlanBox>& boxes);

  // The numbers, from 0 and ascending, of the boxes that touch the area.
  std::vector<std::size_t> Touching(const PlanBox& area) const;

 private:
  // Children are items in the first nodes, `leaves_` of them, and other nodes in all that follow.
  struct Node {
    PlanBox box;
    std::size_t first;
    std::size_t end;
  };
  struct Item {
    PlanBox box;
    std::size_t number;
  };

  template <typename Children>
  void AddNodesOver(const Children& children, std::size_t first, std::size_t end);

  std::vector<Item> items_;
  std::vector<Node> nodes_;  // level by level, the root last
  std::size_t leaves_ = 0;
};

}  // namespace teskarlt
