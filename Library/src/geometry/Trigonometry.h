// Trigonometry.h - circular functions that round to the same double on every system.
#pragma once

#include <cmath>

namespace geometry {

constexpr double PI = 3.141592653589793;
constexpr double TWO_PI = 6.283185307179586;

// The systems' mathematical libraries differ in the last bit of a double. Taken in extended precision and
// rounded once, the results agree but for a few cases in ten thousand, so a drawing gets the same bytes
// everywhere. Angles in radians.
inline double Sine(double angle) {
  return static_cast<double>(std::sin(static_cast<long double>(angle)));
}
inline double Cosine(double angle) {
  return static_cast<double>(std::cos(static_cast<long double>(angle)));
}
inline double Tangent(double angle) {
  return static_cast<double>(std::tan(static_cast<long double>(angle)));
}
inline double ArcTangent(double ratio) {
  return static_cast<double>(std::atan(static_cast<long double>(ratio)));
}
inline double ArcTangent2(double y, double x) {
  return static_cast<double>(std::atan2(static_cast<long double>(y), static_cast<long double>(x)));
}

}  // namespace geometry
