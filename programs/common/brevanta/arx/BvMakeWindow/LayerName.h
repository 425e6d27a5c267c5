// LayerName.h - the layer names that the string-resource module holds.
#pragma once

#include "platform/ModuleServices.h"

namespace brevanta {

// Numbers of the strings.
constexpr UINT LAYER_OPENING = 57;  // plan outline without the opening symbol
constexpr UINT LAYER_OUTLINE = 58;  // plan outline beside the opening symbol
constexpr UINT LAYER_SYMBOL = 59;
constexpr UINT LAYER_BODY = 60;

// One layer name; empty when the module or the string is missing.
class LayerName {
 public:
  LayerName(HMODULE resourceModule, UINT number) {
    // Without a module the system would look into the program's own strings.
    if (resourceModule != nullptr) LoadStringA(resourceModule, number, text_, sizeof text_);
  }

  const char* Text() const { return text_; }

 private:
  char text_[200] = {};
};

}  // namespace brevanta
