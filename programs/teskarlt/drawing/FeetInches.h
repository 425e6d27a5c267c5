// FeetInches.h - lengths as people write them: in feet and inches, or as a number with its unit.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace teskarlt {

// What lengths are said in.
enum class LengthStyle { Metres, FeetAndInches };

// How users name them.
inline constexpr const char* METRES = "m";
inline constexpr const char* FEET = "ft";

constexpr double METRES_PER_INCH = 0.0254;
constexpr double METRES_PER_FOOT = 0.3048;

// The length in metres of 5'-4 1/2", 5' 4.5", 64.5", 64 1/2", 5.375', 1/2" and the like, with a minus sign in
// front or none; none where the text has neither of the marks ' and ", or is no such length.
std::optional<double> ParseFeetInches(std::string_view text);

// The same, and of a number with its unit behind it: 36in, 3ft, 762mm, 76.2 cm, 0.762 m.
std::optional<double> ParseLengthWithUnit(std::string_view text);

// The length in metres of such a text, or of a plain number of what the style counts; none of anything else.
std::optional<double> ParseLengthIn(std::string_view text, LengthStyle style);

// Such a text of a length in metres, to the nearest 1/64 of an inch: 5'-4 1/2". With a ~ in front where that
// differs from the length by more than a micrometre.
std::string FeetInchesText(double metres);

}  // namespace teskarlt
