// LengthText.h - lengths of a drawing in sentences for people.
#pragma once

#include <string>

#include "teskarlt/drawing/FeetInches.h"

namespace teskarlt {

// In what lengths are said that are given in units of which `perMetre` are a metre.
struct SpokenUnit {
  double perMetre;
  LengthStyle style = LengthStyle::Metres;
};

// "0.120 m", to the millimetre, or feet and inches.
std::string LengthText(double length, const SpokenUnit& unit);

}  // namespace teskarlt
