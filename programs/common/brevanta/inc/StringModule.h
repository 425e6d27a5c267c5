// StringModule.h - the module that holds the layer names, and their numbers in it.
#pragma once

namespace brevanta {

constexpr const char* RESOURCE_MODULE = "Brevanta_d.tkr";

constexpr unsigned LAYER_OPENING = 57;  // plan outline without the opening symbol
constexpr unsigned LAYER_OUTLINE = 58;  // plan outline beside the opening symbol
constexpr unsigned LAYER_SYMBOL = 59;
constexpr unsigned LAYER_BODY = 60;
constexpr unsigned LAYER_NAMES[] = {LAYER_OPENING, LAYER_OUTLINE, LAYER_SYMBOL, LAYER_BODY};

}  // namespace brevanta
