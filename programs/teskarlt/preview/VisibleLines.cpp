// VisibleLines.cpp - gathers the lines of a picture.
#include "teskarlt/preview/VisibleLines.h"

#include <algorithm>
#include <array>
#include <functional>
#include <unordered_set>

#include "geometry/Vectors.h"
#include "teskarlt/preview/HiddenLines.h"
#include "teskarlt/preview/Picture.h"

namespace teskarlt::preview {

namespace {

// How far an edge is moved into its surface before it is asked for: relative to the size of the scene, or of
// what is shown of it with as much around that it is seldom less; but farther than HiddenLines tells apart.
constexpr double INSET = 1e-5;
constexpr double AROUND_FRAME = 10;
constexpr double LEAST_INSET = 2e-6;  // relative to the size of the scene
// Parts of so many insets and shorter are left over by that movement.
constexpr double SHORTEST = 10;

// An edge that two surfaces may share, in the picture.
struct Edge {
  std::size_t layer;
  Colour colour;
  std::array<double, 4> ends;  // x and y of both, the lesser end first

  bool operator==(const Edge&) const = default;
};

struct EdgeHash {
  std::size_t operator()(const Edge& edge) const {
    constexpr std::size_t odd = 0x9E3779B97F4A7C15;  // spreads what differs little (D. Knuth, TAOCP 6.4)
    std::size_t hash = edge.layer;
    for (const double end : edge.ends)
      hash = (hash ^ (hash >> 29)) * odd + std::hash<double>{}(end);
    return hash;
  }
};

class Gatherer {
 public:
  Gatherer(const Scene& scene, const View& view, const Frame& frame)
      : scene_(scene), view_(view), frame_(frame), hidden_(scene, view) {
    const Box& box = scene.box;
    const double size = std::max({box.high.x - box.low.x, box.high.y - box.low.y, box.high.z - box.low.z});
    const double shown = AROUND_FRAME * std::max(frame.Width(), frame.Height());
    inset_ = std::max(INSET * std::min(size, shown), LEAST_INSET * size);
  }

  std::vector<VisibleLine> Run() {
    for (const Surface& surface : scene_.surfaces)
      AddEdges(surface);
    for (const Curve& curve : scene_.curves)
      AddCurve(curve);
    return std::move(lines_);
  }

 private:
  bool IsOutside(const Vec3& a, const Vec3& b) const {
    return std::max(a.x, b.x) < frame_.left || std::min(a.x, b.x) > frame_.right ||
           std::max(a.y, b.y) < frame_.bottom || std::min(a.y, b.y) > frame_.top;
  }

  void AddEdges(const Surface& surface) {
    const std::vector<Vec3>& corners = surface.corners;
    const Vec3 normal = NormalOf(corners);
    for (std::size_t k = 0; k < corners.size(); ++k) {
      if (k < HIDDEN_EDGE_BITS && (surface.hiddenEdges >> k & 1U) != 0) continue;
      const Vec3& from = corners[k];
      const Vec3& to = corners[(k + 1) % corners.size()];
      const VisibleLine line = {
          view_.Project(from), view_.Project(to), surface.colour, surface.layer, 0, 0, true, surface.window};
      if (!IsOutside(line.a, line.b)) AddParts(line, VisibleInside(line, from, to, normal));
    }
  }

  using Parts = std::vector<std::pair<double, double>>;

  // The visible parts of a line along the rim of a surface with that normal, asked for a little inside of it.
  Parts VisibleInside(const VisibleLine& line, const Vec3& from, const Vec3& to, const Vec3& normal) {
    const Vec3 inwards = geometry::Cross(normal, geometry::Difference(to, from));
    const double length = geometry::VecLength(inwards);
    const Vec3 shift = view_.Project(geometry::Scaled(inwards, length > 0 ? inset_ / length : 0));
    return hidden_.Visible(geometry::Sum(line.a, shift), geometry::Sum(line.b, shift));
  }

  void AddCurve(const Curve& curve) {
    double offset = 0;
    const Vec3 normal =
        curve.outlined == NO_SURFACE ? Vec3{0, 0, 0} : NormalOf(scene_.surfaces[curve.outlined].corners);
    for (std::size_t i = 1; i < curve.points.size(); ++i) {
      const VisibleLine line = {view_.Project(curve.points[i - 1]),
                                view_.Project(curve.points[i]),
                                curve.colour,
                                curve.layer,
                                curve.pattern,
                                offset,
                                false,
                                curve.window};
      offset += DistanceInPicture(line.a, line.b);
      if (IsOutside(line.a, line.b)) continue;
      AddParts(line, view_.IsPlan() ? Parts{{0, 1}}
                                    : VisibleInside(line, curve.points[i - 1], curve.points[i], normal));
    }
  }

  void AddParts(const VisibleLine& line, const Parts& parts) {
    const double shortest = SHORTEST * inset_;
    for (const auto& [from, to] : parts) {
      const bool isWhole = from == 0 && to == 1;
      if (!isWhole && (to - from) * DistanceInPicture(line.a, line.b) < shortest) continue;
      VisibleLine part = line;
      part.a = geometry::Between(line.a, line.b, from);
      part.b = geometry::Between(line.a, line.b, to);
      part.offset += from * DistanceInPicture(line.a, line.b);
      if (!part.isEdge || IsNew(part)) lines_.push_back(part);
    }
  }

  // Neighbouring surfaces share their edges.
  bool IsNew(const VisibleLine& line) {
    std::array<double, 2> a = {line.a.x, line.a.y};
    std::array<double, 2> b = {line.b.x, line.b.y};
    if (b < a) std::swap(a, b);
    return edges_.insert({line.layer, line.colour, {a[0], a[1], b[0], b[1]}}).second;
  }

  const Scene& scene_;
  const View& view_;
  const Frame& frame_;
  HiddenLines hidden_;
  double inset_ = 0;
  std::unordered_set<Edge, EdgeHash> edges_;
  std::vector<VisibleLine> lines_;
};

}  // namespace

std::vector<VisibleLine> VisibleLines(const Scene& scene, const View& view, const Frame& frame) {
  return Gatherer(scene, view, frame).Run();
}

}  // namespace teskarlt::preview
