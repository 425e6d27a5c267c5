// ClosedLayers.h - windows on layers that cannot be changed or seen.
#pragma once

#include <set>
#include <string>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/terminal/Options.h"

namespace teskarlt {

// Adds --locked to a command that changes a window. The flag must outlive the parsing.
void AddLockedOption(Subcommand& command, bool& isLockedToo);

// CAD programs let nobody change what lies on a locked or frozen layer; neither do we, unless `isLockedToo`.
// Throws Error, naming the layer.
void RefuseClosedLayers(const dxf::Document& drawing, const DrawnWindow& window, bool isLockedToo);

// Warns where new entities come onto layers (names in UTF-8) on which they cannot be seen, or not be changed.
void WarnOfClosedLayers(const dxf::Document& drawing, const std::set<std::string>& layers);

}  // namespace teskarlt
