// PlanDirectionTest.cpp - a point against a segment by directions in the plan.
#include <cmath>

#include <gtest/gtest.h>

#include "geometry/PlanDirection.h"
#include "geometry/Trigonometry.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

TEST(Distance3, CountsAllCoordinates) {
  EXPECT_EQ(Distance3({1, 1, 1}, {3, 4, 7}), 7.0);
}

TEST(NearPoint, IsStrictlyBelowTheTolerance) {
  EXPECT_EQ(NearPoint({0, 0, 0}, {0, 0, 0.5}, 0.6), 1);
  EXPECT_EQ(NearPoint({0, 0, 0}, {0, 0, 0.5}, 0.5), 0);
  EXPECT_EQ(NearPoint({0, 0, 0}, {0, 0, 0.5}, std::nextafter(0.5, 1.0)), 1);
  EXPECT_EQ(NearPoint({0, 0, 0}, {0, 0, 0}, 0.0), 0);
}

TEST(NearPoint, NotANumberIsNearNothing) {
  EXPECT_EQ(NearPoint({NOT_A_NUMBER, 0, 0}, {NOT_A_NUMBER, 0, 0}, 1), 0);
  EXPECT_EQ(NearPoint({INF, 0, 0}, {INF, 0, 0}, 1), 0);
}

TEST(PlanDirection, RunsFromZeroToTwoPi) {
  EXPECT_EQ(PlanDirection({5, 5, 0}, {6, 5, 9}), 0.0);
  EXPECT_EQ(PlanDirection({5, 5, 0}, {5, 6, 9}), PI / 2);
  EXPECT_EQ(PlanDirection({5, 5, 0}, {4, 5, 9}), PI);
  EXPECT_EQ(PlanDirection({5, 5, 0}, {5, 4, 9}), TWO_PI - PI / 2);
}

TEST(PlanDirection, TiniestNegativeDirectionRoundsToTheFullTurn) {
  EXPECT_EQ(PlanDirection({0, 0, 0}, {1, -1e-300, 0}), TWO_PI);
}

TEST(PlanDirection, EqualPointsHaveDirectionZero) {
  EXPECT_EQ(PlanDirection({5, 5, 0}, {5, 5, 9}), 0.0);
}

struct BucketCase {
  const char* name;
  double a;
  double b;
  double tolerance;
  int expected;
};

void PrintTo(const BucketCase& c, std::ostream* out) {
  *out << c.name;
}

class Bucket : public testing::TestWithParam<BucketCase> {};

TEST_P(Bucket, Compares) {
  const BucketCase& c = GetParam();
  EXPECT_EQ(BucketCompare(c.a, c.b, c.tolerance), c.expected);
  EXPECT_EQ(BucketCompare(c.b, c.a, c.tolerance), -c.expected);
}

const double ONE_BELOW = std::nextafter(1.0, 0.0);

INSTANTIATE_TEST_SUITE_P(Edge, Bucket,
                         testing::Values(BucketCase{"SameBucket", 0.0005, 0.0009, 0.0001, 0},
                                         BucketCase{"NextBucket", 0.0009, 0.0011, 0.0001, -1},
                                         BucketCase{"LowerEdgeBelongs", 1.0, 1.4, 0.1, 0},
                                         BucketCase{"JustBelowTheEdge", ONE_BELOW, 1.0, 0.1, -1},
                                         BucketCase{"BothSidesOfZero", -DENORMAL, DENORMAL, 0.0001, -1},
                                         BucketCase{"NegativeValuesFloor", -0.0001, -0.0009, 0.0001, 0},
                                         BucketCase{"PlainLess", 1.0, 1.5, 0.0, -1},
                                         BucketCase{"PlainEqual", 1.5, 1.5, 0.0, 0},
                                         BucketCase{"PlainNeighbours", ONE_BELOW, 1.0, 0.0, -1},
                                         BucketCase{"NegativeZeroTolerance", 1.0, 1.5, -0.0, -1},
                                         BucketCase{"NegativeToleranceReverses", 1.0, 2.0, -0.01, 1},
                                         BucketCase{"Infinities", -INF, INF, 0.0001, -1},
                                         BucketCase{"InfinityEqualsItself", INF, INF, 0.0001, 0},
                                         BucketCase{"NotANumberEqualsAll", NOT_A_NUMBER, 5.0, 0.0001, 0}),
                         CaseName<BucketCase>);

TEST(BucketProperties, ComparisonIsTransitive) {
  Random random(51);
  for (int i = 0; i < 10000; ++i) {
    const double a = random.Uniform(0, 0.005);
    const double b = random.Uniform(0, 0.005);
    const double c = random.Uniform(0, 0.005);
    if (BucketCompare(a, b, 0.0001) > 0 || BucketCompare(b, c, 0.0001) > 0) continue;
    EXPECT_LE(BucketCompare(a, c, 0.0001), 0);
  }
}

struct ClassCase {
  const char* name;
  Vec3 p0;
  Vec3 p1;
  Vec3 q;
  int expected;
};

void PrintTo(const ClassCase& c, std::ostream* out) {
  *out << c.name;
}

class Classify : public testing::TestWithParam<ClassCase> {};

TEST_P(Classify, GivesTheClass) {
  const ClassCase& c = GetParam();
  EXPECT_EQ(ClassifyOnSegment(c.p0, c.p1, c.q), c.expected);
}

constexpr Vec3 O{0, 0, 0};
constexpr Vec3 E{10, 0, 0};

INSTANTIATE_TEST_SUITE_P(
    Level, Classify,
    testing::Values(ClassCase{"Middle", O, E, {5, 0, 0}, 0}, ClassCase{"HighAbove", O, E, {5, 0, 7}, 0},
                    ClassCase{"BeforeStart", O, E, {-1, 0, 0}, 1},
                    ClassCase{"BeyondEnd", O, E, {11, 0, 0}, 2}, ClassCase{"Beside", O, E, {5, 1, 0}, -1},
                    ClassCase{"AtStart", O, E, {0, 0, 0}, 0}, ClassCase{"AtEnd", O, E, {10, 0, 0}, 0},
                    ClassCase{"NearEnd", O, E, {10.00005, 0, 0}, 0},
                    ClassCase{"StartInside", O, E, {0, INSIDE, 0}, 0},
                    ClassCase{"StartOn", O, E, {0, ON, 0}, 1},
                    ClassCase{"LeftWithinBothBuckets", O, E, {5, 0.0029, 0}, 0},
                    // From the start the direction is 6.28300, in the bucket that ends with the full turn.
                    ClassCase{"RightWithinTheLastBucket", O, E, {5, -0.0009, 0}, 0},
                    ClassCase{"LeftWithinTheStartsBucketOnly", O, E, {5, 0.0049, 0}, 2},
                    ClassCase{"RightWithinTheEndsBucketOnly", O, E, {5, -0.0015, 0}, 1},
                    ClassCase{"RightOfBothBuckets", O, {10000, 0, 0}, {5000, -4.9, 0}, -1},
                    ClassCase{"FarAlongTheRay", O, E, {1e6, 900, 0}, 2}),
    CaseName<ClassCase>);

// 500 km in millimetres.
constexpr Vec3 FAR_START{5e8, 5e8, 0};
constexpr Vec3 FAR_END{5e8 + 1000, 5e8, 0};

INSTANTIATE_TEST_SUITE_P(
    FarFromTheOrigin, Classify,
    testing::Values(ClassCase{"Middle", FAR_START, FAR_END, {5e8 + 500, 5e8, 0}, 0},
                    ClassCase{"BeforeStart", FAR_START, FAR_END, {5e8 - 100, 5e8, 0}, 1},
                    ClassCase{"BeyondEnd", FAR_START, FAR_END, {5e8 + 1100, 5e8, 0}, 2},
                    ClassCase{"Beside", FAR_START, FAR_END, {5e8 + 500, 5e8 + 100, 0}, -1},
                    ClassCase{"NearEnd", FAR_START, FAR_END, {5e8 + 1000, 5e8 + 0.00006, 0}, 0}),
    CaseName<ClassCase>);

INSTANTIATE_TEST_SUITE_P(Vertical, Classify,
                         testing::Values(ClassCase{"Between", O, {0, 0, 5}, {0, 0, 2}, 0},
                                         ClassCase{"BetweenFarAside", O, {0, 0, 5}, {100, 100, 2}, 0},
                                         ClassCase{"Below", O, {0, 0, 5}, {0, 0, -1}, 1},
                                         ClassCase{"Above", O, {0, 0, 5}, {0, 0, 9}, 2},
                                         ClassCase{
                                             "AlmostVerticalGoesByThePlan", O, {1e-9, 0, 5}, {0, 0, 9}, 0},
                                         ClassCase{"LevelWithStartAside", O, {0, 0, 5}, {1, 0, 0}, 1},
                                         ClassCase{"LevelWithEndAside", O, {0, 0, 5}, {1, 0, 5}, 2},
                                         ClassCase{"DownwardsNearStart", {0, 0, 5}, O, {0, 0, 3}, 1},
                                         ClassCase{"DownwardsNearEnd", {0, 0, 5}, O, {0, 0, 2}, 2},
                                         ClassCase{"DownwardsInTheMiddle", {0, 0, 5}, O, {0, 0, 2.5}, 2}),
                         CaseName<ClassCase>);

INSTANTIATE_TEST_SUITE_P(
    Degenerate, Classify,
    testing::Values(ClassCase{"PointAtIt", O, O, {0, 0, 0}, 0}, ClassCase{"PointAway", O, O, {1, 0, 0}, -1},
                    ClassCase{"ShortSegmentInside", O, {INSIDE, 0, 0}, {5, 0, 0}, -1},
                    ClassCase{"ShortSegmentOn", O, {ON, 0, 0}, {5, 0, 0}, 2},
                    ClassCase{"NotANumberCountsAsDirectionZero", O, E, {NOT_A_NUMBER, 0, 0}, 2},
                    ClassCase{"Infinite", O, E, {INF, 0, 0}, 2}),
    CaseName<ClassCase>);

TEST(ClassifyOnSegment, PointJustBelowTheFullTurnIsOnTheLine) {
  EXPECT_EQ(ClassifyOnSegment(O, E, {5, -1e-9, 0}), ON_SEGMENT);
}

TEST(ClassifyOnSegment, PointWithinRoundingOfTheLineCanLieInAnotherBucket) {
  // 0.001 is a boundary: from the start the point lies a hair below it and the end a hair above, so the point
  // is on the ray from the end only.
  const Vec3 end{10 * Cosine(0.001 + 1e-12), 10 * Sine(0.001 + 1e-12), 0};
  const Vec3 q{5 * Cosine(0.001 - 1e-12), 5 * Sine(0.001 - 1e-12), 0};
  EXPECT_EQ(ClassifyOnSegment(O, end, q), BEFORE_START);
}

// The second derivation: the place along and across the segment. It agrees wherever no direction is within
// 1.1 buckets of the segment's without being in it.
TEST(ClassifyProperties, AgreesWithThePlaceAlongTheSegment) {
  Random random(52);
  for (int i = 0; i < 10000; ++i) {
    const double direction = (random.Whole(0, 6282) + 0.5) / 1000;  // the middle of a bucket
    const double length = random.Uniform(1, 1000);
    const double along = random.Uniform(-2, 3);
    const double across = random.Whole(0, 1);
    if (std::abs(along) < 0.01 || std::abs(along - 1) < 0.01) continue;
    const double reverse = std::fmod(direction + PI, TWO_PI) * 1000;
    if (std::abs(reverse - std::round(reverse)) < 1e-6) continue;
    const Vec3 p0 = random.Point(1000);
    const Vec3 u{std::cos(direction), std::sin(direction), 0};
    const Vec3 p1{p0.x + u.x * length, p0.y + u.y * length, random.Uniform(-9, 9)};
    const Vec3 q{p0.x + u.x * length * along - u.y * across * length,
                 p0.y + u.y * length * along + u.x * across * length, 5};
    const int expected = across > 0 ? -1 : along < 0 ? 1 : along > 1 ? 2 : 0;
    EXPECT_EQ(ClassifyOnSegment(p0, p1, q), expected);
  }
}

// The class seen from the other end.
std::int8_t Reversed(std::int8_t side) {
  if (side == BEFORE_START) return BEYOND_END;
  return side == BEYOND_END ? BEFORE_START : side;
}

TEST(ClassifyProperties, ReversedSegmentExchangesTheSides) {
  Random random(53);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 p0 = random.WholePoint(5);
    const Vec3 p1 = random.WholePoint(5);
    const Vec3 q = random.WholePoint(5);
    if (p0.x == p1.x && p0.y == p1.y) continue;
    EXPECT_EQ(ClassifyOnSegment(p1, p0, q), Reversed(ClassifyOnSegment(p0, p1, q)));
  }
}

}  // namespace
}  // namespace geometry
