// EntityFace.h - a face of an entity, as its corners stand in the file.
#pragma once

#include <cstdint>
#include <vector>

#include "geometry/Vec3.h"

namespace teskarlt {

// Coordinates are those in which the entity stands: of the drawing, or of its block.
struct EntityFace {
  std::vector<geometry::Vec3> corners;             // in order around it
  std::vector<std::vector<geometry::Vec3>> holes;  // in its plane, the other way round
  std::uint32_t hiddenEdges = 0;  // bit k: the edge from corner k to the next one is not drawn
};

}  // namespace teskarlt
