// Colours.h - colours of a drawing, and how they are shown on a light ground.
#pragma once

#include <cstdint>
#include <string>

namespace teskarlt::preview {

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  bool operator==(const Colour&) const = default;
};

// The colour with a number from 1 to 255; that of number 7 for any other. 10 to 249 are 24 hues in ten
// shades each, 250 to 255 greys.
Colour ColourOfNumber(std::int64_t number);

// A true colour (group 420), 0xRRGGBB.
Colour ColourOfValue(std::int64_t value);

// The colour of a line on a white ground: white turns black, light colours turn darker.
Colour Ink(const Colour& colour);

// The colour of a surface in even light: full colours are toned down so that light and shade show.
Colour Paint(const Colour& colour);

// The panes of roof windows, which no layer colours.
constexpr Colour GLASS = {150, 190, 215};

// The colour of a surface's edges.
Colour EdgeInk(const Colour& colour);

// The colour times a brightness, 1 leaves it as it is; no channel goes beyond white.
Colour Lit(const Colour& colour, double brightness);

// "#rrggbb".
std::string Hex(const Colour& colour);

}  // namespace teskarlt::preview
