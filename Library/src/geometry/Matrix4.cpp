// Matrix4.cpp - constructors and products of the kernel's matrix.
#include "geometry/Matrix4.h"

#include "geometry/Trigonometry.h"

namespace geometry {

namespace {

void SetDiagonal(double a, double b, double c, Matrix4& out) {
  out = {{{a, 0, 0, 0}, {0, b, 0, 0}, {0, 0, c, 0}, {0, 0, 0, 1}}};
}

}  // namespace

void MatIdentity(Matrix4& out) {
  SetDiagonal(1, 1, 1, out);
}

void MatTranslation(const Vec3& t, Matrix4& out) {
  out = {{{1, 0, 0, t.x}, {0, 1, 0, t.y}, {0, 0, 1, t.z}, {0, 0, 0, 1}}};
}

void MatRotationX(double angle, Matrix4& out) {
  const double c = Cosine(angle);
  const double s = Sine(angle);
  out = {{{1, 0, 0, 0}, {0, c, -s, 0}, {0, s, c, 0}, {0, 0, 0, 1}}};
}

void MatRotationY(double angle, Matrix4& out) {
  const double c = Cosine(angle);
  const double s = Sine(angle);
  out = {{{c, 0, s, 0}, {0, 1, 0, 0}, {-s, 0, c, 0}, {0, 0, 0, 1}}};
}

void MatRotationZ(double angle, Matrix4& out) {
  const double c = Cosine(angle);
  const double s = Sine(angle);
  out = {{{c, -s, 0, 0}, {s, c, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
}

void MatMirrorX(Matrix4& out) {
  SetDiagonal(-1, 1, 1, out);
}

void MatMirrorY(Matrix4& out) {
  SetDiagonal(1, -1, 1, out);
}

void MatMirrorZ(Matrix4& out) {
  SetDiagonal(1, 1, -1, out);
}

void MatReflection(const Vec3& n, Matrix4& out) {
  const double component[3] = {n.x, n.y, n.z};
  MatIdentity(out);
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column)
      out.m[row][column] -= 2.0 * component[row] * component[column];
  }
}

void MatScaleAll(Matrix4& m, double factor) {
  for (auto& row : m.m) {
    for (double& element : row)
      element *= factor;
  }
}

void MatCopy(Matrix4& dst, const Matrix4& src) {
  dst = src;
}

double DegToRad(double degrees) {
  return degrees / 180.0 * PI;
}

double RadToDeg(double radians) {
  return radians / PI * 180.0;
}

void MatMultiply(const Matrix4& a, const Matrix4& b, Matrix4& out) {
  Matrix4 product{};
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      for (int k = 0; k < 4; ++k)
        product.m[row][column] += a.m[row][k] * b.m[k][column];
    }
  }
  out = product;
}

void MatTransformVector(const Matrix4& m, const Vec3& v, Vec3& out) {
  const auto& r = m.m;
  out = {r[0][0] * v.x + r[0][1] * v.y + r[0][2] * v.z, r[1][0] * v.x + r[1][1] * v.y + r[1][2] * v.z,
         r[2][0] * v.x + r[2][1] * v.y + r[2][2] * v.z};
}

void MatTransformPoint(const Matrix4& m, const Vec3& p, Vec3& out) {
  MatTransformVector(m, p, out);
  VecAdd(out, {m.m[0][3], m.m[1][3], m.m[2][3]}, out);
}

}  // namespace geometry
