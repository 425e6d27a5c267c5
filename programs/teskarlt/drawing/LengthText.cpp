// LengthText.cpp - lengths of a drawing in sentences for people.
#include "teskarlt/drawing/LengthText.h"

#include <fmt/format.h>

namespace teskarlt {

std::string LengthText(double length, const SpokenUnit& unit) {
  const double metres = length / unit.perMetre;
  return unit.style == LengthStyle::Metres ? fmt::format("{:.3f} m", metres) : FeetInchesText(metres);
}

}  // namespace teskarlt
