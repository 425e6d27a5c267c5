// RoofNames.h - where the names of roofs stand in a picture.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::preview {

// The advance of a letter against its height; nothing wider is drawn.
constexpr double LETTER_ADVANCE = 0.93;

// A name, level in the picture.
struct PlacedName {
  std::string text;
  Vec3 middle;        // as View::Project gives it
  double height = 0;  // of its letters, drawing units
};

// How high the letters of names may be, drawing units.
struct LetterHeights {
  double least = 0;
  double most = 0;
};

struct RoofNames {
  std::vector<PlacedName> shown;
  std::size_t withoutRoom = 0;  // roofs in the frame that face the viewer and have no name there
};

// A name for each of the scene's roofs that has room for it: within the roof's outline, in the frame, and on
// a part of it that no other surface hides, such as a window: near its middle, away from its edges. The
// letters are as high as they may be, or as there is room for.
RoofNames PlaceRoofNames(const Scene& scene, const View& view, const Frame& frame,
                         const LetterHeights& heights);

}  // namespace teskarlt::preview
