// DrawnTags.h - an entity of the module in the unit of the drawing.
#pragma once

#include <vector>

#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/dxf/tags/TypedTag.h"

namespace teskarlt {

// Takes the tags of an entity, as TagsOf gives them, out of working units: its points, and the points and
// lengths of its description, each by the kind of its item.
void TakeToDrawn(const WorkingUnit& unit, std::vector<dxf::TypedTag>& tags);

}  // namespace teskarlt
