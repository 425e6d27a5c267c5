// View.h - the directions that a drawing is looked at from, and the part of it that is shown.
#pragma once

#include <optional>
#include <string_view>

#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// A parallel projection. The three unit vectors stand at right angles; "south" is seen from the south, where
// y is least.
struct View {
  std::string_view name;   // as in --view
  std::string_view title;  // "South elevation"
  Vec3 right;
  Vec3 up;
  Vec3 toward;  // to the viewer

  // x to the right, y up, z towards the viewer, in drawing units.
  Vec3 Project(const Vec3& point) const;
  bool IsPlan() const { return toward.z == 1; }
};

// "plan", "iso" (from the south-east), "south", "north", "east" or "west"; null for another name.
const View* FindView(std::string_view name);

// How bright a surface with this normal (of the drawing, either side) looks under a soft light from above
// left of the viewer, from 0 to about 1.1.
double Brightness(const View& view, const Vec3& normal);

// A rectangle of the projection, in drawing units.
struct Frame {
  double left = 0;
  double bottom = 0;
  double right = 0;
  double top = 0;

  double Width() const { return right - left; }
  double Height() const { return top - bottom; }
};

// What of a scene a picture shows: all, or the surroundings of a window or a roof.
struct Zoom {
  std::optional<std::size_t> window = {};  // index in Scene::windows
  std::optional<std::size_t> roof = {};    // index in Scene::roofs
};

// The rectangle around the scene, around one of its windows with as much again on every side, or around one
// of its roofs with a quarter more; never without width or height.
Frame FrameOf(const Scene& scene, const View& view, const Zoom& zoom);

// The frame of a plan, which shows the scene's texts and fillings too: where it shows all, with them.
Frame PlanFrameOf(const Scene& scene, const Zoom& zoom);

}  // namespace teskarlt::preview
