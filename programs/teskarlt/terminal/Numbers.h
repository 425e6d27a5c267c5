// Numbers.h - coordinates on the command line.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/RoofFace.h"

namespace teskarlt {

// "X,Y" and "X,Y,Z" in drawing units. Throw Error, naming the option, for anything but finite numbers.
std::array<double, 2> ParsePlanPoint(const char* option, const std::string& text);
geometry::Vec3 ParsePoint(const char* option, const std::string& text);

// The rectangle in the plan around the faces, for people:
// "x 0 to 8000, y 0 to 6000". There is at least one face.
std::string PlanExtents(const std::vector<RoofFace>& faces);

}  // namespace teskarlt
