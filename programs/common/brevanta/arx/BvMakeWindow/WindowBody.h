// WindowBody.h - the window's 3D body: skirt, frame and glass pane.
#pragma once

#include <cstdint>

#include "arx/BvMakeWindow/BvMakeWindow.h"

namespace brevanta {

// Builds the body over the two outlines (four roof-local corners each, in the same order) on a roof of
// `slope` radians and writes it face by face: skirt, frame, glass. Records the maker's `innerOutline` and
// `outerOutline` and draws the opening symbol when the record asks for it. `slopeSide`, 1 or -1, is the
// direction of the fall line along y.
void MakeWindowBody(CbvMakeWindow& maker, const Point3dArray& outer, const Point3dArray& inner, double slope,
                    std::int16_t slopeSide);

}  // namespace brevanta
