// PictureSize.cpp - the size of a picture as users say it.
#include "teskarlt/commands/PictureSize.h"

#include <charconv>
#include <cstddef>
#include <optional>
#include <system_error>

#include <fmt/format.h>

#include "teskarlt/terminal/Options.h"

namespace teskarlt {

namespace {

// A number of pixels and nothing else.
std::optional<int> PixelsOf(std::string_view text) {
  int pixels = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, pixels);
  if (error != std::errc() || stop != end || pixels < LEAST_PIXELS || pixels > MOST_PIXELS)
    return std::nullopt;
  return pixels;
}

}  // namespace

PictureSize ReadPictureSize(std::string_view text) {
  const std::size_t mark = text.find('x');
  const std::optional<int> width = PixelsOf(text.substr(0, mark));
  const std::optional<int> height =
      mark == std::string_view::npos ? std::nullopt : PixelsOf(text.substr(mark + 1));
  if (!width || !height) {
    throw UsageError(
        fmt::format("--size: \"{}\" is no width x height in pixels, each from {} to {}, as 1600x900", text,
                    LEAST_PIXELS, MOST_PIXELS));
  }
  return {*width, *height};
}

}  // namespace teskarlt
