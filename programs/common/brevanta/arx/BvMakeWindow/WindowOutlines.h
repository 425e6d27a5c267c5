// WindowOutlines.h - the three rectangles of a window in the roof plane.
#pragma once

#include <cstdint>

#include "arx/BvMakeWindow/BvMakeWindow.h"

namespace brevanta {

// Places a window at `insertion`, in roof-local coordinates, on a roof of `slope` radians. Appends four
// corners each, roof-local: 0 the start, 1 up the slope from it, 2 across from 1, 3 across from 0. `outer` is
// the frame's outline, `inner` the glazed opening, inset by the frame's width, `opening` the hole through the
// roof's construction. `slopeSide` and `widthSide`, 1 or -1, are the directions of the fall line along y and
// of the width along x. The outer corners 0 and 3 come back in drawing coordinates too. On a flat roof a
// layer with `heightReference` 1 or 2 makes the opening infinite where its reveal has to be cut square.
void ComputeWindowOutlines(const CbvMakeWindow& maker, const GcGePoint3d& insertion, double slope,
                           std::int16_t slopeSide, std::int32_t widthSide, Point3dArray& outer,
                           Point3dArray& inner, Point3dArray& opening, GcGePoint3d& corner0World,
                           GcGePoint3d& corner3World);

}  // namespace brevanta
