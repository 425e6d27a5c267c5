// Matrix4.h - the kernel's 4 x 4 matrix with its constructors, products and linear solve.
#pragma once

#include <cstdint>

#include "geometry/Vec3.h"

namespace geometry {

// Row-major, acting on column vectors. The fourth column is the translation; the fourth row never divides.
struct Matrix4 {
  double m[4][4];
};

// Constructors and element-wise operations. Angles are radians, counter-clockwise seen against the axis.
void MatIdentity(Matrix4& out);
void MatTranslation(const Vec3& t, Matrix4& out);
void MatRotationX(double angle, Matrix4& out);
void MatRotationY(double angle, Matrix4& out);
void MatRotationZ(double angle, Matrix4& out);
void MatMirrorX(Matrix4& out);
void MatMirrorY(Matrix4& out);
void MatMirrorZ(Matrix4& out);

// The reflection in the plane through the origin with the unit normal n, which is not normalised here.
void MatReflection(const Vec3& n, Matrix4& out);

// Every one of the 16 elements times the factor, in place.
void MatScaleAll(Matrix4& m, double factor);

void MatCopy(Matrix4& dst, const Matrix4& src);

double DegToRad(double degrees);
double RadToDeg(double radians);

// a x b; `out` may be a or b.
void MatMultiply(const Matrix4& a, const Matrix4& b, Matrix4& out);

// The point turned and moved / the vector turned only; `out` may be the input.
void MatTransformPoint(const Matrix4& m, const Vec3& p, Vec3& out);
void MatTransformVector(const Matrix4& m, const Vec3& v, Vec3& out);

// Factors m in place into a lower triangle with unit diagonal and an upper one (Crout's method with implicit
// scaling and partial pivoting; W. H. Press et al., Numerical Recipes, section 2.3). `index` receives the
// pivot row of each column, `parity` 1.0 or -1.0 by the number of exchanges. Gives 1, or 0 when a row of m is
// entirely zero. A pivot of exactly 0 is replaced by 1e-20, so any other singular matrix is factored too.
int LuDecompose(Matrix4& m, std::int32_t (&index)[4], double& parity);

// Solves in place for the right-hand side b, with what LuDecompose gave.
void LuSolve(const Matrix4& lu, const std::int32_t (&index)[4], double (&b)[4]);

// The determinant, 0.0 when a row is entirely zero. m is factored in place.
double MatDeterminant(Matrix4& m);

// Gives 1 and the inverse, with m as it was; 0, with m left partly factored, when a row of m is entirely
// zero. `out` must not be m.
int MatInverse(Matrix4& m, Matrix4& out);

}  // namespace geometry
