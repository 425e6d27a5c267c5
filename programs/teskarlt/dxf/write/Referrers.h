// Referrers.h - what goes and what changes with the entities that are taken out of a drawing.
#pragma once

#include <cstdint>
#include <unordered_set>
#include <vector>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/Splice.h"

namespace teskarlt::dxf {

// A handle that leads nowhere makes strict programs repair the drawing. So objects that removed entities own
// (extension dictionaries and what those own) go with them, and so do the associations of dimensions with
// them: such a dimension stays where it is, as when the entity is erased in a CAD program. Drawing orders,
// dictionaries and reactors of what stays lose the handles of all that goes. Groups are NewGroups' business.
void AddReferrerSplices(const SourceText& source, const Index& index,
                        const std::unordered_set<std::uint64_t>& removedHandles,
                        std::vector<Splice>& splices);

}  // namespace teskarlt::dxf
