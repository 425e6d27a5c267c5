// LayerName.h - the layer names that the string-resource module holds.
#pragma once

#include "inc/StringModule.h"
#include "platform/ModuleServices.h"

namespace brevanta {

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
