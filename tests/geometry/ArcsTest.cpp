// ArcsTest.cpp - circular arcs in the plan and their intersections.
#include <cmath>

#include <gtest/gtest.h>

#include "geometry/Arcs.h"
#include "geometry/Trigonometry.h"
#include "tests/geometry/ArcCalls.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

constexpr Vec3 O{0, 0, 0};
constexpr Vec3 EAST{1, 0, 0};
constexpr Vec3 NORTH{0, 1, 0};
constexpr Vec3 WEST{-1, 0, 0};
constexpr Vec3 SOUTH{0, -1, 0};

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

TEST(ArcFractionAt, ShortSweepAcrossTheCutIsNoFullCircle) {
  // The atan2 of the ends differ by almost a full turn, so the sweep of 2e-6 is not refused.
  EXPECT_NEAR(ArcFractionAt({-1, 1e-6, 0}, {-1, -1e-6, 0}, O, 1, WEST), 0.5, 1e-9);
}

TEST(ArcFractionAt, ArmsAreMeasuredInThePlan) {
  EXPECT_EQ(ArcFractionAt({0, 0, 50}, WEST, O, 1, NORTH), 0.0);
  EXPECT_EQ(ArcFractionAt(EAST, {0, 0, 50}, O, 1, NORTH), 0.0);
  EXPECT_EQ(ArcFractionAt(SOUTH, WEST, O, 1, {0, 0, 50}), 0.0);
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

TEST(ArcPointAt, NotANumberComesOut) {
  EXPECT_TRUE(std::isnan(PointAt(EAST, WEST, O, NOT_A_NUMBER, 1).x));
  EXPECT_TRUE(std::isnan(PointAt(EAST, WEST, O, INF, 1).x));
}

TEST(ArcPointAt, OutputMayBeAnInput) {
  Vec3 centre = O;
  ArcPointAt(EAST, WEST, centre, 0.5, 1, centre);
  EXPECT_THAT(centre, IsNear(NORTH, U));
  Vec3 start = EAST;
  ArcPointAt(start, WEST, O, 0.5, 1, start);
  EXPECT_THAT(start, IsNear(NORTH, U));
}

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

TEST(LineArcIntersect, FractionsFollowAClockwiseArc) {
  const LineHits hits({0, -5, 0}, {0, -4, 0}, WEST, EAST, NORTH);
  EXPECT_EQ(hits.counterClockwise, 0);
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

TEST(ArcArcIntersect, FractionsFollowEachArcsOwnDirection) {
  // The crossing circles above, one arc after the other turned round.
  const UpperHalf a(0, 0, 5);
  const UpperHalf b(6, 0, 5);
  const double share = std::atan2(4, 3) / PI;
  const ArcHits turnedB(a.points, {b.points[2], b.points[1], b.points[0]});
  EXPECT_EQ(turnedB.counterClockwise[0], 1);
  EXPECT_EQ(turnedB.counterClockwise[1], 0);
  EXPECT_NEAR(turnedB.fractionA[0], share, 4 * U);
  EXPECT_NEAR(turnedB.fractionB[0], share, 4 * U);
  EXPECT_NEAR(turnedB.fractionB[1], 2 - share, 4 * U);
  const ArcHits turnedA({a.points[2], a.points[1], a.points[0]}, b.points);
  EXPECT_EQ(turnedA.counterClockwise[0], 0);
  EXPECT_NEAR(turnedA.fractionA[0], 1 - share, 4 * U);
  EXPECT_NEAR(turnedA.fractionA[1], 1 + share, 4 * U);
  EXPECT_NEAR(turnedA.fractionB[1], 1 + share, 4 * U);
}

TEST(ArcArcIntersect, NotANumberAndInfinityGiveHitsThatAreNone) {
  for (const double place : {NOT_A_NUMBER, INF}) {
    const ArcHits hits = Circles(0, 1, place, 1);
    EXPECT_EQ(hits.count, ARC_TWO_HITS);
    EXPECT_TRUE(std::isnan(hits.hit[0].x));
  }
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
int Apart(double distance) {
  return Circles(0, 1, distance, 1).count;
}
// Circles as small as the tolerance, whose centres and radii come out to the last bit. The small one of the
// next lies inside the large one by 4 d - (2 d + d).
int WithinBy(double d) {
  return Circles(0, 4 * d, 2 * d, d).count;
}
int RadiiApart(double d) {
  return Circles(0, d, 0, 2 * d).count;
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
                    ArcEdge{"ApartJustInside", Apart, std::nextafter(2.0001, 0.0), ARC_ONE_HIT},
                    ArcEdge{"ApartOn", Apart, 2.0001, ARC_ONE_HIT},
                    ArcEdge{"ApartJustOutside", Apart, std::nextafter(2.0001, 3.0), ARC_NO_HIT},
                    ArcEdge{"WithinJustInside", WithinBy, INSIDE, ARC_TWO_HITS},
                    ArcEdge{"WithinOn", WithinBy, ON, ARC_TWO_HITS},
                    ArcEdge{"WithinJustOutside", WithinBy, OUTSIDE, ARC_NO_HIT},
                    ArcEdge{"RadiiJustInside", RadiiApart, INSIDE, ARC_SAME_CIRCLE},
                    ArcEdge{"RadiiOn", RadiiApart, ON, ARC_TWO_HITS},
                    ArcEdge{"RadiiJustOutside", RadiiApart, OUTSIDE, ARC_NO_HIT},
                    ArcEdge{"WithinInside", Inside, 0.00006, ARC_ONE_HIT},
                    ArcEdge{"WithinOutside", Inside, 0.000101, ARC_NO_HIT},
                    ArcEdge{"SameCentreInside", CentreDistance, 0.000099, ARC_SAME_CIRCLE},
                    ArcEdge{"SameCentreOutside", CentreDistance, 0.000101, ARC_TWO_HITS},
                    ArcEdge{"SameRadiusInside", RadiusDifference, 0.000099, ARC_SAME_CIRCLE},
                    ArcEdge{"SameRadiusOutside", RadiusDifference, 0.000101, ARC_NO_HIT}),
    CaseName<ArcEdge>);

}  // namespace
}  // namespace geometry
