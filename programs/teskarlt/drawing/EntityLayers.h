// EntityLayers.h - the layers on which entities lie.
#pragma once

#include <set>
#include <span>
#include <string>

#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// The names of the layers on which the entities lie, UTF-8.
std::set<std::string> LayersOf(const dxf::Document& drawing, std::span<const dxf::Entity* const> entities);

}  // namespace teskarlt
