// SlopeMoves.h - how a frame must move along the eaves or the slope to be clear of what lies on a roof.
#pragma once

#include <vector>

#include "teskarlt/drawing/SlopeBox.h"
#include "teskarlt/drawing/SlopeFrame.h"

namespace teskarlt {

// Whether the ring, which may be a line there and back, or what it encloses reaches into the box; what
// touches it does not.
bool ReachesInto(const SlopeRing& ring, const SlopeBox& box);

// How far the ring, or what it encloses, is from the box; 0 where they touch.
double DistanceBetween(const SlopeRing& ring, const SlopeBox& box);

// The same for a straight line between two points.
double DistanceBetween(const SlopePoint& a, const SlopePoint& b, const SlopeBox& box);

// The ways to the left, to the right, up and down after each of which the box is first clear of all rings,
// the shortest first. What a ring embraces along a way counts as the ring.
std::vector<SlopePoint> WaysClearOf(const std::vector<SlopeRing>& rings, const SlopeBox& box);

// How long such a way is.
double Length(const SlopePoint& way);

}  // namespace teskarlt
