// HatchFaces.h - the faces that a HATCH fills.
#pragma once

#include <vector>

#include "teskarlt/drawing/EntityFace.h"
#include "teskarlt/dxf/read/TagList.h"

namespace teskarlt {

// A face for each boundary that the hatch fills, with those within it as holes, as the hatch's style has it:
// every second one, the outer ones with their holes, or the outer ones alone. Arcs are in steps of at most 5
// degrees. Nothing when a boundary is an ellipse or spline. The hatch is the first of the lists.
std::vector<EntityFace> FacesOfHatch(const std::vector<dxf::TagList>& lists);

}  // namespace teskarlt
