// Letters.h - the letters of names as strokes, for pictures of pixels.
#pragma once

#include <string>
#include <vector>

#include "geometry/Vec3.h"

namespace teskarlt::preview {

// The strokes of a text, each a line of two or more points: x to the right and y up from the middle of the
// text, in heights of a letter; a letter takes LETTER_ADVANCE. Knows A to Z, digits
// and - . / _; small letters are shown as capitals, others are left blank.
std::vector<std::vector<geometry::Vec3>> StrokesOf(const std::string& text);

}  // namespace teskarlt::preview
