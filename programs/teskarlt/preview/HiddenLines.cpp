// HiddenLines.cpp - clips lines against the triangles that lie before them.
#include "teskarlt/preview/HiddenLines.h"

#include <algorithm>

#include "teskarlt/Error.h"
#include "teskarlt/preview/Picture.h"

namespace teskarlt::preview {

namespace {

constexpr double RELATIVE_TOLERANCE = 1e-6;
constexpr double SHORTEST_PART = 1e-9;
constexpr std::size_t STEPS_OF_A_PART = 256;  // the memory of one beside the first counts as so many boxes
constexpr std::size_t PARTS_OF_A_STEP = 8;    // to look at them, or to move them

using Part = std::pair<double, double>;

// A line, and what is still visible of it.
class Line {
 public:
  Line(const Vec3& a, const Vec3& b, double tolerance) : a_(a), b_(b), tolerance_(tolerance) {}

  // How much of what is still visible may lie behind something in the box.
  double VisibleBehind(const Box& box) const {
    Part part = {0, 1};
    const bool isThere = Narrow(a_.x - box.low.x + tolerance_, b_.x - box.low.x + tolerance_, part) &&
                         Narrow(box.high.x - a_.x + tolerance_, box.high.x - b_.x + tolerance_, part) &&
                         Narrow(a_.y - box.low.y + tolerance_, b_.y - box.low.y + tolerance_, part) &&
                         Narrow(box.high.y - a_.y + tolerance_, box.high.y - b_.y + tolerance_, part) &&
                         Narrow(box.high.z - a_.z - tolerance_, box.high.z - b_.z - tolerance_, part);
    if (!isThere) return 0;
    double visible = 0;
    const auto first = FirstBehind(part.first);
    auto at = first;
    for (; at != visible_.end() && at->first < part.second; ++at)
      visible += std::min(at->second, part.second) - std::max(at->first, part.first);
    parts_ += static_cast<std::size_t>(at - first);
    return visible;
  }

  // Takes away what the triangle covers and lies before. Its edges count as covered, so that no gap shows
  // between neighbours.
  void HideBehind(const PictureTriangle& t) {
    Part part = {0, 1};
    const Vec3* const corners[4] = {&t.a, &t.b, &t.c, &t.a};
    for (int i = 0; i < 3; ++i) {
      const double slack = tolerance_ * DistanceInPicture(*corners[i], *corners[i + 1]);
      if (!Narrow(TurnInPicture(*corners[i], *corners[i + 1], a_) + slack,
                  TurnInPicture(*corners[i], *corners[i + 1], b_) + slack, part))
        return;
    }
    if (Narrow(t.DepthAt(a_) - a_.z - tolerance_, t.DepthAt(b_) - b_.z - tolerance_, part)) Hide(part);
  }

  std::vector<Part> Visible() && { return std::move(visible_); }

  // What it took besides the boxes that were asked, as steps of HiddenLines.
  std::size_t Steps() const {
    return parts_ / PARTS_OF_A_STEP + (visible_.empty() ? 0 : visible_.size() - 1) * STEPS_OF_A_PART;
  }

 private:
  // The first part that ends behind this place.
  std::vector<Part>::const_iterator FirstBehind(double place) const {
    return std::partition_point(visible_.begin(), visible_.end(),
                                [&](const Part& part) { return part.second <= place; });
  }

  void Hide(const Part& hidden) {
    const auto begin = FirstBehind(hidden.first);
    auto end = begin;
    while (end != visible_.end() && end->first < hidden.second)
      ++end;
    if (begin == end) return;
    std::vector<Part> rests;
    if (hidden.first > begin->first + SHORTEST_PART) rests.emplace_back(begin->first, hidden.first);
    const double last = (end - 1)->second;
    if (last > hidden.second + SHORTEST_PART) rests.emplace_back(hidden.second, last);
    parts_ += visible_.size();
    visible_.insert(visible_.erase(begin, end), rests.begin(), rests.end());
  }

  Vec3 a_;
  Vec3 b_;
  double tolerance_;
  std::vector<Part> visible_{{0, 1}};
  mutable std::size_t parts_ = 0;  // that were looked at or moved
};

double ToleranceOf(const Scene& scene, const View& view) {
  Box box;
  for (const Surface& surface : scene.surfaces) {
    for (const Vec3& corner : surface.corners)
      box.Add(view.Project(corner));
  }
  if (box.IsEmpty()) return 0;
  return std::max({box.high.x - box.low.x, box.high.y - box.low.y, box.high.z - box.low.z}) *
         RELATIVE_TOLERANCE;
}

}  // namespace

HiddenLines::HiddenLines(const Scene& scene, const View& view, std::size_t mostSteps)
    : file_(scene.file),
      tolerance_(ToleranceOf(scene, view)),
      tree_(PictureTriangles(scene, view, tolerance_)),
      mostSteps_(mostSteps) {}

std::vector<Part> HiddenLines::Visible(const Vec3& a, const Vec3& b) {
  Line line(a, b, tolerance_);
  steps_ += tree_.Search([&](const Box& box) { return line.VisibleBehind(box); },
                         [&](const PictureTriangle& triangle) { line.HideBehind(triangle); });
  steps_ += line.Steps();
  if (steps_ > mostSteps_) {
    throw Error(
        file_ +
        ": too many surfaces hide parts of one another for a picture with lines; give some of the layers "
        "with --layer, or write a .html or .glb");
  }
  return std::move(line).Visible();
}

}  // namespace teskarlt::preview
