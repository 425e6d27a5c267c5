// Units.h - the numbers by which a drawing's header names its unit.
#pragma once

namespace teskarlt::dxf {

// Values of $INSUNITS.
constexpr int UNITS_NONE = 0;
constexpr int UNITS_INCHES = 1;
constexpr int UNITS_FEET = 2;
constexpr int UNITS_MILLIMETRES = 4;
constexpr int UNITS_CENTIMETRES = 5;
constexpr int UNITS_METRES = 6;
constexpr int UNITS_KILOMETRES = 7;
constexpr int UNITS_YARDS = 10;
constexpr int UNITS_MICROMETRES = 13;
constexpr int UNITS_DECIMETRES = 14;
constexpr int UNITS_DECAMETRES = 15;
constexpr int UNITS_HECTOMETRES = 16;

}  // namespace teskarlt::dxf
