// Png.h - pictures of pixels as files.
#pragma once

#include <string>

#include "teskarlt/preview/Raster.h"

namespace teskarlt::preview {

// The bytes of a PNG file (ISO/IEC 15948), compressed by zlib. The same on every system.
std::string Png(const Picture& picture);

}  // namespace teskarlt::preview
