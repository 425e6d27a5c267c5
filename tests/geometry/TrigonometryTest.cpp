// TrigonometryTest.cpp - circular functions that round alike on every system.
#include <cmath>

#include <gtest/gtest.h>

#include "geometry/Trigonometry.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

TEST(Trigonometry, QuadrantsOfTheArcTangent) {
  EXPECT_EQ(ArcTangent2(0.0, 1.0), 0.0);
  EXPECT_EQ(ArcTangent2(1.0, 0.0), PI / 2);
  EXPECT_EQ(ArcTangent2(0.0, -1.0), PI);
  EXPECT_EQ(ArcTangent2(-0.0, -1.0), -PI);
  EXPECT_EQ(ArcTangent2(-1.0, 0.0), -PI / 2);
  EXPECT_EQ(ArcTangent2(0.0, 0.0), 0.0);
}

// The exact bits, so that a system whose library rounds otherwise is noticed. By long arithmetic:
// sin 1 = 0.84147098480789650665, cos 1 = 0.54030230586813971740, tan 1 = 1.55740772465490223051,
// atan 2 = 1.10714871779409050302, atan 0.1 = 0.09966865249116202738.
TEST(Trigonometry, ResultsAreTheNearestDoubles) {
  EXPECT_EQ(Sine(1.0), 0.84147098480789650665);
  EXPECT_EQ(Cosine(1.0), 0.54030230586813971740);
  EXPECT_EQ(Tangent(1.0), 1.55740772465490223051);
  EXPECT_EQ(ArcTangent(2.0), 1.10714871779409050302);
  EXPECT_EQ(ArcTangent2(1.0, 10.0), 0.09966865249116202738);
}

TEST(Trigonometry, ConstantsAreTheNearestDoubles) {
  EXPECT_EQ(PI, 3.14159265358979323846);
  EXPECT_EQ(TWO_PI, 6.28318530717958647693);
  EXPECT_EQ(TWO_PI, 2 * PI);
}

TEST(Trigonometry, NotANumberComesThrough) {
  EXPECT_TRUE(std::isnan(Sine(INF)));
  EXPECT_TRUE(std::isnan(Cosine(NOT_A_NUMBER)));
  EXPECT_TRUE(std::isnan(Tangent(INF)));
  EXPECT_TRUE(std::isnan(ArcTangent2(NOT_A_NUMBER, 1)));
  EXPECT_EQ(ArcTangent(INF), PI / 2);
}

// The addition theorem is the second derivation: sin(a + b) and cos(a + b) from their parts.
TEST(Trigonometry, AdditionTheoremHolds) {
  Random random(41);
  for (int i = 0; i < 10000; ++i) {
    const double a = random.Whole(-4000, 4000) / 1024;
    const double b = random.Whole(-4000, 4000) / 1024;  // a + b is exact
    EXPECT_NEAR(Sine(a + b), Sine(a) * Cosine(b) + Cosine(a) * Sine(b), 6 * U);
    EXPECT_NEAR(Cosine(a + b), Cosine(a) * Cosine(b) - Sine(a) * Sine(b), 6 * U);
  }
}

TEST(Trigonometry, ArcTangentUndoesTheTangent) {
  Random random(42);
  for (int i = 0; i < 10000; ++i) {
    const double angle = random.Uniform(-1.5, 1.5);
    EXPECT_NEAR(ArcTangent(Tangent(angle)), angle, 4 * U * 1.5);
    EXPECT_NEAR(ArcTangent2(Sine(angle), Cosine(angle)), angle, 4 * U * 1.5);
  }
}

}  // namespace
}  // namespace geometry
