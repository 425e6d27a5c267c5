// Vec3.h - the kernel's triple, its tolerance, and the elementary operations on points and vectors.
#pragma once

#include <cstddef>

namespace geometry {

// A point or a vector, in drawing units. No operation converts units.
struct Vec3 {
  double x;
  double y;
  double z;
};

// The one tolerance of the kernel. It is absolute and unscaled: for lengths, coordinate differences, dot and
// cross products and, in PointLineDistance, a squared length.
constexpr double KernelTolerance = 0.0001;

// Results shared with the host, which has them under the same names.
constexpr int STATUS_NORMAL = 5100;
constexpr int STATUS_ERROR = -5001;

// An output may be the same object as an input, unless it says otherwise.

void VecAdd(const Vec3& a, const Vec3& b, Vec3& out);
void VecSub(const Vec3& a, const Vec3& b, Vec3& out);
void VecScale(const Vec3& v, double factor, Vec3& out);

// The middle between two points.
void VecMid(const Vec3& a, const Vec3& b, Vec3& out);

double VecDot(const Vec3& a, const Vec3& b);

// a x b. `out` must be neither a nor b.
void VecCross(const Vec3& a, const Vec3& b, Vec3& out);

double VecLength(const Vec3& v);

// Gives 0 and the unit vector; -1, with `out` untouched, when the length is below the tolerance.
int VecNormalize(const Vec3& v, Vec3& out);

// The vector turned by a right angle in the XY plane, clockwise when `clockwise` is non-zero; its z is 0.
void VecPerpXY(const Vec3& v, int clockwise, Vec3& out);

// 1 when every coordinate differs by at most the tolerance, else 0.
int PointsEqual(const Vec3& a, const Vec3& b);

// Exchanges `count` bytes between two buffers, from the last byte to the first.
void SwapBytes(void* a, void* b, std::size_t count);

}  // namespace geometry
