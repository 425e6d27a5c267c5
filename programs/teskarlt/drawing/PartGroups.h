// PartGroups.h - parts of several windows, told apart by where they lie.
#pragma once

#include <cstddef>
#include <vector>

#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// The entities, which CanBePart, in groups: those that meet, or whose middles are no farther apart than
// `reach`, are of one group, and so is what meets either of them. Points within `tolerance` meet; both are in
// drawing units. Entities keep their order, and groups have that of their first ones.
std::vector<std::vector<const dxf::Entity*>> GroupByPlace(const dxf::Document& drawing,
                                                          const std::vector<const dxf::Entity*>& entities,
                                                          double tolerance, double reach);

}  // namespace teskarlt
