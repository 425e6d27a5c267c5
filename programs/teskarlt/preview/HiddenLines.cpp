// HiddenLines.cpp - clips lines against the triangles that lie before them.
#include "teskarlt/preview/HiddenLines.h"

#include <algorithm>
#include <cmath>

#include "teskarlt/preview/Picture.h"

namespace teskarlt::preview {

namespace {

constexpr double RELATIVE_TOLERANCE = 1e-6;
constexpr double SHORTEST_PART = 1e-9;
constexpr double MOST_CELLS = 512;  // in one direction

// Narrows the range to where the linear function from f0 (t = 0) to f1 (t = 1) is not negative; false when
// nothing is left.
bool Narrow(double f0, double f1, double& from, double& to) {
  if (f0 < 0 && f1 < 0) return false;
  if (f0 < 0) from = std::max(from, f0 / (f0 - f1));
  if (f1 < 0) to = std::min(to, f0 / (f0 - f1));
  return from < to;
}

}  // namespace

HiddenLines::HiddenLines(const Scene& scene, const View& view) {
  Box box;
  for (const Surface& surface : scene.surfaces) {
    for (const Vec3& corner : surface.corners)
      box.Add(view.Project(corner));
  }
  if (box.IsEmpty()) box.Add({0, 0, 0});
  const double size = std::max({box.high.x - box.low.x, box.high.y - box.low.y, box.high.z - box.low.z});
  tolerance_ = size * RELATIVE_TOLERANCE;
  origin_ = box.low;
  for (const Surface& surface : scene.surfaces) {
    const std::vector<std::size_t> indices = Triangles(surface.corners);
    for (std::size_t i = 0; i < indices.size(); i += 3) {
      Add({view.Project(surface.corners[indices[i]]), view.Project(surface.corners[indices[i + 1]]),
           view.Project(surface.corners[indices[i + 2]])});
    }
  }
  side_ = static_cast<std::size_t>(
      std::clamp(std::sqrt(static_cast<double>(triangles_.size())), 1.0, MOST_CELLS));
  cell_ = size > 0 ? size / static_cast<double>(side_) : 1;
  BuildGrid();
}

void HiddenLines::Add(Triangle triangle) {
  const double turn = TurnInPicture(triangle.a, triangle.b, triangle.c);
  const double longest =
      std::max({DistanceInPicture(triangle.a, triangle.b), DistanceInPicture(triangle.b, triangle.c),
                DistanceInPicture(triangle.c, triangle.a)});
  if (std::abs(turn) <= tolerance_ * longest) return;  // seen from its edge it hides nothing
  if (turn < 0) std::swap(triangle.b, triangle.c);
  triangles_.push_back(triangle);
}

std::pair<std::size_t, std::size_t> HiddenLines::Cells(double low, double high, double origin) const {
  const double last = static_cast<double>(side_) - 1;
  return {static_cast<std::size_t>(std::clamp((low - origin) / cell_, 0.0, last)),
          static_cast<std::size_t>(std::clamp((high - origin) / cell_, 0.0, last))};
}

void HiddenLines::BuildGrid() {
  grid_.resize(side_ * side_);
  asked_.resize(triangles_.size(), 0);
  for (std::size_t i = 0; i < triangles_.size(); ++i) {
    const Triangle& t = triangles_[i];
    const auto [left, right] =
        Cells(std::min({t.a.x, t.b.x, t.c.x}), std::max({t.a.x, t.b.x, t.c.x}), origin_.x);
    const auto [low, high] =
        Cells(std::min({t.a.y, t.b.y, t.c.y}), std::max({t.a.y, t.b.y, t.c.y}), origin_.y);
    for (std::size_t row = low; row <= high; ++row) {
      for (std::size_t column = left; column <= right; ++column)
        grid_[row * side_ + column].push_back(static_cast<std::uint32_t>(i));
    }
  }
}

// The part of the line that the triangle covers and lies before. Its edges count as covered, so that no gap
// shows between neighbours.
bool HiddenLines::Hides(const Triangle& triangle, const Vec3& a, const Vec3& b, double& from,
                        double& to) const {
  from = 0;
  to = 1;
  const Vec3* const corners[4] = {&triangle.a, &triangle.b, &triangle.c, &triangle.a};
  for (int i = 0; i < 3; ++i) {
    const double slack = tolerance_ * DistanceInPicture(*corners[i], *corners[i + 1]);
    if (!Narrow(TurnInPicture(*corners[i], *corners[i + 1], a) + slack,
                TurnInPicture(*corners[i], *corners[i + 1], b) + slack, from, to))
      return false;
  }
  const double area = TurnInPicture(triangle.a, triangle.b, triangle.c);
  const auto before = [&](const Vec3& p) {  // how far the triangle's plane lies before p
    const double depth = (TurnInPicture(triangle.b, triangle.c, p) * triangle.a.z +
                          TurnInPicture(triangle.c, triangle.a, p) * triangle.b.z +
                          TurnInPicture(triangle.a, triangle.b, p) * triangle.c.z) /
                         area;
    return depth - p.z - tolerance_;
  };
  return Narrow(before(a), before(b), from, to);
}

std::vector<std::pair<double, double>> HiddenLines::Visible(const Vec3& a, const Vec3& b) {
  std::vector<std::pair<double, double>> hidden;
  ++question_;
  const auto [left, right] = Cells(std::min(a.x, b.x), std::max(a.x, b.x), origin_.x);
  const auto [low, high] = Cells(std::min(a.y, b.y), std::max(a.y, b.y), origin_.y);
  for (std::size_t row = low; row <= high; ++row) {
    for (std::size_t column = left; column <= right; ++column) {
      for (const std::uint32_t index : grid_[row * side_ + column]) {
        if (asked_[index] == question_) continue;
        asked_[index] = question_;
        double from = 0;
        double to = 1;
        if (Hides(triangles_[index], a, b, from, to)) hidden.emplace_back(from, to);
      }
    }
  }
  std::sort(hidden.begin(), hidden.end());
  std::vector<std::pair<double, double>> visible;
  double at = 0;
  for (const auto& [from, to] : hidden) {
    if (from > at + SHORTEST_PART) visible.emplace_back(at, from);
    at = std::max(at, to);
  }
  if (at < 1 - SHORTEST_PART) visible.emplace_back(at, 1);
  return visible;
}

}  // namespace teskarlt::preview
