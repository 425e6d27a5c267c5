// Colours.cpp - the numbered colours, inks and paints.
#include "teskarlt/preview/Colours.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"

namespace teskarlt::preview {

namespace {

constexpr std::array<Colour, 10> NAMED = {{{0, 0, 0},
                                           {255, 0, 0},
                                           {255, 255, 0},
                                           {0, 255, 0},
                                           {0, 255, 255},
                                           {0, 0, 255},
                                           {255, 0, 255},
                                           {255, 255, 255},
                                           {128, 128, 128},
                                           {192, 192, 192}}};
constexpr int FIRST_HUE = 10;
constexpr int FIRST_GREY = 250;
constexpr std::array<int, 6> GREYS = {0x33, 0x50, 0x69, 0x82, 0xBE, 0xFF};
constexpr std::array<int, 5> SHADES = {255, 165, 127, 76, 38};  // brightness of each pair of shades
constexpr int QUARTERS = 24;                                    // steps of the circle of hues

// Share of a primary colour, in quarters, `step` steps behind its full hue: full within a sixth of the
// circle, then falling to nothing within the next one.
int Share(int step) {
  const int away = std::min(step % QUARTERS, QUARTERS - step % QUARTERS);
  return std::clamp(8 - away, 0, 4);
}

std::uint8_t Channel(double value) {
  return static_cast<std::uint8_t>(std::clamp(value + 0.5, 0.0, 255.0));
}

Colour Mixed(const Colour& a, const Colour& b, double shareOfB) {
  const auto mix = [&](std::uint8_t from, std::uint8_t to) { return Channel(from + (to - from) * shareOfB); };
  return {mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue)};
}

// Brightness as the eye sees it, 0 to 255 (ITU-R BT.601).
double Luma(const Colour& colour) {
  return 0.299 * colour.red + 0.587 * colour.green + 0.114 * colour.blue;
}

}  // namespace

Colour ColourOfNumber(std::int64_t number) {
  if (number < 1 || number > 255) return NAMED[dxf::COLOUR_WHITE];
  if (number < FIRST_HUE) return NAMED[static_cast<std::size_t>(number)];
  if (number >= FIRST_GREY) {
    const auto grey = static_cast<std::uint8_t>(GREYS[static_cast<std::size_t>(number - FIRST_GREY)]);
    return {grey, grey, grey};
  }
  const int step = static_cast<int>(number) / 10 - 1;
  const int brightness = SHADES[static_cast<std::size_t>(number % 10 / 2)];
  const bool isPale = number % 2 != 0;  // half of the way to the grey of the same brightness
  const auto channel = [&](int share) {
    return static_cast<std::uint8_t>(isPale ? brightness * (4 + share) / 8 : brightness * share / 4);
  };
  return {channel(Share(step)), channel(Share(step + 2 * QUARTERS / 3)), channel(Share(step + QUARTERS / 3))};
}

Colour ColourOfValue(std::int64_t value) {
  return {static_cast<std::uint8_t>(value >> 16 & 255), static_cast<std::uint8_t>(value >> 8 & 255),
          static_cast<std::uint8_t>(value & 255)};
}

Colour Ink(const Colour& colour) {
  constexpr double brightest = 120;
  const bool isGrey = colour.red == colour.green && colour.green == colour.blue;
  if (isGrey && colour.red >= 250) return {34, 34, 34};
  const double luma = Luma(colour);
  return luma > brightest ? Lit(colour, brightest / luma) : colour;
}

Colour Paint(const Colour& colour) {
  constexpr Colour plaster = {238, 232, 222};
  constexpr double greyer = 0.4;
  constexpr double share = 0.35;
  const std::uint8_t luma = Channel(Luma(colour));
  return Mixed(Mixed(colour, {luma, luma, luma}, greyer), plaster, share);
}

Colour EdgeInk(const Colour& colour) {
  constexpr Colour graphite = {45, 45, 50};
  constexpr double share = 0.75;
  return Mixed(Paint(colour), graphite, share);
}

Colour Lit(const Colour& colour, double brightness) {
  return {Channel(colour.red * brightness), Channel(colour.green * brightness),
          Channel(colour.blue * brightness)};
}

std::string Hex(const Colour& colour) {
  return fmt::format("#{:02x}{:02x}{:02x}", colour.red, colour.green, colour.blue);
}

}  // namespace teskarlt::preview
