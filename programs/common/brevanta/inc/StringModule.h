// StringModule.h - the module that holds the layer names.
#pragma once

namespace brevanta {

constexpr const char* RESOURCE_MODULE = "Brevanta_d.tkr";

}  // namespace brevanta
