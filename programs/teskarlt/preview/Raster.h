// Raster.h - a drawing as a picture of pixels, with hidden surfaces right.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/Svg.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::preview {

// Red, green and blue of each pixel, row by row from the top; of a transparent picture also how much of the
// ground it hides, up to 255.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> bytes;
  std::size_t unnamedRoofs = 0;     // that have no room for their names
  std::size_t untaggedWindows = 0;  // that face the viewer and have no room for their tags
  bool isTransparent = false;

  std::size_t Channels() const { return isTransparent ? 4 : 3; }  // bytes a pixel
};

// Surfaces in soft light with their edges, and lines, by a depth buffer, and above them the names of the
// scene's roofs and, where they are asked for, those of its windows. The same bytes on every system.
// Throws Error when so much lies over one another that it would take too long.
Picture Render(const Scene& scene, const PictureOptions& options);

}  // namespace teskarlt::preview
