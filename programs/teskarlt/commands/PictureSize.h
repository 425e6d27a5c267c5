// PictureSize.h - the size of a picture as users say it.
#pragma once

#include <string_view>

namespace teskarlt {

// The least and the greatest width and height of a picture.
inline constexpr int LEAST_PIXELS = 100;
inline constexpr int MOST_PIXELS = 10000;

struct PictureSize {
  int width = 0;  // pixels
  int height = 0;

  bool operator==(const PictureSize&) const = default;
};

// "1600x900". Throws UsageError for anything else, and for sizes that no picture has.
PictureSize ReadPictureSize(std::string_view text);

}  // namespace teskarlt
