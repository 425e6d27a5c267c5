// VisibleLines.h - the edges and curves of a scene as far as nothing hides them.
#pragma once

#include <cstddef>
#include <vector>

#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::preview {

// A straight piece in the projection.
struct VisibleLine {
  Vec3 a;
  Vec3 b;
  Colour colour;
  std::size_t layer = 0;
  std::size_t pattern = 0;
  double offset = 0;  // length of the pattern that is used up at a, as seen in the projection
  bool isEdge = false;
  int window = NO_WINDOW;  // index in Scene::windows
};

// Edges of surfaces, then curves, each in the order of the scene, as far as they lie in the frame. An edge
// that merely touches another surface counts as behind it when its own surface lies behind. In plan every
// curve is visible: plans are drawn on the ground, under the roof.
std::vector<VisibleLine> VisibleLines(const Scene& scene, const View& view, const Frame& frame);

}  // namespace teskarlt::preview
