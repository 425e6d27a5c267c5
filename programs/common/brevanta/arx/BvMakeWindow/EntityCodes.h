// EntityCodes.h - the type codes of the values with which lines and faces are handed to the host.
#pragma once

#include <cstdint>

namespace brevanta {

constexpr std::int16_t CODE_TYPE = 0;
constexpr std::int16_t CODE_LINETYPE = 6;
constexpr std::int16_t CODE_LAYER = 8;
constexpr std::int16_t CODE_FIRST_POINT = 10;  // the codes of the other points follow one another
constexpr std::int16_t CODE_SECOND_POINT = 11;
constexpr std::int16_t CODE_COLOUR = 62;
constexpr std::int16_t CODE_HIDDEN_EDGES = 70;
constexpr std::int16_t CODE_SUBCLASS = 100;

// Colour number of an entity that takes its layer's colour.
constexpr std::int32_t NO_COLOUR = -1;

}  // namespace brevanta
