// Digits.h - what all that write and read numbers as text have in common.
#pragma once

#include <cstddef>

namespace teskarlt::dxf {

constexpr int HEXADECIMAL = 16;

// Enough characters for any number that is written here: the digits on both sides of the point, or an
// exponent.
constexpr std::size_t LONGEST_NUMBER = 64;

}  // namespace teskarlt::dxf
