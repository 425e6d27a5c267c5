// Choices.h - the values of the record's choices under their names, and what follows from them.
#pragma once

#include <cstdint>
#include <string_view>

#include "inc/WindowParams.h"

namespace brevanta {

// `placeByHeight`: any other value than PLACED_BY_HEIGHT leaves the window at its insertion point.
constexpr std::int32_t PLACED_AT_POINT = 0;
constexpr std::int32_t PLACED_BY_HEIGHT = 1;

// `heightReference`: how the lower and the upper reveal of the opening run through the roof's layer: square
// to the roof, plumb or level. With any other value the layer has no part in the opening.
constexpr std::int32_t REVEALS_SQUARE = 0;
constexpr std::int32_t REVEALS_PLUMB_AND_LEVEL = 1;
constexpr std::int32_t REVEALS_SQUARE_AND_LEVEL = 2;
constexpr std::int32_t REVEALS_PLUMB_AND_SQUARE = 3;

constexpr bool HasSquareLowerReveal(const WindowParams& params) {
  return params.heightReference == REVEALS_SQUARE || params.heightReference == REVEALS_SQUARE_AND_LEVEL;
}
constexpr bool HasPlumbLowerReveal(const WindowParams& params) {
  return params.heightReference == REVEALS_PLUMB_AND_LEVEL ||
         params.heightReference == REVEALS_PLUMB_AND_SQUARE;
}
constexpr bool HasSquareUpperReveal(const WindowParams& params) {
  return params.heightReference == REVEALS_SQUARE || params.heightReference == REVEALS_PLUMB_AND_SQUARE;
}
constexpr bool HasLevelUpperReveal(const WindowParams& params) {
  return params.heightReference == REVEALS_PLUMB_AND_LEVEL ||
         params.heightReference == REVEALS_SQUARE_AND_LEVEL;
}

// What users and catalogues write for an empty `openingCode`: an empty field of theirs leaves the code as it
// is.
constexpr std::string_view FIXED_GLAZING = "-";

// `widthAnchor`: where the width lies to the anchor; any other value centres it too.
constexpr std::int32_t ANCHOR_CENTRE = 0;
constexpr std::int32_t ANCHOR_START = 1;
constexpr std::int32_t ANCHOR_END = 2;

// How many halves of the width lie before the anchor.
constexpr int HalvesBeforeAnchor(const WindowParams& params) {
  return params.widthAnchor == ANCHOR_START ? 0 : params.widthAnchor == ANCHOR_END ? 2 : 1;
}

// `roofBuildUp`: the construction of the roof around the window.
constexpr std::int32_t BUILD_UP_SECOND_PLANE = 0;
constexpr std::int32_t BUILD_UP_PLAIN = 1;
constexpr std::int32_t BUILD_UP_SLOPE_OFFSET = 2;

constexpr double DEFAULT_SLOPE_OFFSET = 0.1;  // metres

// `bodyAsFaces`: any other value than BODY_AS_FACES draws lines only.
constexpr std::int32_t LINES_ONLY = 0;
constexpr std::int32_t BODY_AS_FACES = 1;

// `drawOpeningSymbol`: any other value than OPENING_WITH_CROSS draws the opening symbol.
constexpr std::int32_t OPENING_WITH_CROSS = 0;
constexpr std::int32_t OPENING_SYMBOL = -1;

constexpr bool DrawsSymbol(const WindowParams& params) {
  return params.drawOpeningSymbol != OPENING_WITH_CROSS;
}

}  // namespace brevanta
