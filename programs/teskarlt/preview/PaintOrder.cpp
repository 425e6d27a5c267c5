// PaintOrder.cpp - compares surfaces that overlap in the picture and sorts by what lies before what.
#include "teskarlt/preview/PaintOrder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <queue>

#include "geometry/Vectors.h"
#include "teskarlt/preview/Picture.h"

namespace teskarlt::preview {

namespace {

constexpr double RELATIVE_TOLERANCE = 1e-6;    // of the scene's size
constexpr double MOST_CELLS = 512;             // of the grid, in one direction
constexpr std::size_t MOST_STEPS = 2'000'000;  // neighbours looked at and triangles compared, some seconds
constexpr std::size_t NEIGHBOURS_A_STEP = 16;  // already compared ones are passed over fast

using Triangle = std::array<Vec3, 3>;  // projected, counter-clockwise

double DepthAt(const Triangle& t, const Vec3& p) {
  const double depth = TurnInPicture(t[1], t[2], p) * t[0].z + TurnInPicture(t[2], t[0], p) * t[1].z +
                       TurnInPicture(t[0], t[1], p) * t[2].z;
  return depth / TurnInPicture(t[0], t[1], t[2]);
}

// The part of a polygon to the left of the line from a to b (I. Sutherland and G. Hodgman, 1974).
std::vector<Vec3> LeftOf(const std::vector<Vec3>& polygon, const Vec3& a, const Vec3& b) {
  std::vector<Vec3> kept;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Vec3& p = polygon[i];
    const Vec3& q = polygon[(i + 1) % polygon.size()];
    const double atP = TurnInPicture(a, b, p);
    const double atQ = TurnInPicture(a, b, q);
    if (atP >= 0) kept.push_back(p);
    if ((atP < 0) == (atQ < 0)) continue;
    const double share = atP / (atP - atQ);
    kept.push_back({p.x + (q.x - p.x) * share, p.y + (q.y - p.y) * share, 0});
  }
  return kept;
}

struct Shape {
  std::vector<Triangle> triangles;
  Box box;
};

class Sorter {
 public:
  Sorter(const Scene& scene, const View& view) : shapes_(scene.surfaces.size()) {
    for (std::size_t i = 0; i < shapes_.size(); ++i) {
      const std::vector<Vec3>& corners = scene.surfaces[i].corners;
      const std::vector<std::size_t> indices = Triangles(corners);
      for (std::size_t k = 0; k < indices.size(); k += 3) {
        Add(shapes_[i], {view.Project(corners[indices[k]]), view.Project(corners[indices[k + 1]]),
                         view.Project(corners[indices[k + 2]])});
      }
    }
    size_ = std::max({all_.high.x - all_.low.x, all_.high.y - all_.low.y, all_.high.z - all_.low.z, 0.0});
    tolerance_ = size_ * RELATIVE_TOLERANCE;
  }

  std::vector<std::size_t> Run() {
    behind_.resize(shapes_.size());
    before_.resize(shapes_.size(), 0);
    return CompareNeighbours() ? Sorted() : ByDepth();
  }

 private:
  void Add(Shape& shape, Triangle triangle) {
    const double turn = TurnInPicture(triangle[0], triangle[1], triangle[2]);
    double longest = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      const Vec3& a = triangle[i];
      const Vec3& b = triangle[(i + 1) % 3];
      longest = std::max({longest, std::abs(b.x - a.x), std::abs(b.y - a.y), std::abs(b.z - a.z)});
    }
    if (std::abs(turn) <= RELATIVE_TOLERANCE * longest * longest) return;
    if (turn < 0) std::swap(triangle[1], triangle[2]);
    for (const Vec3& corner : triangle) {
      shape.box.Add(corner);
      all_.Add(corner);
    }
    shape.triangles.push_back(triangle);
  }

  bool IsApart(const Box& a, const Box& b) const {
    return a.high.x <= b.low.x + tolerance_ || b.high.x <= a.low.x + tolerance_ ||
           a.high.y <= b.low.y + tolerance_ || b.high.y <= a.low.y + tolerance_;
  }

  // How far triangle a lies before triangle b in the middle of their overlap; 0 without an overlap.
  double Before(const Triangle& a, const Triangle& b) const {
    std::vector<Vec3> common(a.begin(), a.end());
    for (std::size_t i = 0; i < 3 && !common.empty(); ++i)
      common = LeftOf(common, b[i], b[(i + 1) % 3]);
    if (common.size() < 3) return 0;
    double area = 0;
    Vec3 middle{};
    for (std::size_t i = 0; i < common.size(); ++i) {
      middle = geometry::Sum(middle, common[i]);
      if (i > 1) area += TurnInPicture(common[0], common[i - 1], common[i]);
    }
    if (area <= tolerance_ * tolerance_) return 0;
    middle = geometry::Scaled(middle, 1.0 / static_cast<double>(common.size()));
    return DepthAt(a, middle) - DepthAt(b, middle);
  }

  void Compare(std::size_t first, std::size_t second) {
    if (IsApart(shapes_[first].box, shapes_[second].box)) return;
    double difference = 0;
    for (const Triangle& a : shapes_[first].triangles) {
      for (const Triangle& b : shapes_[second].triangles) {
        const double distance = Before(a, b);
        ++steps_;
        if (std::abs(distance) > std::abs(difference)) difference = distance;
      }
    }
    if (std::abs(difference) <= tolerance_) return;
    const std::size_t far = difference > 0 ? second : first;
    const std::size_t near = difference > 0 ? first : second;
    behind_[far].push_back(near);
    ++before_[near];
  }

  std::pair<std::size_t, std::size_t> Cells(double low, double high, double origin) const {
    const double cells = static_cast<double>(side_) / (size_ > 0 ? size_ : 1);
    const double last = static_cast<double>(side_) - 1;
    return {static_cast<std::size_t>(std::clamp((low - origin) * cells, 0.0, last)),
            static_cast<std::size_t>(std::clamp((high - origin) * cells, 0.0, last))};
  }

  // Compares every shape with the earlier ones that it shares a cell of the grid with; false when they are
  // too many.
  bool CompareNeighbours() {
    side_ =
        static_cast<std::size_t>(std::clamp(std::sqrt(static_cast<double>(shapes_.size())), 1.0, MOST_CELLS));
    std::vector<std::vector<std::size_t>> grid(side_ * side_);
    std::vector<std::size_t> comparedWith(shapes_.size(), shapes_.size());
    for (std::size_t i = 0; i < shapes_.size(); ++i) {
      if (shapes_[i].triangles.empty()) continue;
      const auto [left, right] = Cells(shapes_[i].box.low.x, shapes_[i].box.high.x, all_.low.x);
      const auto [low, high] = Cells(shapes_[i].box.low.y, shapes_[i].box.high.y, all_.low.y);
      for (std::size_t row = low; row <= high; ++row) {
        for (std::size_t column = left; column <= right; ++column) {
          std::vector<std::size_t>& cell = grid[row * side_ + column];
          steps_ += cell.size() / NEIGHBOURS_A_STEP + 1;
          for (const std::size_t other : cell) {
            if (comparedWith[other] == i) continue;
            comparedWith[other] = i;
            Compare(other, i);
          }
          cell.push_back(i);
        }
        if (steps_ > MOST_STEPS) return false;
      }
    }
    return true;
  }

  // By the middle of their depths, from the farthest: right for surfaces that lie over one another like
  // leaves.
  std::vector<std::size_t> ByDepth() const {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < shapes_.size(); ++i) {
      if (!shapes_[i].triangles.empty()) order.push_back(i);
    }
    const auto depth = [&](std::size_t shape) { return shapes_[shape].box.Centre().z; };
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return depth(a) < depth(b); });
    return order;
  }

  // Takes away, again and again, the first shape of the drawing behind which nothing is left (A. Kahn, 1962).
  std::vector<std::size_t> Sorted() {
    std::vector<std::size_t> order;
    std::vector<bool> isDone(shapes_.size(), false);
    std::priority_queue<std::size_t, std::vector<std::size_t>, std::greater<>> free;
    for (std::size_t i = 0; i < shapes_.size(); ++i) {
      if (before_[i] == 0) free.push(i);
    }
    for (std::size_t next = 0;;) {
      if (free.empty()) {
        while (next < shapes_.size() && isDone[next])
          ++next;
        if (next == shapes_.size()) return order;
        free.push(next);  // a ring
      }
      const std::size_t shape = free.top();
      free.pop();
      if (isDone[shape]) continue;
      isDone[shape] = true;
      if (!shapes_[shape].triangles.empty()) order.push_back(shape);
      for (const std::size_t near : behind_[shape]) {
        if (--before_[near] == 0) free.push(near);
      }
    }
  }

  std::vector<Shape> shapes_;
  Box all_;
  double size_ = 0;
  double tolerance_ = 0;
  std::size_t side_ = 1;
  std::size_t steps_ = 0;
  std::vector<std::vector<std::size_t>> behind_;  // by shape: those that lie before it
  std::vector<std::size_t> before_;               // by shape: how many lie behind it and are not painted yet
};

}  // namespace

std::vector<std::size_t> PaintOrder(const Scene& scene, const View& view) {
  return Sorter(scene, view).Run();
}

}  // namespace teskarlt::preview
