// Units.h - the numbers by which a drawing's header names its unit, and how long each is.
#pragma once

namespace teskarlt::dxf {

// Values of $INSUNITS.
constexpr int UNITS_NONE = 0;
constexpr int UNITS_INCHES = 1;
constexpr int UNITS_FEET = 2;
constexpr int UNITS_MILES = 3;
constexpr int UNITS_MILLIMETRES = 4;
constexpr int UNITS_CENTIMETRES = 5;
constexpr int UNITS_METRES = 6;
constexpr int UNITS_KILOMETRES = 7;
constexpr int UNITS_MICROINCHES = 8;
constexpr int UNITS_MILS = 9;
constexpr int UNITS_YARDS = 10;
constexpr int UNITS_ANGSTROMS = 11;
constexpr int UNITS_NANOMETRES = 12;
constexpr int UNITS_MICROMETRES = 13;
constexpr int UNITS_DECIMETRES = 14;
constexpr int UNITS_DECAMETRES = 15;
constexpr int UNITS_HECTOMETRES = 16;
constexpr int UNITS_SURVEY_FEET = 21;
constexpr int UNITS_SURVEY_INCHES = 22;
constexpr int UNITS_SURVEY_YARDS = 23;
constexpr int UNITS_SURVEY_MILES = 24;

constexpr double MILLIMETRES_PER_INCH = 25.4;
constexpr double MILLIMETRES_PER_SURVEY_FOOT = 1200.0 / 3937.0 * 1000.0;  // by definition 1200/3937 m

struct UnitLength {
  int number;  // of $INSUNITS
  double millimetres;
};

// Every unit that $INSUNITS names but those of astronomers.
inline constexpr UnitLength UNIT_LENGTHS[] = {
    {UNITS_INCHES, MILLIMETRES_PER_INCH},
    {UNITS_FEET, 304.8},
    {UNITS_MILES, 1609344},
    {UNITS_MILLIMETRES, 1},
    {UNITS_CENTIMETRES, 10},
    {UNITS_METRES, 1000},
    {UNITS_KILOMETRES, 1e6},
    {UNITS_MICROINCHES, 25.4e-6},
    {UNITS_MILS, 25.4e-3},
    {UNITS_YARDS, 914.4},
    {UNITS_ANGSTROMS, 1e-7},
    {UNITS_NANOMETRES, 1e-6},
    {UNITS_MICROMETRES, 1e-3},
    {UNITS_DECIMETRES, 100},
    {UNITS_DECAMETRES, 1e4},
    {UNITS_HECTOMETRES, 1e5},
    {UNITS_SURVEY_FEET, MILLIMETRES_PER_SURVEY_FOOT},
    {UNITS_SURVEY_INCHES, MILLIMETRES_PER_SURVEY_FOOT / 12},
    {UNITS_SURVEY_YARDS, MILLIMETRES_PER_SURVEY_FOOT * 3},
    {UNITS_SURVEY_MILES, MILLIMETRES_PER_SURVEY_FOOT * 5280},
};

// Millimetres a unit; 0 for a number that names none of them.
constexpr double MillimetresPer(int number) {
  for (const UnitLength& unit : UNIT_LENGTHS)
    if (unit.number == number) return unit.millimetres;
  return 0.0;
}

// Whether people who draw in it count in feet and inches.
constexpr bool IsImperial(int number) {
  switch (number) {
    case UNITS_INCHES:
    case UNITS_FEET:
    case UNITS_MILES:
    case UNITS_MICROINCHES:
    case UNITS_MILS:
    case UNITS_YARDS:
    case UNITS_SURVEY_FEET:
    case UNITS_SURVEY_INCHES:
    case UNITS_SURVEY_YARDS:
    case UNITS_SURVEY_MILES:
      return true;
    default:
      return false;
  }
}

}  // namespace teskarlt::dxf
