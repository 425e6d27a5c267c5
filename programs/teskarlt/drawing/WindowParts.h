// WindowParts.h - where the parts of a window lie, in the order in which they were drawn.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "teskarlt/drawing/PartOrder.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// Parts that lie farther apart do not belong together.
constexpr double SAME_PLACE = 1e-3;  // metres

// Faces and lines with the entities that they are, each list in the order of the other.
struct WindowParts {
  std::vector<PartCorners> faces;
  std::vector<PartCorners> lines;
  std::vector<const dxf::Entity*> faceEntities;
  std::vector<const dxf::Entity*> lineEntities;
};

// The parts in the order of `entities`, which CanBePart. Corners that are missing lie at the origin.
WindowParts ReadParts(const dxf::Document& drawing, std::span<const dxf::Entity* const> entities);

// Puts the parts of one whole window into the order in which the module draws them, and says whether they
// have it now. Those that show no window stay as they are. `tolerance` is in drawing units.
bool PutInOrder(bool hasSymbol, double tolerance, WindowParts& parts);

}  // namespace teskarlt
