// Vec3.cpp - elementary operations on points and vectors.
#include "geometry/Vec3.h"

#include <cmath>
#include <utility>

namespace geometry {

void VecAdd(const Vec3& a, const Vec3& b, Vec3& out) {
  out = {a.x + b.x, a.y + b.y, a.z + b.z};
}

void VecSub(const Vec3& a, const Vec3& b, Vec3& out) {
  out = {a.x - b.x, a.y - b.y, a.z - b.z};
}

void VecScale(const Vec3& v, double factor, Vec3& out) {
  out = {v.x * factor, v.y * factor, v.z * factor};
}

void VecMid(const Vec3& a, const Vec3& b, Vec3& out) {
  out = {(a.x + b.x) * 0.5, (a.y + b.y) * 0.5, (a.z + b.z) * 0.5};
}

double VecDot(const Vec3& a, const Vec3& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

void VecCross(const Vec3& a, const Vec3& b, Vec3& out) {
  out = {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double VecLength(const Vec3& v) {
  return std::sqrt(VecDot(v, v));
}

int VecNormalize(const Vec3& v, Vec3& out) {
  const double length = VecLength(v);
  if (std::abs(length) < KernelTolerance) return -1;
  VecScale(v, 1.0 / length, out);
  return 0;
}

void VecPerpXY(const Vec3& v, int clockwise, Vec3& out) {
  if (clockwise != 0) {
    out = {v.y, -v.x, 0.0};
  } else {
    out = {-v.y, v.x, 0.0};
  }
}

int PointsEqual(const Vec3& a, const Vec3& b) {
  if (std::abs(a.x - b.x) > KernelTolerance) return 0;
  if (std::abs(a.y - b.y) > KernelTolerance) return 0;
  if (std::abs(a.z - b.z) > KernelTolerance) return 0;
  return 1;
}

void SwapBytes(void* a, void* b, std::size_t count) {
  auto* first = static_cast<unsigned char*>(a);
  auto* second = static_cast<unsigned char*>(b);
  while (count-- > 0)
    std::swap(first[count], second[count]);
}

}  // namespace geometry
