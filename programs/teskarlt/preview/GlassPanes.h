// GlassPanes.h - the panes of a scene's windows, and the lines that are drawn under them.
#pragma once

#include <map>
#include <vector>

#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// The opening symbol is drawn in the roof plane, where the frame and the pane of its window hide it.
class GlassPanes {
 public:
  // The scene must outlive the panes and keep its surfaces.
  explicit GlassPanes(const Scene& scene);

  // The points of a curve: raised onto the pane of its window, a thousandth of the pane's size above it,
  // where they lie in a plane below it and within its outline, else as they are.
  std::vector<Vec3> OntoPane(const Curve& curve) const;

 private:
  const Scene& scene_;
  std::map<int, const Surface*> panes_;  // by window
};

}  // namespace teskarlt::preview
