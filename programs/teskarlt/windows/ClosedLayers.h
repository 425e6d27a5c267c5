// ClosedLayers.h - windows on layers that cannot be changed or seen.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// CAD programs let nobody change what lies on a locked or frozen layer; neither do we. Throws Error, naming
// the layer, for a window on such a one.
void RefuseClosedLayers(const dxf::Document& drawing, const DrawnWindow& window);

// A warning for people for each of the layers (names in UTF-8) on which new entities cannot be seen, and for
// each on which they cannot be changed.
std::vector<std::string> ClosedLayerWarnings(const dxf::Document& drawing,
                                             const std::set<std::string>& layers);

}  // namespace teskarlt
