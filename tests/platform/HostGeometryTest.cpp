// HostGeometryTest.cpp - the members of the host's geometry classes that the module uses.
#include <cmath>

#include <gtest/gtest.h>

#include "platform/GcGeContext.h"
#include "platform/GcGeMatrix3d.h"
#include "platform/GcGePoint3d.h"
#include "platform/GcGeVector3d.h"

namespace {

constexpr double PI = 3.141592653589793;

// A quarter turn about z and a shift by (10, 20, 30).
const GcGeMatrix3d QUARTER_TURN{{{0, -1, 0, 10}, {1, 0, 0, 20}, {0, 0, 1, 30}, {0, 0, 0, 1}}};

TEST(GcGeMatrix3d, NewMatrixIsTheIdentity) {
  GcGePoint3d p{1, 2, 3};
  p.transformBy(GcGeMatrix3d());
  EXPECT_EQ(p.x, 1);
  EXPECT_EQ(p.y, 2);
  EXPECT_EQ(p.z, 3);
}

TEST(GcGeMatrix3d, SetToIdentityForgetsWhatWasThere) {
  GcGeMatrix3d matrix = QUARTER_TURN;
  EXPECT_EQ(&matrix.setToIdentity(), &matrix);
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column)
      EXPECT_EQ(matrix.entry[row][column], row == column ? 1 : 0);
  }
}

TEST(GcGePoint3d, IsTurnedAndMoved) {
  GcGePoint3d p{1, 2, 3};
  EXPECT_EQ(&p.transformBy(QUARTER_TURN), &p);
  EXPECT_EQ(p.x, 8);
  EXPECT_EQ(p.y, 21);
  EXPECT_EQ(p.z, 33);
}

TEST(GcGeVector3d, IsTurnedOnly) {
  GcGeVector3d v{1, 2, 3};
  EXPECT_EQ(&v.transformBy(QUARTER_TURN), &v);
  EXPECT_EQ(v.x, -2);
  EXPECT_EQ(v.y, 1);
  EXPECT_EQ(v.z, 3);
}

TEST(GcGeVector3d, NormalizedHasLengthOne) {
  GcGeVector3d v{0, 3, 4};
  v.normalize();
  EXPECT_EQ(v.x, 0);
  EXPECT_DOUBLE_EQ(v.y, 0.6);
  EXPECT_DOUBLE_EQ(v.z, 0.8);
}

TEST(GcGeVector3d, ShorterThanTheToleranceStaysAsItIs) {
  GcGeVector3d v{5e-11, 0, 0};
  v.normalize(GcGeContext::gTol);
  EXPECT_EQ(v.x, 5e-11);
}

double AngleFromX(double x, double y) {
  return GcGeVector3d::kXAxis.angleTo({x, y, 0}, GcGeVector3d::kZAxis);
}

TEST(AngleTo, IsCounterClockwiseSeenAgainstTheReference) {
  EXPECT_EQ(AngleFromX(1, 0), 0);
  EXPECT_DOUBLE_EQ(AngleFromX(1, 1), PI / 4);
  EXPECT_DOUBLE_EQ(AngleFromX(0, 1), PI / 2);
  EXPECT_DOUBLE_EQ(AngleFromX(-1, 0), PI);
  EXPECT_DOUBLE_EQ(AngleFromX(0, -1), 3 * PI / 2);
}

TEST(AngleTo, TurnsRoundWithTheReference) {
  EXPECT_DOUBLE_EQ(GcGeVector3d::kXAxis.angleTo({0, 1, 0}, {0, 0, -1}), 3 * PI / 2);
}

TEST(AngleTo, StaysBelowAFullTurn) {
  EXPECT_EQ(AngleFromX(1, -1e-17), 0);
  EXPECT_LT(AngleFromX(1, -1e-15), 2 * PI);
  EXPECT_GT(AngleFromX(1, -1e-15), 6.28);
}

TEST(AngleTo, NegativeZeroIsZero) {
  const double angle = AngleFromX(1, -0.0);
  EXPECT_EQ(angle, 0);
  EXPECT_FALSE(std::signbit(angle));
}

TEST(AngleTo, OppositeIsHalfATurnFromEitherSide) {
  EXPECT_EQ(AngleFromX(-1, 0.0), PI);
  EXPECT_EQ(AngleFromX(-1, -0.0), PI);
}

}  // namespace
