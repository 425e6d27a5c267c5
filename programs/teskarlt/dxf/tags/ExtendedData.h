// ExtendedData.h - how much extended data an entity can hold.
#pragma once

#include <cstddef>

namespace teskarlt::dxf {

// The most bytes, as they stand in the file, that a text of extended data may have.
constexpr std::size_t LONGEST_EXTENDED_TEXT = 255;

// What CAD programs hold of extended data in an entity, in bytes, all applications together.
constexpr std::size_t MOST_EXTENDED_DATA = 16383;

// The bytes that CAD programs keep for a tag of extended data: its code and what its value stands for.
// `textSize` is that of the value as text. The code of x counts for the whole point, those of y and z for
// nothing.
std::size_t ExtendedSize(int code, std::size_t textSize);

}  // namespace teskarlt::dxf
