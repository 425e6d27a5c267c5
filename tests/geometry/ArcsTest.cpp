// ArcsTest.cpp - circular arcs in the plan and their intersections.
#include <cmath>
#include <complex>
#include <string>

#include <gtest/gtest.h>

#include "geometry/Arcs.h"
#include "geometry/Trigonometry.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the tests' own helpers

const Vec3 UNTOUCHED{7, 8, 9};
constexpr Vec3 O{0, 0, 0};
constexpr Vec3 EAST{1, 0, 0};
constexpr Vec3 NORTH{0, 1, 0};
constexpr Vec3 WEST{-1, 0, 0};
constexpr Vec3 SOUTH{0, -1, 0};

struct Arc {
  Vec3 centre = UNTOUCHED;
  double radius = 70;
  double angle[3] = {71, 72, 73};
  int counterClockwise = 74;
  int result = 0;

  Arc(const Vec3& p0, const Vec3& p1, const Vec3& p2) {
    result = ArcThroughPoints(p0, p1, p2, centre, radius, angle[0], angle[1], angle[2], counterClockwise);
  }
};

TEST(ArcThroughPoints, UpperHalfCircle) {
  const Arc arc(EAST, NORTH, WEST);
  EXPECT_EQ(arc.result, ARC_FOUND);
  EXPECT_EQ(arc.centre, O);
  EXPECT_EQ(arc.radius, 1.0);
  EXPECT_THAT(arc.angle, testing::ElementsAre(0.0, PI / 2, PI));
  EXPECT_EQ(arc.counterClockwise, 1);
}

TEST(ArcThroughPoints, ReverseOrderRunsClockwise) {
  const Arc arc(WEST, NORTH, EAST);
  EXPECT_EQ(arc.result, ARC_FOUND);
  EXPECT_EQ(arc.counterClockwise, 0);
  EXPECT_EQ(arc.radius, 1.0);
}

TEST(ArcThroughPoints, IgnoresHeights) {
  const Arc arc({1, 0, 50}, {0, 1, -3}, {-1, 0, 8});
  EXPECT_EQ(arc.result, ARC_FOUND);
  EXPECT_EQ(arc.centre, O);
  EXPECT_EQ(arc.radius, 1.0);
}

TEST(ArcThroughPoints, CollinearPointsFailAndWriteNothing) {
  const Arc arc({0, 0, 0}, {1, 1, 0}, {5, 5, 0});
  EXPECT_EQ(arc.result, ARC_NONE);
  EXPECT_EQ(arc.centre, UNTOUCHED);
  EXPECT_EQ(arc.radius, 70);
  EXPECT_EQ(arc.counterClockwise, 74);
}

TEST(ArcThroughPoints, CoincidentPointsFail) {
  EXPECT_EQ(Arc(EAST, NORTH, EAST).result, ARC_NONE);
  EXPECT_EQ(Arc(EAST, EAST, WEST).result, ARC_NONE);
  EXPECT_EQ(Arc(EAST, WEST, WEST).result, ARC_NONE);
}

TEST(ArcThroughPoints, PointTooFarOutForTheChordFails) {
  // The bulge is 1e17, but both other points look the same from there, so nothing of the turn is left.
  EXPECT_EQ(Arc({0, 0, 0}, {1e17, 1e17, 0}, {1, 0, 0}).result, ARC_NONE);
}

TEST(ArcThroughPoints, NotANumberIsNotRefused) {
  const Arc arc({NOT_A_NUMBER, 0, 0}, NORTH, WEST);
  EXPECT_EQ(arc.result, ARC_FOUND);
  EXPECT_TRUE(std::isnan(arc.radius));
  EXPECT_EQ(arc.counterClockwise, 0);
  EXPECT_EQ(Arc(EAST, {0, INF, 0}, WEST).result, ARC_FOUND);
}

TEST(ArcThroughPoints, CentreMayBeAnInput) {
  Vec3 p0 = EAST;
  double radius = 0;
  double angle[3] = {};
  int counterClockwise = 0;
  EXPECT_EQ(ArcThroughPoints(p0, NORTH, WEST, p0, radius, angle[0], angle[1], angle[2], counterClockwise), 0);
  EXPECT_EQ(p0, O);
  EXPECT_EQ(radius, 1.0);
}

TEST(ArcFractionAt, HalfCircle) {
  EXPECT_EQ(ArcFractionAt(EAST, WEST, O, 1, EAST), 0.0);
  EXPECT_EQ(ArcFractionAt(EAST, WEST, O, 1, NORTH), 0.5);
  EXPECT_EQ(ArcFractionAt(EAST, WEST, O, 1, WEST), 1.0);
  EXPECT_EQ(ArcFractionAt(EAST, WEST, O, 1, SOUTH), 1.5);
}

TEST(ArcFractionAt, ClockwiseHalfCircle) {
  EXPECT_EQ(ArcFractionAt(EAST, WEST, O, 0, SOUTH), 0.5);
  EXPECT_EQ(ArcFractionAt(EAST, WEST, O, 0, NORTH), 1.5);
  EXPECT_EQ(ArcFractionAt(EAST, WEST, O, 0, WEST), 1.0);
}

TEST(ArcFractionAt, OnlyTheDirectionCounts) {
  EXPECT_EQ(ArcFractionAt(EAST, WEST, O, 1, {0, 50, 20}), 0.5);
  EXPECT_EQ(ArcFractionAt({1, 0, 9}, {-3, 0, 2}, {0, 0, 5}, 1, {0, 0.25, 0}), 0.5);
}

TEST(ArcFractionAt, ArcAcrossTheCutOfTheAngles) {
  // From 135 to 225 degrees: the atan2 of the end is negative.
  EXPECT_NEAR(ArcFractionAt({-1, 1, 0}, {-1, -1, 0}, O, 1, WEST), 0.5, 4 * U);
}

TEST(ArcFractionAt, FullCircleHasNoFractions) {
  EXPECT_EQ(ArcFractionAt(EAST, EAST, O, 1, WEST), 0.0);
}

TEST(ArcFractionAt, JustBeforeTheStartIsAlmostAFullTurnOn) {
  EXPECT_NEAR(ArcFractionAt(EAST, WEST, O, 1, {1, -1e-12, 0}), 2.0, 1e-11);
}

TEST(ArcFractionAt, NotANumberComesOut) {
  EXPECT_TRUE(std::isnan(ArcFractionAt(EAST, WEST, O, 1, {NOT_A_NUMBER, 0, 0})));
  EXPECT_EQ(ArcFractionAt(EAST, WEST, O, 1, {0, INF, 0}), 0.5);
}

Vec3 PointAt(const Vec3& start, const Vec3& end, const Vec3& centre, double fraction, int counterClockwise) {
  Vec3 out = UNTOUCHED;
  ArcPointAt(start, end, centre, fraction, counterClockwise, out);
  return out;
}

TEST(ArcPointAt, HalfOfTheHalfCircle) {
  EXPECT_THAT(PointAt(EAST, WEST, O, 0.5, 1), IsNear(NORTH, U));
  EXPECT_THAT(PointAt(EAST, WEST, O, 0.5, 0), IsNear(SOUTH, 4 * U));
}

TEST(ArcPointAt, EndsAndBeyond) {
  EXPECT_THAT(PointAt(EAST, WEST, O, 0.0, 1), IsNear(EAST, U));
  EXPECT_THAT(PointAt(EAST, WEST, O, 1.0, 1), IsNear(WEST, 2 * U));
  EXPECT_THAT(PointAt(EAST, WEST, O, 1.5, 1), IsNear(SOUTH, 4 * U));
  EXPECT_THAT(PointAt(EAST, WEST, O, 0.0, 0), IsNear(EAST, 8 * U));
}

TEST(ArcPointAt, KeepsTheCentresHeightAndTheStartsRadius) {
  EXPECT_THAT(PointAt({12, 5, 1}, {10, 6, 2}, {10, 5, 3}, 1.0, 1), IsNear((Vec3{10, 7, 3}), 16 * U * 10));
}

TEST(ArcPointAt, DegenerateArcGivesTheCentre) {
  EXPECT_EQ(PointAt(O, WEST, O, 0.5, 1), O);
  EXPECT_EQ(PointAt(EAST, O, O, 0.5, 1), O);
}

TEST(ArcPointAt, FullCircleStaysAtTheStart) {
  EXPECT_THAT(PointAt(NORTH, NORTH, O, 0.5, 1), IsNear(NORTH, U));
}

TEST(ArcPointAt, OutputMayBeAnInput) {
  Vec3 centre = O;
  ArcPointAt(EAST, WEST, centre, 0.5, 1, centre);
  EXPECT_THAT(centre, IsNear(NORTH, U));
  Vec3 start = EAST;
  ArcPointAt(start, WEST, O, 0.5, 1, start);
  EXPECT_THAT(start, IsNear(NORTH, U));
}

struct LineHits {
  Vec3 centre = UNTOUCHED;
  int counterClockwise = 70;
  Vec3 hit[2] = {UNTOUCHED, UNTOUCHED};
  double t[2] = {71, 72};
  double fraction[2] = {73, 74};
  int count = 0;

  LineHits(const Vec3& p0, const Vec3& p1, const Vec3& start, const Vec3& end, const Vec3& mid) {
    count = LineArcIntersect(p0, p1, start, end, mid, centre, counterClockwise, hit[0], hit[1], t[0], t[1],
                             fraction[0], fraction[1]);
  }
};

TEST(LineArcIntersect, LineThroughTheCentreHitsTwice) {
  const LineHits hits({-2, 0, 0}, {2, 0, 4}, EAST, WEST, NORTH);
  EXPECT_EQ(hits.count, ARC_TWO_HITS);
  EXPECT_EQ(hits.t[0], 0.25);
  EXPECT_EQ(hits.t[1], 0.75);
  EXPECT_EQ(hits.hit[0], (Vec3{-1, 0, 1}));
  EXPECT_EQ(hits.hit[1], (Vec3{1, 0, 3}));
  EXPECT_EQ(hits.fraction[0], 1.0);
  EXPECT_EQ(hits.fraction[1], 0.0);
  EXPECT_EQ(hits.centre, O);
  EXPECT_EQ(hits.counterClockwise, 1);
}

TEST(LineArcIntersect, TangentHitsOnce) {
  const LineHits hits({-2, 1, 0}, {2, 1, 0}, EAST, WEST, NORTH);
  EXPECT_EQ(hits.count, ARC_ONE_HIT);
  EXPECT_EQ(hits.t[0], 0.5);
  EXPECT_EQ(hits.hit[0], NORTH);
  EXPECT_EQ(hits.fraction[0], 0.5);
  EXPECT_EQ(hits.hit[1], UNTOUCHED);
  EXPECT_EQ(hits.t[1], 72);
}

TEST(LineArcIntersect, PassingLineHitsNothingButTheCircleIsKnown) {
  const LineHits hits({-2, 2, 0}, {2, 2, 0}, EAST, WEST, NORTH);
  EXPECT_EQ(hits.count, ARC_NO_HIT);
  EXPECT_EQ(hits.centre, O);
  EXPECT_EQ(hits.counterClockwise, 1);
  EXPECT_EQ(hits.hit[0], UNTOUCHED);
}

TEST(LineArcIntersect, HitsAreNotClippedToTheArc) {
  const LineHits hits({0, -5, 0}, {0, -4, 0}, EAST, WEST, NORTH);
  EXPECT_EQ(hits.count, ARC_TWO_HITS);
  EXPECT_EQ(hits.fraction[0], 1.5);
  EXPECT_EQ(hits.fraction[1], 0.5);
}

TEST(LineArcIntersect, DegenerateArcOrLineHitsNothing) {
  EXPECT_EQ(LineHits({0, 0, 0}, {1, 0, 0}, {0, 0, 0}, {2, 2, 0}, {1, 1, 0}).count, ARC_NO_HIT);
  EXPECT_EQ(LineHits({0, 0, 0}, {0, 0, 50}, EAST, WEST, NORTH).count, ARC_NO_HIT);
}

TEST(LineArcIntersect, OutputsMayBeInputs) {
  Vec3 p0{-2, 0, 0};
  Vec3 p1{2, 0, 4};
  Vec3 start = EAST;
  int counterClockwise = 0;
  double t[2] = {};
  double fraction[2] = {};
  EXPECT_EQ(LineArcIntersect(p0, p1, start, WEST, NORTH, start, counterClockwise, p0, p1, t[0], t[1],
                             fraction[0], fraction[1]),
            ARC_TWO_HITS);
  EXPECT_EQ(start, O);
  EXPECT_EQ(p0, (Vec3{-1, 0, 1}));
  EXPECT_EQ(p1, (Vec3{1, 0, 3}));
  EXPECT_EQ(fraction[1], 0.0);
}

TEST(LineArcIntersect, NotANumberGivesTwoHitsThatAreNone) {
  const LineHits hits({NOT_A_NUMBER, 0, 0}, {2, 0, 0}, EAST, WEST, NORTH);
  EXPECT_EQ(hits.count, ARC_TWO_HITS);
  EXPECT_TRUE(std::isnan(hits.hit[0].x));
}

struct ArcHits {
  Vec3 centre[2] = {UNTOUCHED, UNTOUCHED};
  int counterClockwise[2] = {70, 71};
  Vec3 hit[2] = {UNTOUCHED, UNTOUCHED};
  double fractionA[2] = {72, 73};
  double fractionB[2] = {74, 75};
  int count = 0;

  ArcHits(const Vec3 (&a)[3], const Vec3 (&b)[3]) {
    count = ArcArcIntersect(a[0], a[2], a[1], b[0], b[2], b[1], centre[0], counterClockwise[0], centre[1],
                            counterClockwise[1], hit[0], hit[1], fractionA[0], fractionA[1], fractionB[0],
                            fractionB[1]);
  }
};

// The upper half of a circle, counter-clockwise: start, mid, end.
struct UpperHalf {
  Vec3 points[3];
  UpperHalf(double x, double y, double r) : points{{x + r, y, 0}, {x, y + r, 0}, {x - r, y, 0}} {}
};

ArcHits Circles(double xA, double rA, double xB, double rB) {
  return {UpperHalf(xA, 0, rA).points, UpperHalf(xB, 0, rB).points};
}

TEST(ArcArcIntersect, UnitCirclesByTheDistanceOfTheirCentres) {
  EXPECT_EQ(Circles(0, 1, 2.5, 1).count, ARC_NO_HIT);
  EXPECT_EQ(Circles(0, 1, 2, 1).count, ARC_ONE_HIT);
  EXPECT_EQ(Circles(0, 1, 1, 1).count, ARC_TWO_HITS);
  EXPECT_EQ(Circles(0, 1, 0, 1).count, ARC_SAME_CIRCLE);
}

TEST(ArcArcIntersect, CrossingCirclesGiveTheRightHitFirst) {
  // Circles of radius 5 about 0 and 6 meet at (3, -4) and (3, 4); from B to A is west, whose right is north.
  const ArcHits hits = Circles(0, 5, 6, 5);
  EXPECT_EQ(hits.count, ARC_TWO_HITS);
  EXPECT_EQ(hits.hit[0], (Vec3{3, 4, 0}));
  EXPECT_EQ(hits.hit[1], (Vec3{3, -4, 0}));
  EXPECT_NEAR(hits.fractionA[0], std::atan2(4, 3) / PI, 4 * U);
  EXPECT_NEAR(hits.fractionA[1], 2 - std::atan2(4, 3) / PI, 4 * U);
  EXPECT_NEAR(hits.fractionB[0], 1 - std::atan2(4, 3) / PI, 4 * U);
  EXPECT_NEAR(hits.fractionB[1], 1 + std::atan2(4, 3) / PI, 4 * U);
  EXPECT_EQ(hits.centre[0], O);
  EXPECT_EQ(hits.centre[1], (Vec3{6, 0, 0}));
  EXPECT_EQ(hits.counterClockwise[0], 1);
  EXPECT_EQ(hits.counterClockwise[1], 1);
}

TEST(ArcArcIntersect, TouchingCirclesGiveTheFoot) {
  const ArcHits hits = Circles(0, 1, 3, 2);
  EXPECT_EQ(hits.count, ARC_ONE_HIT);
  EXPECT_EQ(hits.hit[0], EAST);
  EXPECT_EQ(hits.fractionA[0], 0.0);
  EXPECT_EQ(hits.fractionB[0], 1.0);
  EXPECT_EQ(hits.hit[1], UNTOUCHED);
  EXPECT_EQ(hits.fractionB[1], 75);
}

TEST(ArcArcIntersect, TouchingFromInside) {
  const ArcHits hits = Circles(0, 3, 2, 1);
  EXPECT_EQ(hits.count, ARC_ONE_HIT);
  EXPECT_EQ(hits.hit[0], (Vec3{3, 0, 0}));
}

TEST(ArcArcIntersect, OneCircleInsideTheOther) {
  EXPECT_EQ(Circles(0, 5, 1, 2).count, ARC_NO_HIT);
  EXPECT_EQ(Circles(1, 2, 0, 5).count, ARC_NO_HIT);
}

TEST(ArcArcIntersect, DegenerateArcHitsNothing) {
  const Vec3 straight[3] = {{0, 0, 0}, {1, 1, 0}, {2, 2, 0}};
  const UpperHalf half(0, 0, 1);
  const ArcHits badA(straight, half.points);
  EXPECT_EQ(badA.count, ARC_NO_HIT);
  EXPECT_EQ(badA.centre[0], UNTOUCHED);
  EXPECT_EQ(badA.centre[1], UNTOUCHED);
  const ArcHits badB(half.points, straight);
  EXPECT_EQ(badB.count, ARC_NO_HIT);
  EXPECT_EQ(badB.centre[0], O);
  EXPECT_EQ(badB.centre[1], UNTOUCHED);
}

TEST(ArcArcIntersect, NearlyConcentricCirclesThatAlmostTouchGiveNoNumbers) {
  // Inside by half the tolerance, but with a radius a thousand times the distance of the centres.
  const ArcHits hits = Circles(0, 1000, 0.99995, 999);
  EXPECT_EQ(hits.count, ARC_TWO_HITS);
  EXPECT_TRUE(std::isnan(hits.hit[0].y));
  EXPECT_TRUE(std::isnan(hits.fractionA[1]));
}

struct ArcEdge {
  const char* name;
  int (*classify)(double);
  double size;
  int expected;
};

void PrintTo(const ArcEdge& c, std::ostream* out) {
  *out << c.name << " at " << c.size;
}

int Chord(double d) {
  return Arc({0, 0, 0}, {0, 1, 0}, {d, 0, 0}).result;
}
int BulgeOf(double d) {
  return Arc({0, 0, 0}, {0.5, d, 0}, {1, 0, 0}).result;
}
// 1 when the arm is long enough for a fraction: of start, of end, of q.
int StartArm(double d) {
  return ArcFractionAt({d, 0, 0}, WEST, O, 1, NORTH) == 0.5 ? 1 : 0;
}
int EndArm(double d) {
  return ArcFractionAt(EAST, {-d, 0, 0}, O, 1, NORTH) == 0.5 ? 1 : 0;
}
int PointArm(double d) {
  return ArcFractionAt(EAST, WEST, O, 1, {0, d, 0}) == 0.5 ? 1 : 0;
}
int Sweep(double d) {
  return ArcFractionAt(EAST, {std::cos(d), std::sin(d), 0}, O, 1, WEST) > 0 ? 1 : 0;
}
int RadiusAt(double d) {
  return PointAt({d, 0, 0}, WEST, O, 0.5, 1) == O ? 0 : 1;
}
int EndRadiusAt(double d) {
  return PointAt(EAST, {-d, 0, 0}, O, 0.5, 1) == O ? 0 : 1;
}
int LineLength(double d) {
  return LineHits({0, 0, 0}, {d, 0, 0}, {1000, 0, 0}, {-1000, 0, 0}, {0, 1000, 0}).count;
}
// A line of length 1 at the distance h from the centre of a unit circle: disc = 4 (1 - h^2) / radius.
int Tangency(double disc) {
  const double h = std::sqrt(1 - disc / 4);
  return LineHits({0, h, 0}, {1, h, 0}, EAST, WEST, NORTH).count;
}
int Gap(double d) {
  return Circles(0, 1, 2 + d, 1).count;
}
int Inside(double d) {
  return Circles(0, 3, 2 - d, 1).count;
}
int CentreDistance(double d) {
  return Circles(0, 1, d, 1).count;
}
int RadiusDifference(double d) {
  return Circles(0, 1, 0, 1 + d).count;
}

class ArcTolerance : public testing::TestWithParam<ArcEdge> {};

TEST_P(ArcTolerance, Classifies) {
  EXPECT_EQ(GetParam().classify(GetParam().size), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Through, ArcTolerance,
                         testing::Values(ArcEdge{"ChordInside", Chord, INSIDE, ARC_NONE},
                                         ArcEdge{"ChordOn", Chord, ON, ARC_FOUND},
                                         ArcEdge{"ChordOutside", Chord, OUTSIDE, ARC_FOUND},
                                         ArcEdge{"BulgeInside", BulgeOf, INSIDE, ARC_NONE},
                                         ArcEdge{"BulgeOn", BulgeOf, ON, ARC_FOUND},
                                         ArcEdge{"BulgeOutside", BulgeOf, OUTSIDE, ARC_FOUND},
                                         ArcEdge{"BulgeBelow", BulgeOf, -OUTSIDE, ARC_FOUND}),
                         CaseName<ArcEdge>);

INSTANTIATE_TEST_SUITE_P(
    Fractions, ArcTolerance,
    testing::Values(ArcEdge{"StartInside", StartArm, INSIDE, 0}, ArcEdge{"StartOn", StartArm, ON, 1},
                    ArcEdge{"EndInside", EndArm, INSIDE, 0}, ArcEdge{"EndOn", EndArm, ON, 1},
                    ArcEdge{"PointInside", PointArm, INSIDE, 0}, ArcEdge{"PointOn", PointArm, ON, 1},
                    ArcEdge{"SweepInside", Sweep, 0.0000999999, 0},
                    ArcEdge{"SweepOutside", Sweep, 0.0001000001, 1},
                    ArcEdge{"SweepBackInside", Sweep, -0.0000999999, 0},
                    ArcEdge{"RadiusInside", RadiusAt, INSIDE, 0}, ArcEdge{"RadiusOn", RadiusAt, ON, 1},
                    ArcEdge{"EndRadiusInside", EndRadiusAt, INSIDE, 0},
                    ArcEdge{"EndRadiusOn", EndRadiusAt, ON, 1}),
    CaseName<ArcEdge>);

INSTANTIATE_TEST_SUITE_P(
    Hits, ArcTolerance,
    testing::Values(ArcEdge{"LineTooShort", LineLength, INSIDE, ARC_NO_HIT},
                    ArcEdge{"LineLongEnough", LineLength, ON, ARC_ONE_HIT},
                    ArcEdge{"LineOfSomeLength", LineLength, 1.0, ARC_TWO_HITS},
                    ArcEdge{"CrossingByALittle", Tangency, 0.000101, ARC_TWO_HITS},
                    ArcEdge{"TangentFromInside", Tangency, 0.000099, ARC_ONE_HIT},
                    ArcEdge{"TangentFromOutside", Tangency, -0.000099, ARC_ONE_HIT},
                    ArcEdge{"PassingByALittle", Tangency, -0.000101, ARC_NO_HIT},
                    ArcEdge{"ApartInside", Gap, 0.000099, ARC_ONE_HIT},
                    ArcEdge{"ApartOutside", Gap, 0.000101, ARC_NO_HIT},
                    ArcEdge{"OverlapInside", Gap, -0.00019, ARC_ONE_HIT},
                    ArcEdge{"OverlapOutside", Gap, -0.00021, ARC_TWO_HITS},
                    ArcEdge{"WithinInside", Inside, 0.00006, ARC_ONE_HIT},
                    ArcEdge{"WithinOutside", Inside, 0.000101, ARC_NO_HIT},
                    ArcEdge{"SameCentreInside", CentreDistance, 0.000099, ARC_SAME_CIRCLE},
                    ArcEdge{"SameCentreOutside", CentreDistance, 0.000101, ARC_TWO_HITS},
                    ArcEdge{"SameRadiusInside", RadiusDifference, 0.000099, ARC_SAME_CIRCLE},
                    ArcEdge{"SameRadiusOutside", RadiusDifference, 0.000101, ARC_NO_HIT}),
    CaseName<ArcEdge>);

// An arc by its centre, radius, start and sweep, which is negative when it runs clockwise.
struct RandomArc {
  Vec3 centre;
  double radius;
  double sweep;
  Vec3 p[3];

  RandomArc(Random& random, double reach) : centre(random.Point(reach)) {
    centre.z = 0;
    radius = random.Uniform(0.5, 20);
    const double from = random.Uniform(-3, 3);
    sweep = random.Uniform(0.3, 6.0) * (random.Whole(0, 1) > 0 ? 1 : -1);
    for (int i = 0; i < 3; ++i)
      p[i] = {centre.x + radius * std::cos(from + sweep * i / 2),
              centre.y + radius * std::sin(from + sweep * i / 2), 0};
  }
};

// The determinant formula of the circumcentre, in extended precision, about the first point.
Long3 Circumcentre(const Vec3& p0, const Vec3& p1, const Vec3& p2) {
  const Long3 b = Long(p1) - Long(p0);
  const Long3 c = Long(p2) - Long(p0);
  const long double d = 2 * (b.x * c.y - b.y * c.x);
  const long double bb = b.x * b.x + b.y * b.y;
  const long double cc = c.x * c.x + c.y * c.y;
  return Long3{(c.y * bb - b.y * cc) / d, (b.x * cc - c.x * bb) / d, 0} + Long3{p0.x, p0.y, 0};
}

// Rounding of den, relative to it, is that of the product of two sides over the turn between them; the centre
// moves by this share of the radius, and the midpoints round by the coordinates' size.
double CentreBound(const RandomArc& arc, double reach) {
  const double turn = std::abs(std::sin(arc.sweep / 4));
  return 32 * U * (arc.radius + reach) / turn / turn;
}

class ArcProperties : public testing::TestWithParam<double> {};

TEST_P(ArcProperties, CentreAgreesWithTheDeterminantFormula) {
  Random random(71);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Arc fitted(arc.p[0], arc.p[1], arc.p[2]);
    ASSERT_EQ(fitted.result, ARC_FOUND);
    EXPECT_LE(Difference(fitted.centre, Circumcentre(arc.p[0], arc.p[1], arc.p[2])),
              CentreBound(arc, GetParam()));
    EXPECT_NEAR(fitted.radius, arc.radius, CentreBound(arc, GetParam()));
    EXPECT_EQ(fitted.counterClockwise, arc.sweep > 0 ? 1 : 0);
  }
}

TEST_P(ArcProperties, ReversedArcHasTheSameCircleTheOtherWay) {
  Random random(72);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Arc there(arc.p[0], arc.p[1], arc.p[2]);
    const Arc back(arc.p[2], arc.p[1], arc.p[0]);
    EXPECT_THAT(back.centre, IsNear(there.centre, 2 * CentreBound(arc, GetParam())));
    EXPECT_EQ(back.counterClockwise, 1 - there.counterClockwise);
  }
}

// Angles round by u and the point by u of the coordinates, seen under the radius; a fraction divides by the
// sweep and carries at most a turn of it.
double FractionBound(const RandomArc& arc, double reach) {
  return 32 * U * (1 + reach / arc.radius) * 7 / std::abs(arc.sweep);
}

TEST_P(ArcProperties, PointAndFractionAreInverse) {
  Random random(73);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const int counterClockwise = arc.sweep > 0 ? 1 : 0;
    const double fraction = random.Uniform(0.01, 0.99);
    const Vec3 point = PointAt(arc.p[0], arc.p[2], arc.centre, fraction, counterClockwise);
    EXPECT_NEAR(ArcFractionAt(arc.p[0], arc.p[2], arc.centre, counterClockwise, point), fraction,
                FractionBound(arc, GetParam()));
    const double distance = std::hypot(point.x - arc.centre.x, point.y - arc.centre.y);
    EXPECT_NEAR(distance, arc.radius, 8 * U * (GetParam() + arc.radius));
  }
}

TEST_P(ArcProperties, MiddlePointHasHalfTheFraction) {
  Random random(74);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    EXPECT_NEAR(ArcFractionAt(arc.p[0], arc.p[2], arc.centre, arc.sweep > 0 ? 1 : 0, arc.p[1]), 0.5,
                FractionBound(arc, GetParam()));
  }
}

// The second derivation turns with complex quotients instead of differences of angles.
TEST_P(ArcProperties, FractionIsTheQuotientOfTheTurns) {
  Random random(75);
  using Complex = std::complex<long double>;
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Vec3 q{arc.centre.x + random.Uniform(-30, 30), arc.centre.y + random.Uniform(-30, 30), 0};
    const auto arm = [&](const Vec3& p) { return Complex(p.x - arc.centre.x, p.y - arc.centre.y); };
    const auto turn = [&](const Vec3& p) {
      const Complex quotient = arc.sweep > 0 ? arm(p) / arm(arc.p[0]) : arm(arc.p[0]) / arm(p);
      const long double angle = std::arg(quotient);
      return static_cast<double>(angle < 0 ? angle + 2 * 3.14159265358979323846L : angle);
    };
    if (turn(q) < 1e-6 || turn(q) > TWO_PI - 1e-6) continue;
    EXPECT_NEAR(ArcFractionAt(arc.p[0], arc.p[2], arc.centre, arc.sweep > 0 ? 1 : 0, q),
                turn(q) / turn(arc.p[2]), FractionBound(arc, 0));
  }
}

TEST_P(ArcProperties, LineHitsLieOnBothCurves) {
  Random random(76);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Vec3 p0{arc.centre.x + random.Uniform(-40, 40), arc.centre.y + random.Uniform(-40, 40), 1};
    const Vec3 p1{arc.centre.x + random.Uniform(-40, 40), arc.centre.y + random.Uniform(-40, 40), 5};
    const LineHits hits(p0, p1, arc.p[0], arc.p[2], arc.p[1]);
    if (hits.count != ARC_TWO_HITS) continue;
    EXPECT_LT(hits.t[0], hits.t[1]);
    // The quadratic's terms are squares of the reach of 120 over the radius; the hit rounds by its place.
    const double bound =
        64 * U * (120.0 * 120.0 / arc.radius * (1 + 40 / std::hypot(p1.x - p0.x, p1.y - p0.y)) + GetParam()) +
        2 * CentreBound(arc, GetParam());
    for (const Vec3& hit : hits.hit) {
      const Long3 d = Long(p1) - Long(p0);
      const Long3 w = Long(hit) - Long(p0);
      EXPECT_NEAR(static_cast<double>(Length(Cross(d, w)) / Length(d)), 0, bound);
      const Long3 arm = Long(hit) - Long(hits.centre);
      EXPECT_NEAR(static_cast<double>(std::hypot(arm.x, arm.y)), arc.radius, bound);
    }
  }
}

TEST_P(ArcProperties, ReversedLineExchangesTheHits) {
  Random random(77);
  for (int i = 0; i < 5000; ++i) {
    const RandomArc arc(random, GetParam());
    const Vec3 p0{arc.centre.x + random.Uniform(-40, 40), arc.centre.y + random.Uniform(-40, 40), 1};
    const Vec3 p1{arc.centre.x + random.Uniform(-40, 40), arc.centre.y + random.Uniform(-40, 40), 5};
    const LineHits hits(p0, p1, arc.p[0], arc.p[2], arc.p[1]);
    const LineHits back(p1, p0, arc.p[0], arc.p[2], arc.p[1]);
    ASSERT_EQ(hits.count, back.count);
    // Not tangent, so sqrt(disc) is above 0.007 and the terms of disc, below 1e9, round by u of them.
    if (hits.count != ARC_TWO_HITS) continue;
    EXPECT_NEAR(back.t[0], 1 - hits.t[1], 1e-3 * (1 + std::abs(hits.t[1])));
  }
}

TEST_P(ArcProperties, ArcHitsLieOnBothCirclesAndSwapWithTheArcs) {
  Random random(78);
  int crossings = 0;
  for (int i = 0; i < 5000; ++i) {
    const RandomArc a(random, GetParam());
    RandomArc b(random, 0);
    const Vec3 shift{a.centre.x + random.Uniform(-20, 20), a.centre.y + random.Uniform(-20, 20), 0};
    for (Vec3& p : b.p)
      VecAdd(p, shift, p);
    const ArcHits hits(a.p, b.p);
    const ArcHits swapped(b.p, a.p);
    ASSERT_EQ(hits.count, swapped.count);
    const double distance =
        std::hypot(hits.centre[0].x - hits.centre[1].x, hits.centre[0].y - hits.centre[1].y);
    if (hits.count != ARC_TWO_HITS || distance < 0.1) continue;
    ++crossings;
    const double round = 2 * CentreBound(a, GetParam()) + 2 * CentreBound(b, GetParam());
    const double size = a.radius + b.radius + distance;
    // The foot's place is a difference of squares over the distance; both radii see it.
    const double bound = (64 * U * size + round) * size / distance * size / std::min(a.radius, b.radius);
    for (const Vec3& hit : hits.hit) {
      EXPECT_NEAR(std::hypot(hit.x - hits.centre[0].x, hit.y - hits.centre[0].y), a.radius, bound);
      EXPECT_NEAR(std::hypot(hit.x - hits.centre[1].x, hit.y - hits.centre[1].y), b.radius, bound);
    }
    // Across the line of the centres the half chord is a root: near touching it loses half of the digits.
    const double across = std::sqrt(bound * size) + bound;
    EXPECT_THAT(swapped.hit[1], IsNear(hits.hit[0], across));
    EXPECT_THAT(swapped.hit[0], IsNear(hits.hit[1], across));
  }
  EXPECT_GT(crossings, 1000);
}

INSTANTIATE_TEST_SUITE_P(Reach, ArcProperties, testing::Values(0.0, 1000.0, 5e8));

}  // namespace
}  // namespace geometry
