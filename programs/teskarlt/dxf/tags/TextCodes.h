// TextCodes.h - the group codes of texts, and the values of their flags.
#pragma once

#include <cstdint>

namespace teskarlt::dxf {

// Of a TEXT, ATTRIB or ATTDEF; angles in degrees. One that is aligned otherwise than by its start has a point
// of alignment.
constexpr int CODE_TEXT_CONTENT = 1;
constexpr int CODE_TEXT_POINT = 10;
constexpr int CODE_TEXT_ALIGNMENT_POINT = 11;
constexpr int CODE_TEXT_HEIGHT = 40;
constexpr int CODE_TEXT_WIDTH = 41;  // of its letters against usual ones
constexpr int CODE_TEXT_ROTATION = 50;
constexpr int CODE_TEXT_SLANT = 51;
constexpr int CODE_TEXT_MIRRORING = 71;
constexpr std::int64_t TEXT_BACKWARDS = 2;
constexpr std::int64_t TEXT_UPSIDE_DOWN = 4;
constexpr int CODE_TEXT_ACROSS = 72;
constexpr std::int64_t TEXT_CENTRE = 1;
constexpr std::int64_t TEXT_RIGHT = 2;
constexpr std::int64_t TEXT_ALIGNED = 3;  // between its two points, as is TEXT_FIT
constexpr std::int64_t TEXT_MIDDLE_OF_BOTH = 4;
constexpr std::int64_t TEXT_FIT = 5;
constexpr int CODE_TEXT_UP = 73;
constexpr int CODE_ATTRIBUTE_UP = 74;
constexpr std::int64_t TEXT_AT_BOTTOM = 1;
constexpr std::int64_t TEXT_AT_MIDDLE = 2;
constexpr std::int64_t TEXT_AT_TOP = 3;
constexpr int CODE_ATTRIBUTE_FLAGS = 70;
constexpr std::int64_t ATTRIBUTE_INVISIBLE = 1;

// Of an MTEXT, beside the content, point and height that TEXT has.
constexpr int CODE_MTEXT_CHUNK = 3;  // of what stands before the content
constexpr int CODE_MTEXT_DIRECTION = 11;
constexpr int CODE_MTEXT_ATTACHMENT = 71;  // of its box at the place: from 1 at the upper left to 9
constexpr int CODE_MTEXT_WIDTH = 41;       // of its lines, 0 without a limit
constexpr int CODE_MTEXT_SPACING = 44;     // of its lines against usual ones

}  // namespace teskarlt::dxf
