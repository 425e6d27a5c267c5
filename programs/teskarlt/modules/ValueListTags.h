// ValueListTags.h - an entity from the module's typed value list to the tags of a drawing.
#pragma once

#include <vector>

#include "inc/ValueNode.h"
#include "teskarlt/dxf/tags/TypedTag.h"

namespace teskarlt {

// The list's tags in their order; texts stay the list's. The marker in front of extended data goes. Throws
// Error for a code that has no kind, a missing text, an empty layer name and an endless list.
std::vector<dxf::TypedTag> TagsOf(const brevanta::ValueNode* list);

}  // namespace teskarlt
