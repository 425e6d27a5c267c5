// View.cpp - parallel projections.
#include "teskarlt/preview/View.h"

#include <algorithm>
#include <array>

#include "geometry/Vectors.h"

namespace teskarlt::preview {

namespace {

constexpr double HALF_ROOT = 0.70710678118654757;   // 1 / sqrt(2)
constexpr double THIRD_ROOT = 0.57735026918962573;  // 1 / sqrt(3)
constexpr double SIXTH_ROOT = 0.40824829046386302;  // 1 / sqrt(6)

constexpr std::array<View, 6> VIEWS = {{
    {"plan", "Plan", {1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
    {"iso",
     "Isometric view",
     {HALF_ROOT, HALF_ROOT, 0},
     {-SIXTH_ROOT, SIXTH_ROOT, 2 * SIXTH_ROOT},
     {THIRD_ROOT, -THIRD_ROOT, THIRD_ROOT}},
    {"south", "South elevation", {1, 0, 0}, {0, 0, 1}, {0, -1, 0}},
    {"north", "North elevation", {-1, 0, 0}, {0, 0, 1}, {0, 1, 0}},
    {"east", "East elevation", {0, 1, 0}, {0, 0, 1}, {1, 0, 0}},
    {"west", "West elevation", {0, -1, 0}, {0, 0, 1}, {-1, 0, 0}},
}};

Frame Around(const Box& box) {
  return {box.low.x, box.low.y, box.high.x, box.high.y};
}

void Grow(Frame& frame, double by) {
  frame.left -= by;
  frame.right += by;
  frame.bottom -= by;
  frame.top += by;
}

// As far as its letters reach in a usual font.
void AddText(const SceneText& text, Box& box) {
  constexpr double advance = 0.8;  // of a letter against the height of capitals
  const double width = advance * static_cast<double>(text.text.size());
  const double start = text.anchor == TextAnchor::Start ? 0 : text.anchor == TextAnchor::Middle ? -0.5 : -1;
  for (const double share : {start, start + 1}) {
    const Vec3 end = geometry::Moved(text.at, text.along, share * width);
    box.Add(end);
    box.Add(geometry::Sum(end, text.up));
  }
}

Frame FrameOf(const SceneRoof& roof, const View& view) {
  constexpr double around = 0.25;
  Box box;
  for (const std::vector<Vec3>& ring : roof.rings) {
    for (const Vec3& corner : ring)
      box.Add(view.Project(corner));
  }
  Frame frame = Around(box);
  Grow(frame, std::max(frame.Width(), frame.Height()) * around);
  return frame;
}

}  // namespace

Vec3 View::Project(const Vec3& point) const {
  return {geometry::VecDot(point, right), geometry::VecDot(point, up), geometry::VecDot(point, toward)};
}

const View* FindView(std::string_view name) {
  const auto* const found =
      std::find_if(VIEWS.begin(), VIEWS.end(), [&](const View& view) { return view.name == name; });
  return found == VIEWS.end() ? nullptr : found;
}

double Brightness(const View& view, const Vec3& normal) {
  constexpr Vec3 key = {-0.42, 0.68, 0.6};
  constexpr Vec3 fill = {0.8, 0.1, 0.59};
  constexpr double ambient = 0.62;
  constexpr double keyStrength = 0.42;
  constexpr double fillStrength = 0.1;
  Vec3 n = view.Project(normal);
  if (n.z < 0) n = {-n.x, -n.y, -n.z};
  return ambient + keyStrength * std::max(0.0, geometry::VecDot(n, key)) +
         fillStrength * std::max(0.0, geometry::VecDot(n, fill));
}

Frame FrameOf(const Scene& scene, const View& view, const Zoom& zoom) {
  if (zoom.roof) return FrameOf(scene.roofs[*zoom.roof], view);
  const std::optional<std::size_t>& window = zoom.window;
  Box box;
  const auto add = [&](const std::vector<Vec3>& points, int itsWindow) {
    if (window && itsWindow != static_cast<int>(*window)) return;
    for (const Vec3& point : points)
      box.Add(view.Project(point));
  };
  for (const Surface& surface : scene.surfaces)
    add(surface.corners, surface.window);
  for (const Curve& curve : scene.curves)
    add(curve.points, curve.window);
  Frame frame = Around(box);
  const double size = std::max(frame.Width(), frame.Height());
  if (window) Grow(frame, size);
  if (!(frame.Width() > 0 && frame.Height() > 0)) Grow(frame, size > 0 ? size / 20 : 1);
  return frame;
}

Frame PlanFrameOf(const Scene& scene, const Zoom& zoom) {
  Frame frame = FrameOf(scene, *FindView("plan"), zoom);
  if (zoom.window || zoom.roof) return frame;
  Box box;
  box.Add({frame.left, frame.bottom, 0});
  box.Add({frame.right, frame.top, 0});
  for (const SceneText& text : scene.texts)
    AddText(text, box);
  for (const SceneFilling& filling : scene.fillings) {
    for (const std::vector<Vec3>& ring : filling.rings)
      std::for_each(ring.begin(), ring.end(), [&](const Vec3& corner) { box.Add(corner); });
  }
  return Around(box);
}

}  // namespace teskarlt::preview
