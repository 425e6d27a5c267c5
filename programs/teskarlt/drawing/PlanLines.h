// PlanLines.h - the lines and texts of a drawing, seen from above.
#pragma once

#include <unordered_set>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/PlanIndex.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// Drawing coordinates.
struct PlanLine {
  geometry::Vec3 from;
  geometry::Vec3 to;
  bool isText = false;  // it leads over a text, from a corner of the box around it to the one across
};

// Letters are about so wide, in heights of their text.
inline constexpr double LETTER_WIDTH = 0.9;

// Of all entities of the model space but `passed`: the lines of curves, the edges of faces, the texts, and
// all of these in the blocks that are inserted; as far as the boxes around them touch one of the areas.
std::vector<PlanLine> PlanLinesIn(const dxf::Document& drawing,
                                  const std::unordered_set<const dxf::Entity*>& passed,
                                  const PlanIndex& areas);

}  // namespace teskarlt
