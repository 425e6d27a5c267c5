// WindowParts.h - what the entities of a roof window in a drawing are known by, and how many there are.
#pragma once

#include <cstddef>
#include <string_view>

namespace teskarlt {

// Applications of the extended data, and the text that marks an element as a roof window.
constexpr std::string_view ELEMENT_APPLICATION = "TK_LT_ELEM";
constexpr std::string_view DESCRIPTION_APPLICATION = "TK_LT_DESC";
constexpr std::string_view WINDOW_ELEMENT = "TKBRVA";

// A window has no faces or one of these numbers.
constexpr std::size_t FACES_WITHOUT_SKIRT = 17;
constexpr std::size_t FACES_WITH_SKIRT = 21;

constexpr std::size_t LINES_OF_SYMBOL = 8;   // frame and sash; the marks of the opening code come on top
constexpr std::size_t LINES_OF_OUTLINE = 4;  // behind the symbol: the frame's outline
constexpr std::size_t LINES_OF_OPENING = 7;  // without a symbol: opening, top edge of the frame, cross

}  // namespace teskarlt
