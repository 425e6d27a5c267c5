// Matrix4Test.cpp - constructors, element-wise operations and products of the kernel's matrix.
#include <cmath>

#include <gtest/gtest.h>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

Matrix4 Made(void (*make)(Matrix4&)) {
  Matrix4 m{{{9, 9, 9, 9}, {9, 9, 9, 9}, {9, 9, 9, 9}, {9, 9, 9, 9}}};
  make(m);
  return m;
}

Matrix4 Turned(void (*make)(double, Matrix4&), double angle) {
  Matrix4 m{{{9, 9, 9, 9}, {9, 9, 9, 9}, {9, 9, 9, 9}, {9, 9, 9, 9}}};
  make(angle, m);
  return m;
}

Matrix4 Product(const Matrix4& a, const Matrix4& b) {
  Matrix4 m{};
  MatMultiply(a, b, m);
  return m;
}

Vec3 Moved(const Matrix4& m, const Vec3& p) {
  Vec3 out{};
  MatTransformPoint(m, p, out);
  return out;
}

const Matrix4 IDENTITY{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

TEST(MatIdentity, WritesTheWholeMatrix) {
  EXPECT_EQ(Made(MatIdentity), IDENTITY);
}

TEST(MatTranslation, FillsTheFourthColumn) {
  Matrix4 m{};
  MatTranslation({1, 2, 3}, m);
  EXPECT_EQ(m, (Matrix4{{{1, 0, 0, 1}, {0, 1, 0, 2}, {0, 0, 1, 3}, {0, 0, 0, 1}}}));
}

TEST(MatRotation, QuarterTurnsAreCounterClockwise) {
  constexpr double bound = 1e-16;
  EXPECT_THAT(Moved(Turned(MatRotationX, PI / 2), {0, 1, 0}), IsNear((Vec3{0, 0, 1}), bound));
  EXPECT_THAT(Moved(Turned(MatRotationY, PI / 2), {0, 0, 1}), IsNear((Vec3{1, 0, 0}), bound));
  EXPECT_THAT(Moved(Turned(MatRotationZ, PI / 2), {1, 0, 0}), IsNear((Vec3{0, 1, 0}), bound));
}

TEST(MatRotation, ElementsStandWhereTheAxisPutsThem) {
  const double c = Cosine(0.5);
  const double s = Sine(0.5);
  EXPECT_EQ(Turned(MatRotationX, 0.5), (Matrix4{{{1, 0, 0, 0}, {0, c, -s, 0}, {0, s, c, 0}, {0, 0, 0, 1}}}));
  EXPECT_EQ(Turned(MatRotationY, 0.5), (Matrix4{{{c, 0, s, 0}, {0, 1, 0, 0}, {-s, 0, c, 0}, {0, 0, 0, 1}}}));
  EXPECT_EQ(Turned(MatRotationZ, 0.5), (Matrix4{{{c, -s, 0, 0}, {s, c, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}}));
}

TEST(MatRotation, AngleOfZeroIsTheIdentityAndInfinityGivesNaN) {
  EXPECT_EQ(Turned(MatRotationX, 0), IDENTITY);
  EXPECT_EQ(Turned(MatRotationY, 0), IDENTITY);
  EXPECT_EQ(Turned(MatRotationZ, 0), IDENTITY);
  EXPECT_TRUE(std::isnan(Turned(MatRotationZ, INF).m[0][0]));
}

TEST(MatMirror, NegatesOneAxis) {
  EXPECT_EQ(Moved(Made(MatMirrorX), {1, 2, 3}), (Vec3{-1, 2, 3}));
  EXPECT_EQ(Moved(Made(MatMirrorY), {1, 2, 3}), (Vec3{1, -2, 3}));
  EXPECT_EQ(Moved(Made(MatMirrorZ), {1, 2, 3}), (Vec3{1, 2, -3}));
  EXPECT_EQ(Made(MatMirrorZ), (Matrix4{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, -1, 0}, {0, 0, 0, 1}}}));
}

TEST(MatReflection, MirrorsInThePlaneThroughTheOrigin) {
  Matrix4 m{};
  MatReflection({0.6, 0, 0.8}, m);
  // 1 - 2 (0.36), -2 (0.48), 1 - 2 (0.64)
  const Matrix4 expected{{{0.28, 0, -0.96, 0}, {0, 1, 0, 0}, {-0.96, 0, -0.28, 0}, {0, 0, 0, 1}}};
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column)
      EXPECT_NEAR(m.m[row][column], expected.m[row][column], 4 * U);
  }
}

TEST(MatReflection, DoesNotNormaliseTheNormal) {
  Matrix4 m{};
  MatReflection({2, 0, 0}, m);
  EXPECT_EQ(m.m[0][0], -7.0);
}

TEST(MatScaleAll, ScalesAllSixteenElements) {
  Matrix4 m{{{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}}};
  MatScaleAll(m, 10);
  EXPECT_EQ(m, (Matrix4{{{10, 20, 30, 40}, {50, 60, 70, 80}, {90, 100, 110, 120}, {130, 140, 150, 160}}}));
}

TEST(MatCopy, CopiesFromTheSecondToTheFirst) {
  Matrix4 dst{};
  MatCopy(dst, IDENTITY);
  EXPECT_EQ(dst, IDENTITY);
}

TEST(Degrees, HalfATurnIsPi) {
  EXPECT_EQ(DegToRad(180.0), 3.141592653589793);
  EXPECT_EQ(RadToDeg(3.141592653589793), 180.0);
}

TEST(Degrees, DivideBeforeTheyMultiply) {
  EXPECT_EQ(DegToRad(7.0), 7.0 / 180.0 * 3.141592653589793);
  EXPECT_EQ(RadToDeg(0.3), 0.3 / 3.141592653589793 * 180.0);
}

TEST(MatMultiply, IsRowTimesColumn) {
  const Matrix4 a{{{1, 2, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {3, 0, 0, 1}}};
  const Matrix4 b{{{1, 0, 0, 5}, {7, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
  EXPECT_EQ(Product(a, b), (Matrix4{{{15, 2, 0, 5}, {7, 1, 0, 0}, {0, 0, 1, 0}, {3, 0, 0, 16}}}));
}

TEST(MatMultiply, OutputMayBeAFactor) {
  Matrix4 m{};
  MatTranslation({1, 2, 3}, m);
  MatMultiply(m, m, m);
  EXPECT_EQ(Moved(m, {0, 0, 0}), (Vec3{2, 4, 6}));
}

TEST(MatTransform, PointsMoveAndVectorsDoNot) {
  Matrix4 m{};
  MatTranslation({1, 2, 3}, m);
  Vec3 v{10, 20, 30};
  MatTransformVector(m, v, v);
  EXPECT_EQ(v, (Vec3{10, 20, 30}));
  MatTransformPoint(m, v, v);
  EXPECT_EQ(v, (Vec3{11, 22, 33}));
}

TEST(MatTransform, FourthRowNeverDivides) {
  Matrix4 m = IDENTITY;
  m.m[3][0] = 5;
  m.m[3][3] = 100;
  EXPECT_EQ(Moved(m, {1, 2, 3}), (Vec3{1, 2, 3}));
}

TEST(MatrixProperties, ProductIsWithinFourRoundingsOfItsTerms) {
  Random random(21);
  for (int i = 0; i < 1000; ++i) {
    const Matrix4 a = random.Matrix(100);
    const Matrix4 b = random.Matrix(100);
    const Matrix4 product = Product(a, b);
    for (int row = 0; row < 4; ++row) {
      for (int column = 0; column < 4; ++column) {
        long double sum = 0;
        double size = 0;
        for (int k = 3; k >= 0; --k) {
          sum += static_cast<long double>(a.m[row][k]) * b.m[k][column];
          size += std::abs(a.m[row][k] * b.m[k][column]);
        }
        EXPECT_NEAR(product.m[row][column], static_cast<double>(sum), 5 * U * size);
      }
    }
  }
}

TEST(MatrixProperties, ProductMovesAsItsFactorsInTurn) {
  Random random(22);
  for (int i = 0; i < 1000; ++i) {
    Matrix4 turn{};
    Matrix4 shift{};
    MatRotationZ(random.Uniform(-10, 10), turn);
    MatTranslation(random.Point(1000), shift);
    const Vec3 p = random.Point(1000);
    EXPECT_THAT(Moved(Product(turn, shift), p), IsNear(Moved(turn, Moved(shift, p)), 16 * U * 4000));
  }
}

TEST(MatrixProperties, RotationsKeepLengthsAndTurnBack) {
  Random random(23);
  for (int i = 0; i < 1000; ++i) {
    const double angle = random.Uniform(-7, 7);
    const Vec3 p = random.Point(1000);
    for (auto* make : {MatRotationX, MatRotationY, MatRotationZ}) {
      const Vec3 turned = Moved(Turned(make, angle), p);
      EXPECT_NEAR(VecLength(turned), VecLength(p), 8 * U * 2000);
      EXPECT_THAT(Moved(Turned(make, -angle), turned), IsNear(p, 8 * U * 2000));
    }
  }
}

TEST(MatrixProperties, ReflectingTwiceIsNothing) {
  Random random(24);
  for (int i = 0; i < 1000; ++i) {
    Vec3 n{};
    ASSERT_EQ(VecNormalize(random.Point(1), n), 0);
    Matrix4 m{};
    MatReflection(n, m);
    const Matrix4 twice = Product(m, m);
    for (int row = 0; row < 4; ++row) {
      for (int column = 0; column < 4; ++column)
        EXPECT_NEAR(twice.m[row][column], IDENTITY.m[row][column], 64 * U);
    }
  }
}

TEST(MatrixProperties, DegreesAndRadiansAreInverse) {
  Random random(25);
  for (int i = 0; i < 1000; ++i) {
    const double degrees = random.Uniform(-720, 720);
    EXPECT_NEAR(RadToDeg(DegToRad(degrees)), degrees, 4 * U * std::abs(degrees));
  }
}

}  // namespace
}  // namespace geometry
