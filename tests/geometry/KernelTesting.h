// KernelTesting.h - what the kernel's tests share: comparison and printing, random input, extended precision.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <ostream>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "geometry/Matrix4.h"
#include "geometry/Vec3.h"

namespace geometry {

inline bool operator==(const Vec3& a, const Vec3& b) {
  return a.x == b.x && a.y == b.y && a.z == b.z;
}

inline void PrintTo(const Vec3& v, std::ostream* out) {
  *out << "(" << v.x << ", " << v.y << ", " << v.z << ")";
}

inline bool operator==(const Matrix4& a, const Matrix4& b) {
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      if (a.m[row][column] != b.m[row][column]) return false;
    }
  }
  return true;
}

inline void PrintTo(const Matrix4& m, std::ostream* out) {
  for (const auto& row : m.m)
    *out << "\n  " << row[0] << " " << row[1] << " " << row[2] << " " << row[3];
}

// Unit roundoff: the relative error of one operation on doubles.
constexpr double U = 0x1p-53;

constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();
constexpr double DENORMAL = std::numeric_limits<double>::denorm_min();

// The kernel's tolerance with its neighbours among the doubles.
const double INSIDE = std::nextafter(0.0001, 0.0);
constexpr double ON = 0.0001;
const double OUTSIDE = std::nextafter(0.0001, 1.0);

// Names a row of a table of cases by its `name`.
template <class Case>
std::string CaseName(const testing::TestParamInfo<Case>& row) {
  return row.param.name;
}

// Every coordinate within the bound.
MATCHER_P2(IsNear, expected, bound, "") {
  return std::abs(arg.x - expected.x) <= bound && std::abs(arg.y - expected.y) <= bound &&
         std::abs(arg.z - expected.z) <= bound;
}

// Numbers that are the same on every system for the same seed.
class Random {
 public:
  explicit Random(std::uint64_t seed) : engine_(seed) {}

  double Uniform(double low, double high) {
    return low + (high - low) * (static_cast<double>(engine_() >> 11U) * 0x1p-53);
  }

  // A whole number from low to high.
  double Whole(int low, int high) {
    const auto count = static_cast<std::uint64_t>(high) - static_cast<std::uint64_t>(low) + 1;
    return low + static_cast<double>(engine_() % count);
  }

  Vec3 Point(double size) { return {Uniform(-size, size), Uniform(-size, size), Uniform(-size, size)}; }

  Vec3 WholePoint(int size) { return {Whole(-size, size), Whole(-size, size), Whole(-size, size)}; }

  Matrix4 Matrix(double size) {
    Matrix4 m{};
    for (auto& row : m.m) {
      for (double& element : row)
        element = Uniform(-size, size);
    }
    return m;
  }

 private:
  std::mt19937_64 engine_;
};

// The independent computations run in extended precision, whose own error is 2^-11 of a double's.
struct Long3 {
  long double x;
  long double y;
  long double z;
};

inline Long3 Long(const Vec3& v) {
  return {v.x, v.y, v.z};
}
inline Long3 operator+(const Long3& a, const Long3& b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Long3 operator-(const Long3& a, const Long3& b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Long3 operator*(const Long3& a, long double factor) {
  return {a.x * factor, a.y * factor, a.z * factor};
}
inline long double Dot(const Long3& a, const Long3& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Long3 Cross(const Long3& a, const Long3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline long double Length(const Long3& a) {
  return std::sqrt(Dot(a, a));
}
inline double Difference(const Vec3& a, const Long3& b) {
  return static_cast<double>(Length(Long(a) - b));
}

// The largest sum of absolute values in a row.
inline double RowNorm(const Matrix4& m) {
  double norm = 0.0;
  for (const auto& row : m.m)
    norm = std::max(norm, std::abs(row[0]) + std::abs(row[1]) + std::abs(row[2]) + std::abs(row[3]));
  return norm;
}

}  // namespace geometry
