// PartOrder.h - the parts of a window in the order in which they were drawn, found by how they meet.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "geometry/Vec3.h"

namespace teskarlt {

// Drawing units: the corners of a face; of a line its ends are the first two.
using PartCorners = std::array<geometry::Vec3, 4>;

// Numbers of parts, in the order in which the module draws them (window/Parts.h).
using PartOrder = std::vector<std::size_t>;

// Whether the lines, or the faces, stand in that order, as far as their closed outlines show it. Points that
// are no farther apart than `tolerance` (drawing units) are one.
bool LinesAreInOrder(std::span<const PartCorners> lines, bool hasSymbol, double tolerance);
bool FacesAreInOrder(std::span<const PartCorners> faces, double tolerance);

// That order, for the lines or the faces of one whole window; empty where they show no window. The first edge
// of an outline is the one that leads up the slope, on a flat roof the one along the y axis.
PartOrder OrderOfLines(std::span<const PartCorners> lines, bool hasSymbol, double tolerance);
PartOrder OrderOfFaces(std::span<const PartCorners> faces, double tolerance);

}  // namespace teskarlt
