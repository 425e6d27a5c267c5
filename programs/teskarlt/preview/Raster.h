// Raster.h - a drawing as a picture of pixels, with hidden surfaces right.
#pragma once

#include <cstdint>
#include <vector>

#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/Svg.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::preview {

// Red, green and blue of each pixel, row by row from the top.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> bytes;
  std::size_t unnamedRoofs = 0;  // that have no room for their names
};

// Surfaces in soft light with their edges, and lines, by a depth buffer, and above them the names of the
// scene's roofs. The same bytes on every system.
// Throws Error when so much lies over one another that it would take too long.
Picture Render(const Scene& scene, const PictureOptions& options);

}  // namespace teskarlt::preview
