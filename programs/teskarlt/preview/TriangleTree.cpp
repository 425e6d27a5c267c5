// TriangleTree.cpp - divides triangles at the middle of their longest direction, again and again.
#include "teskarlt/preview/TriangleTree.h"

#include <algorithm>
#include <cmath>

#include "teskarlt/preview/Picture.h"

namespace teskarlt::preview {

namespace {

Vec3 TwiceTheMiddle(const PictureTriangle& t) {
  Box box;
  for (const Vec3* corner : {&t.a, &t.b, &t.c})
    box.Add(*corner);
  return {box.low.x + box.high.x, box.low.y + box.high.y, box.low.z + box.high.z};
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

TriangleTree::TriangleTree(std::vector<PictureTriangle> triangles) : triangles_(std::move(triangles)) {
  if (triangles_.empty()) return;
  nodes_.reserve(triangles_.size());
  nodes_.push_back({{}, 0, static_cast<std::uint32_t>(triangles_.size()), 0});
  Divide(0);
}

void TriangleTree::Divide(std::uint32_t node) {
  const std::uint32_t first = nodes_[node].first;
  const std::uint32_t count = nodes_[node].count;
  Box box;
  Box middles;
  for (std::uint32_t i = first; i < first + count; ++i) {
    for (const Vec3* corner : {&triangles_[i].a, &triangles_[i].b, &triangles_[i].c})
      box.Add(*corner);
    middles.Add(TwiceTheMiddle(triangles_[i]));
  }
  nodes_[node].box = box;
  if (count <= LEAF) return;
  double Vec3::*const direction = LongestDirection(middles);
  const auto begin = triangles_.begin() + first;
  const std::uint32_t half = count / 2;
  std::nth_element(begin, begin + half, begin + count,
                   [&](const PictureTriangle& a, const PictureTriangle& b) {
                     return TwiceTheMiddle(a).*direction < TwiceTheMiddle(b).*direction;
                   });
  const auto add = [&](std::uint32_t from, std::uint32_t size) {
    const auto child = static_cast<std::uint32_t>(nodes_.size());
    nodes_.push_back({{}, from, size, 0});
    Divide(child);
    return child;
  };
  add(first, half);
  nodes_[node].right = add(first + half, count - half);
}

}  // namespace teskarlt::preview
