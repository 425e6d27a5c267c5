// SceneReader.h - gathers what is to be seen of a drawing.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

struct SceneOptions {
  AskedUnit units;                       // what the user says of the drawing's unit
  std::vector<std::string> layers = {};  // only these, UTF-8, without regard to case; empty: all
  bool withRoofs = false;                // finds the roofs, too, as far as they are to be seen
};

// The model space with its blocks, as far as its layers are visible. Throws Error for a malformed drawing, an
// unknown unit or layer, a unit that is not the drawing's, blocks that hold themselves, and when nothing is
// left to be seen.
Scene ReadScene(const dxf::Document& drawing, const SceneOptions& options);

}  // namespace teskarlt::preview
