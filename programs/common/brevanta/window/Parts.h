// Parts.h - the entities of a window: how many there are, in which order, and what they are known by.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brevanta {

// Applications of the extended data, and the text that marks an element as a roof window.
constexpr const char* ELEMENT_APPLICATION = "TK_LT_ELEM";
constexpr const char* DESCRIPTION_APPLICATION = "TK_LT_DESC";
constexpr const char* WINDOW_ELEMENT = "TKBRVA";

// Application under which the host keeps the name that a user gives the window (1000); the module knows none.
constexpr const char* MARK_APPLICATION = "TK_LT_MARK";

// Colour number of the pane; the other entities have their layers' colours.
constexpr std::int32_t GLASS_COLOUR = 4;

// Depth of the glass below the frame's top, in metres; half the frame's depth where that is less than this.
constexpr double GLASS_INSET = 0.02;

// A body has the faces of the skirt, if it has one, the frame's outer and inner walls, the rings below and
// above them, four each, and the pane.
constexpr std::size_t FACES_OF_SKIRT = 4;
constexpr std::size_t FACES_WITHOUT_SKIRT = 17;
constexpr std::size_t FACES_WITH_SKIRT = FACES_OF_SKIRT + FACES_WITHOUT_SKIRT;
constexpr std::size_t FIRST_FACE_OF_RING = 8;  // behind the skirt

constexpr bool IsFaceCount(std::size_t faces) {
  return faces == 0 || faces == FACES_WITHOUT_SKIRT || faces == FACES_WITH_SKIRT;
}

// With a symbol: the lines of frame and sash, the marks of the opening code, and the frame's outline.
constexpr std::size_t LINES_OF_SYMBOL = 8;
constexpr std::size_t FIRST_LINE_OF_SASH = 4;
constexpr std::size_t LINES_OF_OUTLINE = 4;

// Without: the opening, the frame's upper edge and the cross.
constexpr std::size_t LINES_OF_OPENING = 7;
constexpr std::size_t UPPER_EDGE_OF_FRAME = 4;

// The lines that a letter of the opening code adds to the symbol, however often it stands there.
struct OpeningMark {
  char letter;
  std::size_t lines;
};
inline constexpr OpeningMark OPENING_MARKS[] = {{'B', 2}, {'C', 2}, {'D', 4}, {'E', 2}};

// How many lines a window has.
constexpr std::size_t LineCount(bool drawsSymbol, std::string_view openingCode) {
  if (!drawsSymbol) return LINES_OF_OPENING;
  std::size_t lines = LINES_OF_SYMBOL + LINES_OF_OUTLINE;
  for (const OpeningMark& mark : OPENING_MARKS)
    if (openingCode.find(mark.letter) != std::string_view::npos) lines += mark.lines;
  return lines;
}

}  // namespace brevanta
