// Rules.h - what a drawing's header decides about everything that is written into it.
#pragma once

#include <string_view>

namespace teskarlt::dxf {

struct Rules {
  int version = 0;
  std::string_view lineEnd;  // the file's own
  int units = 0;             // $INSUNITS
  bool isMetric = true;      // $MEASUREMENT
  bool usesHandles = false;
};

}  // namespace teskarlt::dxf
