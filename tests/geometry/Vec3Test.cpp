// Vec3Test.cpp - elementary operations on points and vectors.
#include <cmath>
#include <cstdint>

#include <gtest/gtest.h>

#include "geometry/Vec3.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

const Vec3 A{1, 2, 3};
const Vec3 B{10, 20, 40};
const Vec3 UNTOUCHED{7, 8, 9};

TEST(VecAdd, AddsEachComponent) {
  Vec3 out{};
  VecAdd(A, B, out);
  EXPECT_EQ(out, (Vec3{11, 22, 43}));
}

TEST(VecSub, TakesTheSecondOffTheFirst) {
  Vec3 out{};
  VecSub(A, B, out);
  EXPECT_EQ(out, (Vec3{-9, -18, -37}));
}

TEST(VecScale, MultipliesEachComponent) {
  Vec3 out{};
  VecScale(A, -2.0, out);
  EXPECT_EQ(out, (Vec3{-2, -4, -6}));
}

TEST(VecMid, IsHalfTheSum) {
  Vec3 out{};
  VecMid(A, B, out);
  EXPECT_EQ(out, (Vec3{5.5, 11, 21.5}));
}

TEST(VecMid, OverflowsWhereTheSumDoes) {
  Vec3 out{};
  VecMid({1.7e308, 0, 0}, {1.7e308, 0, 0}, out);
  EXPECT_EQ(out, (Vec3{INF, 0, 0}));
}

TEST(VecOperations, OutputMayBeAnInput) {
  Vec3 sum = A;
  VecAdd(sum, sum, sum);
  EXPECT_EQ(sum, (Vec3{2, 4, 6}));
  Vec3 difference = A;
  VecSub(B, difference, difference);
  EXPECT_EQ(difference, (Vec3{9, 18, 37}));
  Vec3 turned = A;
  VecPerpXY(turned, 1, turned);
  EXPECT_EQ(turned, (Vec3{2, -1, 0}));
  Vec3 unit{0, 0, 5};
  EXPECT_EQ(VecNormalize(unit, unit), 0);
  EXPECT_EQ(unit, (Vec3{0, 0, 1}));
}

TEST(VecDot, SumsTheProducts) {
  EXPECT_EQ(VecDot(A, B), 170.0);
}

TEST(VecCross, IsRightHanded) {
  Vec3 out{};
  VecCross({1, 0, 0}, {0, 1, 0}, out);
  EXPECT_EQ(out, (Vec3{0, 0, 1}));
  VecCross(A, B, out);
  EXPECT_EQ(out, (Vec3{20, -10, 0}));
}

TEST(VecLength, IsTheRootOfTheSquares) {
  EXPECT_EQ(VecLength({2, 3, 6}), 7.0);
}

TEST(VecLength, SquaresOverflowAndUnderflow) {
  EXPECT_EQ(VecLength({1e200, 0, 0}), INF);
  EXPECT_EQ(VecLength({1e-200, 0, 0}), 0.0);
}

TEST(VecNormalize, GivesTheUnitVector) {
  Vec3 out{};
  EXPECT_EQ(VecNormalize({0, -4, 0}, out), 0);
  EXPECT_EQ(out, (Vec3{0, -1, 0}));
}

TEST(VecNormalize, ScalesByTheReciprocalOfTheLength) {
  // 1 / 49 rounds, so that 49 (1 / 49) is one unit below 1.
  Vec3 out{};
  VecNormalize({49, 0, 0}, out);
  EXPECT_EQ(out.x, 49 * (1.0 / 49));
  EXPECT_LT(out.x, 1.0);
}

TEST(VecNormalize, VectorShorterThanToleranceIsRefusedAndOutputUntouched) {
  Vec3 out = UNTOUCHED;
  EXPECT_EQ(VecNormalize({0.00005, 0, 0}, out), -1);
  EXPECT_EQ(out, UNTOUCHED);
}

TEST(VecNormalize, OverflowingLengthGivesZeroAndInfinityGivesNaN) {
  Vec3 out{};
  EXPECT_EQ(VecNormalize({1e200, 0, 0}, out), 0);
  EXPECT_EQ(out, (Vec3{0, 0, 0}));
  EXPECT_EQ(VecNormalize({INF, 0, 0}, out), 0);
  EXPECT_TRUE(std::isnan(out.x));
  EXPECT_EQ(VecNormalize({NOT_A_NUMBER, 0, 0}, out), 0);
  EXPECT_TRUE(std::isnan(out.y));
}

TEST(VecPerpXY, TurnsClockwiseOrBackAndDropsZ) {
  Vec3 out{};
  VecPerpXY(A, 1, out);
  EXPECT_EQ(out, (Vec3{2, -1, 0}));
  VecPerpXY(A, 0, out);
  EXPECT_EQ(out, (Vec3{-2, 1, 0}));
}

TEST(VecPerpXY, AnyNonZeroIsClockwise) {
  Vec3 out{};
  VecPerpXY(A, -3, out);
  EXPECT_EQ(out, (Vec3{2, -1, 0}));
}

TEST(PointsEqual, FurtherThanTheToleranceInOneCoordinateIsDifferent) {
  EXPECT_EQ(PointsEqual(A, A), 1);
  EXPECT_EQ(PointsEqual({0, 0, 0}, {0.00011, 0, 0}), 0);
}

TEST(PointsEqual, NotANumberEqualsEverything) {
  EXPECT_EQ(PointsEqual({NOT_A_NUMBER, 0, 0}, {5, 0, 0}), 1);
  EXPECT_EQ(PointsEqual({INF, 0, 0}, {INF, 0, 0}), 1);
  EXPECT_EQ(PointsEqual({INF, 0, 0}, {0, 0, 0}), 0);
}

TEST(SwapBytes, ExchangesTheBuffers) {
  char a[] = "window";
  char b[] = "facade";
  SwapBytes(a, b, 6);
  EXPECT_STREQ(a, "facade");
  EXPECT_STREQ(b, "window");
}

TEST(SwapBytes, CountOfNoneChangesNothing) {
  char a[] = "x";
  char b[] = "y";
  SwapBytes(a, b, 0);
  EXPECT_STREQ(a, "x");
}

TEST(SwapBytes, RunsFromTheLastByteToTheFirst) {
  // Overlapping by two: the exchanges c-d, b-c, a-b carry the last byte to the front.
  char text[] = "abcd";
  SwapBytes(text, text + 1, 3);
  EXPECT_STREQ(text, "dabc");
}

struct ToleranceCase {
  const char* name;
  double distance;
  int expected;
};

void PrintTo(const ToleranceCase& c, std::ostream* out) {
  *out << c.name;
}

class VecNormalizeTolerance : public testing::TestWithParam<ToleranceCase> {};

TEST_P(VecNormalizeTolerance, LengthAlongEachAxis) {
  const double d = GetParam().distance;
  for (const Vec3& v : {Vec3{d, 0, 0}, Vec3{0, -d, 0}, Vec3{0, 0, d}}) {
    Vec3 out{};
    EXPECT_EQ(VecNormalize(v, out), GetParam().expected);
  }
}

INSTANTIATE_TEST_SUITE_P(Edge, VecNormalizeTolerance,
                         testing::Values(ToleranceCase{"Zero", 0.0, -1},
                                         ToleranceCase{"Denormal", DENORMAL, -1},
                                         ToleranceCase{"Inside", INSIDE, -1}, ToleranceCase{"On", ON, 0},
                                         ToleranceCase{"Outside", OUTSIDE, 0}),
                         CaseName<ToleranceCase>);

class PointsEqualTolerance : public testing::TestWithParam<ToleranceCase> {};

TEST_P(PointsEqualTolerance, DifferenceInEachCoordinate) {
  const double d = GetParam().distance;
  for (const Vec3& v : {Vec3{d, 0, 0}, Vec3{0, -d, 0}, Vec3{0, 0, d}}) {
    EXPECT_EQ(PointsEqual(v, {0, 0, 0}), GetParam().expected);
    EXPECT_EQ(PointsEqual({0, 0, 0}, v), GetParam().expected);
  }
}

INSTANTIATE_TEST_SUITE_P(Edge, PointsEqualTolerance,
                         testing::Values(ToleranceCase{"Denormal", DENORMAL, 1},
                                         ToleranceCase{"Inside", INSIDE, 1}, ToleranceCase{"On", ON, 1},
                                         ToleranceCase{"Outside", OUTSIDE, 0}),
                         CaseName<ToleranceCase>);

// Whole numbers below 2^20 have exact products and sums, in doubles as in 64-bit integers.
TEST(VecProperties, ProductsOfWholeVectorsAreExact) {
  Random random(1);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 a = random.WholePoint(1 << 20);
    const Vec3 b = random.WholePoint(1 << 20);
    const auto whole = [](double d) { return static_cast<std::int64_t>(d); };
    Vec3 cross{};
    VecCross(a, b, cross);
    EXPECT_EQ(whole(VecDot(a, b)),
              whole(a.x) * whole(b.x) + whole(a.y) * whole(b.y) + whole(a.z) * whole(b.z));
    EXPECT_EQ(whole(cross.x), whole(a.y) * whole(b.z) - whole(a.z) * whole(b.y));
    EXPECT_EQ(whole(cross.y), whole(a.z) * whole(b.x) - whole(a.x) * whole(b.z));
    EXPECT_EQ(whole(cross.z), whole(a.x) * whole(b.y) - whole(a.y) * whole(b.x));
  }
}

// Three products and two sums: 3 u times the sum of the products' sizes.
TEST(VecProperties, DotIsWithinThreeRoundings) {
  Random random(2);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 a = random.Point(5e8);
    const Vec3 b = random.Point(5e8);
    const double size = std::abs(a.x * b.x) + std::abs(a.y * b.y) + std::abs(a.z * b.z);
    EXPECT_LE(std::abs(VecDot(a, b) - static_cast<double>(Dot(Long(a), Long(b)))), 4 * U * size);
  }
}

TEST(VecProperties, CrossIsWithinTwoRoundingsAndReversesWithItsFactors) {
  Random random(3);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 a = random.Point(1000);
    const Vec3 b = random.Point(1000);
    Vec3 ab{};
    Vec3 ba{};
    VecCross(a, b, ab);
    VecCross(b, a, ba);
    EXPECT_EQ(ab, (Vec3{-ba.x, -ba.y, -ba.z}));
    // Each component is a difference of two products.
    EXPECT_LE(Difference(ab, Cross(Long(a), Long(b))), 4 * U * VecLength(a) * VecLength(b));
  }
}

// Squares and sums 3 u, halved by the root, the root, the reciprocal and the product u each: below 5 u.
TEST(VecProperties, NormalisedVectorsHaveLengthOneAndKeepTheirDirection) {
  Random random(4);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 v = random.Point(1e6);
    Vec3 unit{};
    ASSERT_EQ(VecNormalize(v, unit), 0);
    EXPECT_LE(Difference(unit, Long(v) * (1.0L / Length(Long(v)))), 5 * U);
  }
}

TEST(VecProperties, PerpendicularStandsAcrossAndTurnsBack) {
  Random random(5);
  for (int i = 0; i < 1000; ++i) {
    const Vec3 v = random.Point(1000);
    Vec3 right{};
    VecPerpXY(v, 1, right);
    EXPECT_EQ(v.x * right.x + v.y * right.y, 0.0);
    VecPerpXY(right, 0, right);
    EXPECT_EQ(right, (Vec3{v.x, v.y, 0}));
  }
}

}  // namespace
}  // namespace geometry
