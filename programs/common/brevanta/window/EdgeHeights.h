// EdgeHeights.h - the height of a window's upper edge from that of its lower edge, and back.
#pragma once

#include "inc/WindowParams.h"
#include "window/Outlines.h"

namespace brevanta {

constexpr int UPPER_FROM_LOWER = 1;
constexpr int LOWER_FROM_UPPER = -1;

// With UPPER_FROM_LOWER the height of the upper edge that follows from `params.lowerEdgeHeight`, else that of
// the lower edge from `params.upperEdgeHeight` (metres here). Both above the base level; the result is in
// drawing units.
double EdgeHeight(const WindowParams& params, int mode, int unitFactor);

// Heights above the base level, in metres.
struct Edges {
  double lower;
  double upper;
};

// What a confirmed record says: the height of the anchor, and that of the opening's upper edge.
Edges RecordedEdges(const WindowParams& params);

// Where the edges of a drawn frame lie; its corners in drawing coordinates, `unitFactor` in drawing units per
// metre.
Edges EdgesOf(const Outline& frame, double unitFactor);

}  // namespace brevanta
