// SvgText.h - numbers, texts and round lengths as vector pictures have them.
#pragma once

#include <string>

#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// A coordinate with at most two decimals.
std::string Number(double value);

// The text as it stands between tags and in quotation marks; control characters become blanks.
std::string Escaped(const std::string& text);

// Where a text of the scene comes to lie in a picture whose y runs down.
struct TextPlace {
  Vec3 at;
  Vec3 along;
  Vec3 up;
};

// The text there in its colour; empty for one that is seen from its edge.
std::string TextElement(const SceneText& text, const TextPlace& place);

// 1, 2 or 5 times a power of ten: the largest such length up to `most`, which is positive.
double RoundLength(double most);

}  // namespace teskarlt::preview
