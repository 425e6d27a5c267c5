// DrawLabels.h - draws the labels of a plan.
#pragma once

#include "teskarlt/plot/Canvas.h"
#include "teskarlt/plot/Labels.h"

namespace teskarlt::plot {

// A group each for falls, dimensions and tags.
void DrawLabels(const PlacedLabels& labels, Canvas& canvas);

}  // namespace teskarlt::plot
