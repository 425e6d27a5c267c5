// Scene.cpp - boxes, triangles and dashes of what is to be seen.
#include "teskarlt/preview/Scene.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "geometry/Vectors.h"

namespace teskarlt::preview {

namespace {

using geometry::Between;
using geometry::Cross;
using geometry::Difference;

// Twice the area of the triangle, seen against the normal: positive for a corner that bulges out.
double Turn(const Vec3& a, const Vec3& b, const Vec3& c, const Vec3& normal) {
  return geometry::VecDot(Cross(Difference(b, a), Difference(c, a)), normal);
}

bool AreSame(const Vec3& a, const Vec3& b) {
  return a.x == b.x && a.y == b.y && a.z == b.z;
}

// Cuts one ear after the other off a polygon (G. Meisters, 1975).
class EarCutter {
 public:
  EarCutter(const std::vector<Vec3>& corners, const Vec3& normal) : corners_(corners), normal_(normal) {
    for (std::size_t i = 0; i < corners.size(); ++i)
      left_.push_back(i);
  }

  std::vector<std::size_t> Run() {
    while (left_.size() > 3) {
      std::size_t ear = 0;
      while (ear < left_.size() && !IsEar(ear))
        ++ear;
      Cut(ear == left_.size() ? 0 : ear);  // an outline that crosses itself has no ears at times
    }
    Cut(0);
    return std::move(triangles_);
  }

 private:
  std::size_t At(std::size_t place) const { return left_[place % left_.size()]; }

  bool IsEar(std::size_t place) const {
    const Vec3& a = corners_[At(place + left_.size() - 1)];
    const Vec3& b = corners_[At(place)];
    const Vec3& c = corners_[At(place + 1)];
    if (Turn(a, b, c, normal_) <= 0) return false;
    for (std::size_t i = 2; i + 1 < left_.size(); ++i) {
      const Vec3& p = corners_[At(place + i)];
      if (AreSame(p, a) || AreSame(p, c)) continue;
      const bool isInside =
          Turn(a, b, p, normal_) >= 0 && Turn(b, c, p, normal_) >= 0 && Turn(c, a, p, normal_) >= 0;
      if (isInside && !(AreSame(p, b) && LeavesEar(place, place + i))) return false;
    }
    return true;
  }

  // Whether the outline, which comes by the tip of the ear once more, as on the way to a hole, does so
  // outside of it. Where it comes by its base it cannot enter without a corner within.
  bool LeavesEar(std::size_t ear, std::size_t place) const {
    const Vec3& before = corners_[At(ear + left_.size() - 1)];
    const Vec3& tip = corners_[At(ear)];
    const Vec3& after = corners_[At(ear + 1)];
    const auto enters = [&](const Vec3& q) {
      return Turn(before, tip, q, normal_) > 0 && Turn(tip, after, q, normal_) > 0;
    };
    return !enters(corners_[At(place - 1)]) && !enters(corners_[At(place + 1)]);
  }

  void Cut(std::size_t place) {
    const std::size_t before = At(place + left_.size() - 1);
    const std::size_t after = At(place + 1);
    if (Turn(corners_[before], corners_[At(place)], corners_[after], normal_) != 0)
      triangles_.insert(triangles_.end(), {before, At(place), after});
    left_.erase(left_.begin() + static_cast<std::ptrdiff_t>(place));
  }

  const std::vector<Vec3>& corners_;
  Vec3 normal_;
  std::vector<std::size_t> left_;
  std::vector<std::size_t> triangles_;
};

double PeriodOf(const DashPattern& pattern) {
  return std::accumulate(pattern.begin(), pattern.end(), 0.0);
}

}  // namespace

Vec3 Box::Centre() const {
  return Between(low, high, 0.5);
}

Vec3 NormalOf(const std::vector<Vec3>& corners) {
  const Vec3 area = geometry::AreaVector(corners);
  const double length = geometry::VecLength(area);
  if (!(length > 0)) return {0, 0, 0};
  return {area.x / length, area.y / length, area.z / length};
}

std::vector<std::size_t> Triangles(const std::vector<Vec3>& corners) {
  const Vec3 normal = NormalOf(corners);
  if (corners.size() < 3 || geometry::VecDot(normal, normal) == 0) return {};
  return EarCutter(corners, normal).Run();
}

Colour PaintOf(const Surface& surface) {
  return surface.isGlass ? GLASS : Paint(surface.colour);
}

DashPattern ReadablePattern(const DashPattern& pattern, double shortestPeriod) {
  constexpr double dot = 1.0 / 6;  // of the shortest period
  const double period = PeriodOf(pattern);
  if (!(period > 0)) return {};
  const double factor = std::max(1.0, shortestPeriod / period);
  DashPattern readable;
  for (std::size_t i = 0; i < pattern.size(); ++i)
    readable.push_back(std::max(pattern[i] * factor, i % 2 == 0 ? shortestPeriod * dot : 0));
  return readable;
}

std::vector<std::vector<Vec3>> Dashes(const std::vector<Vec3>& points, const DashPattern& pattern,
                                      double offset) {
  constexpr double mostRepeats = 5000;
  const double period = PeriodOf(pattern);
  double total = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    total += geometry::Distance(points[i - 1], points[i]);
  }
  if (!(period > 0) || total > period * mostRepeats) return {points};

  std::vector<std::vector<Vec3>> dashes;
  std::size_t element = 0;  // even ones are dashes
  double left = pattern[0];
  std::vector<Vec3> dash{points[0]};
  for (double used = std::fmod(offset, period); used > 0;) {
    const double step = std::min(used, left);
    used -= step;
    left -= step;
    if (used > 0) left = pattern[element = (element + 1) % pattern.size()];
  }
  const auto nextElement = [&](const Vec3& at) {
    if (element % 2 == 0) dashes.push_back(std::move(dash));
    element = (element + 1) % pattern.size();
    left = pattern[element];
    dash.assign(1, at);
  };
  for (std::size_t i = 1; i < points.size(); ++i) {
    const double length = geometry::Distance(points[i - 1], points[i]);
    double done = 0;
    while (length - done > left) {
      done += left;
      const Vec3 at = Between(points[i - 1], points[i], done / length);
      dash.push_back(at);
      nextElement(at);
    }
    left -= length - done;
    dash.push_back(points[i]);
  }
  if (element % 2 == 0) dashes.push_back(std::move(dash));
  return dashes;
}

}  // namespace teskarlt::preview
