// NewDrawing.h - the text of an empty drawing.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/dxf/tags/Units.h"
#include "teskarlt/dxf/tags/Version.h"

namespace teskarlt::dxf {

// The code page of drawings made here.
constexpr const char* NEW_DRAWING_CODE_PAGE = "ANSI_1250";

struct NewDrawingOptions {
  int version = VERSION_R2000;            // VERSION_R12, VERSION_R2000 or VERSION_R2018
  int units = UNITS_METRES;               // for $INSUNITS; $MEASUREMENT follows
  std::vector<std::string> layers;        // besides "0", as they stand in the file
  std::vector<std::string> applications;  // names of extended data
};

// The bytes of an empty drawing with linetype DASHED and what the options name. Throws Error for a version
// that is not offered.
std::string NewDrawing(const NewDrawingOptions& options);

}  // namespace teskarlt::dxf
