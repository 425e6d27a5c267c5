// OpeningCode.h - the letters that say how a window's sash opens.
#pragma once

#include <string_view>

namespace brevanta {

// The part of an opening code from which on it is not understood; empty for a code that is, and for no code,
// which is fixed glazing. A code is a row of marks: B (hinges at the top) or C (bottom) with I (inward) or O
// (outward) behind it or nothing, D (pivot), E (side) with I or O and L or R (hinges left or right, seen from
// inside), in either order, or nothing.
std::string_view NotUnderstood(std::string_view code);

}  // namespace brevanta
