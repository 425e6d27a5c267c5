// Svg.h - a drawing as a vector picture.
#pragma once

#include <cstddef>
#include <string>

#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::preview {

struct PictureOptions {
  const View* view = nullptr;  // never null
  int width = 0;               // pixels
  Zoom zoom;
  int height = 0;              // of pictures of pixels: 0 is as high as what is shown
  bool isTransparent = false;  // of pictures of pixels: without a ground
  bool withTags = false;       // of pictures of pixels: the windows bear their names
};

struct VectorPicture {
  std::string text;
  std::size_t unnamedRoofs = 0;  // that have no room for their names
};

// An SVG document: surfaces with a light wash of their colours, above them one group a layer with its lines,
// then the numbers of the windows (in plan), the names of the scene's roofs, title and scale bar. Edges of
// surfaces are drawn as far as nothing hides them, and so are lines, but in plan, where every line is drawn.
VectorPicture Svg(const Scene& scene, const PictureOptions& options);

}  // namespace teskarlt::preview
