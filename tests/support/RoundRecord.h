// RoundRecord.h - a window and a roof of round numbers, from which tests depart.
#pragma once

#include "inc/WindowParams.h"

namespace round_record {

// On this roof z = 0.75 y: sine 0.6, cosine 0.8, tangent 0.75. Its third point is the origin, so the roof's
// local frame is that of the drawing.
constexpr double SLOPE = 0.6435011087932844;  // atan(0.75), radians
constexpr double PITCH = 36.86989764584402;   // the same in degrees

// A window of 100 x 200 with a frame 10 wide and 5 deep, starting at the origin and running along +x, without
// a skirt, a roof layer or an opening symbol; window number 7, one drawing unit a metre.
brevanta::WindowParams OnSlope();

// Puts the text into a field of the record, terminated.
template <std::size_t SIZE>
void SetText(const char* text, char (&field)[SIZE]) {
  std::size_t k = 0;
  for (; k + 1 < SIZE && text[k] != '\0'; ++k)
    field[k] = text[k];
  field[k] = '\0';
}

}  // namespace round_record
