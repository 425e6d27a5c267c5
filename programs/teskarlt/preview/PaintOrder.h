// PaintOrder.h - in which order surfaces are painted over each other where there is no depth buffer.
#pragma once

#include <cstddef>
#include <vector>

#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::preview {

// Indices of the scene's surfaces from the farthest to the nearest, so that of any two that overlap in the
// picture the nearer one comes later. Surfaces seen from their edge are left out. Where surfaces overlap in a
// ring or cut through each other no order is right, and the order of the drawing is kept. Where so many
// overlap that comparing them would take too long, the depths of their middles decide.
std::vector<std::size_t> PaintOrder(const Scene& scene, const View& view);

}  // namespace teskarlt::preview
