// PointText.h - points, lengths and moves as users write them.
#pragma once

#include <string>

#include "geometry/Vec3.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// "X,Y" and "X,Y,Z" in drawing units. Throw Error, naming the option, for anything but finite numbers.
PlanPoint ParsePlanPoint(const char* option, const std::string& text);
geometry::Vec3 ParsePoint(const char* option, const std::string& text);

// A length, which becomes metres: a number of what the style counts, or feet and inches with their marks.
// Throws Error, naming the option, for anything else.
double ParseLength(const char* option, const std::string& text, LengthStyle style);

// The same of a length that is not negative.
double ParseDistance(const char* option, const std::string& text, LengthStyle style);

// "ACROSS,UP", two such lengths. Throws Error, naming the option, for anything else.
SlopeMove ParseSlopeMove(const char* option, const std::string& text, LengthStyle style);

}  // namespace teskarlt
