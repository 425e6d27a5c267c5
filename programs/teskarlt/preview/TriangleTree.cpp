// TriangleTree.cpp - divides triangles at the middle of their longest direction, again and again.
#include "teskarlt/preview/TriangleTree.h"

#include <algorithm>
#include <cmath>

#include "geometry/Vectors.h"
#include "teskarlt/preview/Picture.h"

namespace teskarlt::preview {

namespace {

Box BoxOf(const PictureTriangle& t) {
  Box box;
  for (const Vec3* corner : {&t.a, &t.b, &t.c})
    box.Add(*corner);
  return box;
}

// Makes the box one around both; `other` is not empty.
void Widen(Box& box, const Box& other) {
  box.Add(other.low);
  box.Add(other.high);
}

double Vec3::*LongestDirection(const Box& box) {
  const double x = box.high.x - box.low.x;
  const double y = box.high.y - box.low.y;
  const double z = box.high.z - box.low.z;
  if (x >= y && x >= z) return &Vec3::x;
  return y >= z ? &Vec3::y : &Vec3::z;
}

}  // namespace

double PictureTriangle::DepthAt(const Vec3& point) const {
  return (TurnInPicture(b, c, point) * a.z + TurnInPicture(c, a, point) * b.z +
          TurnInPicture(a, b, point) * c.z) /
         TurnInPicture(a, b, c);
}

std::vector<PictureTriangle> PictureTriangles(const Scene& scene, const View& view, double tolerance) {
  std::vector<PictureTriangle> triangles;
  for (std::size_t surface = 0; surface < scene.surfaces.size(); ++surface) {
    const std::vector<Vec3>& corners = scene.surfaces[surface].corners;
    const std::vector<std::size_t> indices = Triangles(corners);
    for (std::size_t i = 0; i < indices.size(); i += 3) {
      PictureTriangle t{view.Project(corners[indices[i]]), view.Project(corners[indices[i + 1]]),
                        view.Project(corners[indices[i + 2]]), surface};
      const double turn = TurnInPicture(t.a, t.b, t.c);
      const double longest =
          std::max({DistanceInPicture(t.a, t.b), DistanceInPicture(t.b, t.c), DistanceInPicture(t.c, t.a)});
      if (std::abs(turn) <= tolerance * longest) continue;
      if (turn < 0) std::swap(t.b, t.c);
      triangles.push_back(t);
    }
  }
  return triangles;
}

TriangleTree::TriangleTree(const std::vector<PictureTriangle>& triangles) {
  if (triangles.empty()) return;
  std::vector<Item> items;
  items.reserve(triangles.size());
  for (const PictureTriangle& triangle : triangles) {
    const Box box = BoxOf(triangle);
    items.push_back({geometry::Sum(box.low, box.high), static_cast<std::uint32_t>(items.size())});
  }
  nodes_.reserve(triangles.size());
  nodes_.push_back({{}, 0, static_cast<std::uint32_t>(items.size()), 0});
  Divide(0, triangles, items);
  triangles_.reserve(items.size());
  for (const Item& item : items)
    triangles_.push_back(triangles[item.triangle]);
}

void TriangleTree::Divide(std::uint32_t node, const std::vector<PictureTriangle>& from,
                          std::vector<Item>& items) {
  const std::uint32_t first = nodes_[node].first;
  const std::uint32_t count = nodes_[node].count;
  Box box;
  if (count <= LEAF) {
    for (std::uint32_t i = first; i < first + count; ++i)
      Widen(box, BoxOf(from[items[i].triangle]));
    nodes_[node].box = box;
    return;
  }
  Box middles;
  for (std::uint32_t i = first; i < first + count; ++i)
    middles.Add(items[i].middle);
  double Vec3::*const direction = LongestDirection(middles);
  const auto begin = items.begin() + first;
  const std::uint32_t half = count / 2;
  std::nth_element(begin, begin + half, begin + count,
                   [&](const Item& a, const Item& b) { return a.middle.*direction < b.middle.*direction; });
  const auto add = [&](std::uint32_t start, std::uint32_t size) {
    const auto child = static_cast<std::uint32_t>(nodes_.size());
    nodes_.push_back({{}, start, size, 0});
    Divide(child, from, items);
    Widen(box, nodes_[child].box);
    return child;
  };
  add(first, half);
  nodes_[node].right = add(first + half, count - half);
  nodes_[node].box = box;
}

}  // namespace teskarlt::preview
