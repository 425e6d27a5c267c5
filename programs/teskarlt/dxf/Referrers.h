// Referrers.h - drawing orders that lose some of their entities.
#pragma once

#include <cstdint>
#include <unordered_set>
#include <vector>

#include "teskarlt/dxf/Index.h"
#include "teskarlt/dxf/SourceText.h"
#include "teskarlt/dxf/Splice.h"

namespace teskarlt::dxf {

// Takes removed entities out of the drawing orders that list them: a handle that leads nowhere
// makes strict programs repair the drawing.
void AddReferrerSplices(const SourceText& source, const Index& index,
                        const std::unordered_set<std::uint64_t>& removedHandles,
                        std::vector<Splice>& splices);

}  // namespace teskarlt::dxf
