// IntersectionsTest.cpp - elementary intersections, distances and incidence tests.
#include <cmath>

#include <gtest/gtest.h>

#include "geometry/Intersections.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

const Vec3 UNTOUCHED{7, 8, 9};

struct LineLine {
  Vec3 point = UNTOUCHED;
  double t = 70;
  double u = 80;
  int result = 0;

  LineLine(const Vec3& p0, const Vec3& p1, const Vec3& p2, const Vec3& p3) {
    result = LineLineXY(p0, p1, p2, p3, point, t, u);
  }
};

TEST(LineLineXY, CrossingLinesMeetAtHeightZero) {
  const LineLine hit({0, 0, 5}, {10, 0, 5}, {4, -1, 6}, {4, 3, 6});
  EXPECT_EQ(hit.result, INTERSECT_POINT);
  EXPECT_EQ(hit.point, (Vec3{4, 0, 0}));
  EXPECT_EQ(hit.t, 0.4);
  EXPECT_EQ(hit.u, 0.25);
}

TEST(LineLineXY, CollinearLinesCoincide) {
  const LineLine hit({0, 0, 0}, {1, 1, 0}, {5, 5, 0}, {7, 7, 0});
  EXPECT_EQ(hit.result, INTERSECT_CONTAINED);
  EXPECT_EQ(hit.point, UNTOUCHED);
  EXPECT_EQ(hit.t, 70);
  EXPECT_EQ(hit.u, 80);
}

TEST(LineLineXY, ParallelLinesDoNotMeet) {
  const LineLine hit({0, 0, 0}, {10, 0, 0}, {0, 1, 0}, {10, 1, 0});
  EXPECT_EQ(hit.result, INTERSECT_PARALLEL);
  EXPECT_EQ(hit.point, UNTOUCHED);
}

TEST(LineLineXY, ParallelLinesCoincideOnlyWhenBothOffsetsAreBelowTheTolerance) {
  // The same gap of 1e-6, measured against vectors of the lengths 1 and 1000.
  EXPECT_EQ(LineLine({0, 0, 0}, {1000, 0, 0}, {0, 1e-6, 0}, {1, 1e-6, 0}).result, INTERSECT_PARALLEL);
  EXPECT_EQ(LineLine({0, 0, 0}, {1, 0, 0}, {0, 1e-6, 0}, {1000, 1e-6, 0}).result, INTERSECT_PARALLEL);
}

TEST(LineLineXY, PointMayBeAnInput) {
  Vec3 p0{0, 0, 0};
  double t = 0;
  double u = 0;
  EXPECT_EQ(LineLineXY(p0, {2, 2, 0}, {0, 2, 0}, {2, 0, 0}, p0, t, u), INTERSECT_POINT);
  EXPECT_EQ(p0, (Vec3{1, 1, 0}));
}

TEST(LineLineXY, NotANumberGivesAPointThatIsNone) {
  const LineLine hit({NOT_A_NUMBER, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 2, 0});
  EXPECT_EQ(hit.result, INTERSECT_POINT);
  EXPECT_TRUE(std::isnan(hit.point.x));
}

TEST(PointOnPlane3, PointOfThePlaneAndPointAbove) {
  EXPECT_EQ(PointOnPlane3({0, 0, 1}, {1, 0, 1}, {0, 1, 1}, {50, -20, 1}), 1);
  EXPECT_EQ(PointOnPlane3({0, 0, 1}, {1, 0, 1}, {0, 1, 1}, {50, -20, 2}), 0);
}

TEST(PointOnPlane3, LargeTriangleIsStricter) {
  // The same height above, but a normal a million times as long.
  EXPECT_EQ(PointOnPlane3({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1e-6}), 1);
  EXPECT_EQ(PointOnPlane3({0, 0, 0}, {1000, 0, 0}, {0, 1000, 0}, {0, 0, 1e-6}), 0);
}

TEST(PointOnPlane3, DegenerateTriangleHoldsEveryPoint) {
  EXPECT_EQ(PointOnPlane3({0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {5, 6, 7}), 1);
}

TEST(PointOnSegment, MiddleIsOn) {
  EXPECT_EQ(PointOnSegment({0, 0, 0}, {10, 0, 0}, {5, 0, 0}), 1);
}

TEST(PointOnSegment, ExtensionIsOutsideAndOffTheLineIsOff) {
  EXPECT_EQ(PointOnSegment({0, 0, 0}, {10, 0, 0}, {11, 0, 0}), 2);
  EXPECT_EQ(PointOnSegment({0, 0, 0}, {10, 0, 0}, {-1, 0, 0}), 2);
  EXPECT_EQ(PointOnSegment({0, 0, 0}, {10, 0, 0}, {5, 1, 0}), 0);
  EXPECT_EQ(PointOnSegment({0, 0, 0}, {10, 0, 0}, {5, 0, 1}), 0);
}

TEST(PointOnSegment, StartCountsAsOutsideButEndAsOn) {
  EXPECT_EQ(PointOnSegment({0, 0, 0}, {10, 0, 0}, {0, 0, 0}), 2);
  EXPECT_EQ(PointOnSegment({0, 0, 0}, {10, 0, 0}, {10, 0, 0}), 1);
}

TEST(PointOnSegment, SegmentOfNoLengthHoldsNothing) {
  EXPECT_EQ(PointOnSegment({0, 0, 0}, {0, 0, 0}, {0, 0, 0}), 2);
}

TEST(PointLineDistance, IsMeasuredFromTheEndlessLine) {
  double distance = 0;
  EXPECT_EQ(PointLineDistance({0, 0, 0}, {1, 0, 0}, {50, 3, 4}, distance), STATUS_NORMAL);
  EXPECT_EQ(distance, 5.0);
  EXPECT_EQ(STATUS_NORMAL, 5100);
}

TEST(PointLineDistance, NearPointsAreRefusedByTheirSquaredDistance) {
  double distance = 70;
  EXPECT_EQ(PointLineDistance({0, 0, 0}, {0.005, 0, 0}, {0, 1, 0}, distance), STATUS_ERROR);
  EXPECT_EQ(STATUS_ERROR, -5001);
  EXPECT_EQ(distance, 70);
}

TEST(LinePlane, MeetsAtT) {
  double t = 0;
  EXPECT_EQ(LinePlane({0, 0, 10}, {0, 0, -2}, {5, 5, 4}, {0, 0, 3}, t), INTERSECT_POINT);
  EXPECT_EQ(t, 3.0);
}

TEST(LinePlane, ParallelLineLiesInThePlaneOrBesideIt) {
  double t = 70;
  EXPECT_EQ(LinePlane({3, 4, 4}, {1, 0, 0}, {5, 5, 4}, {0, 0, 1}, t), INTERSECT_CONTAINED);
  EXPECT_EQ(LinePlane({3, 4, 5}, {1, 0, 0}, {5, 5, 4}, {0, 0, 1}, t), INTERSECT_PARALLEL);
  EXPECT_EQ(t, 70);
}

TEST(PlanePlane, CommonLineOfTwoRoofs) {
  Vec3 point{};
  Vec3 direction{};
  EXPECT_EQ(PlanePlane({0, 0, 0}, {0, -1, 1}, {0, 10, 0}, {0, 1, 1}, point, direction), 0);
  EXPECT_EQ(direction, (Vec3{-2, 0, 0}));
  EXPECT_EQ(point, (Vec3{0, 5, 5}));
}

TEST(PlanePlane, ParallelPlanesFailWithTheirDirectionWritten) {
  Vec3 point = UNTOUCHED;
  Vec3 direction = UNTOUCHED;
  EXPECT_EQ(PlanePlane({0, 0, 0}, {0, 0, 1}, {0, 0, 5}, {0, 0, 2}, point, direction), -1);
  EXPECT_EQ(point, UNTOUCHED);
  EXPECT_EQ(direction, (Vec3{0, 0, 0}));
}

TEST(PlanePlane, ShortNormalsCrossButNoPointIsFound) {
  // n0 x n1 is 1.2e-4 long, but n0 x direction stands on n1 with 1.2e-4 times that.
  Vec3 point = UNTOUCHED;
  Vec3 direction{};
  EXPECT_EQ(PlanePlane({0, 0, 0}, {0.01, 0, 0}, {0, 1, 0}, {0, 0.012, 0}, point, direction), -1);
  EXPECT_GT(VecLength(direction), KernelTolerance);
  EXPECT_EQ(point, UNTOUCHED);
}

TEST(PlanePlane, OutputsMayBeInputs) {
  Vec3 p0{0, 0, 0};
  Vec3 n0{0, -1, 1};
  EXPECT_EQ(PlanePlane(p0, n0, {0, 10, 0}, {0, 1, 1}, p0, n0), 0);
  EXPECT_EQ(n0, (Vec3{-2, 0, 0}));
  EXPECT_EQ(p0, (Vec3{0, 5, 5}));
}

TEST(Intersections, NotANumberIsNotRefused) {
  double distance = 0;
  Vec3 point{};
  Vec3 direction{};
  EXPECT_EQ(PointOnPlane3({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {NOT_A_NUMBER, 0, 0}), 0);
  EXPECT_EQ(PointOnSegment({0, 0, 0}, {10, 0, 0}, {NOT_A_NUMBER, 0, 0}), 2);
  EXPECT_EQ(PointLineDistance({NOT_A_NUMBER, 0, 0}, {1, 0, 0}, {0, 1, 0}, distance), STATUS_NORMAL);
  EXPECT_TRUE(std::isnan(distance));
  EXPECT_EQ(PlanePlane({0, 0, 0}, {NOT_A_NUMBER, 0, 1}, {0, 0, 5}, {0, 1, 1}, point, direction), 0);
  EXPECT_TRUE(std::isnan(point.x));
}

TEST(Intersections, FarFromTheOriginWholeNumbersStayExact) {
  // 500 km in millimetres.
  constexpr double reach = 5e8;
  const LineLine hit({reach, reach, 0}, {reach + 10, reach, 0}, {reach + 4, reach - 1, 0},
                     {reach + 4, reach + 3, 0});
  EXPECT_EQ(hit.point, (Vec3{reach + 4, reach, 0}));
  double distance = 0;
  EXPECT_EQ(PointLineDistance({reach, reach, 0}, {reach + 1, reach, 0}, {reach + 50, reach + 3, 4}, distance),
            STATUS_NORMAL);
  EXPECT_EQ(distance, 5.0);
  EXPECT_EQ(PointOnSegment({reach, reach, 0}, {reach + 10, reach, 0}, {reach + 5, reach, 0}), 1);
  Vec3 point{};
  Vec3 direction{};
  EXPECT_EQ(PlanePlane({reach, reach, 0}, {0, -1, 1}, {reach, reach + 10, 0}, {0, 1, 1}, point, direction),
            0);
  EXPECT_EQ(point, (Vec3{reach, reach + 5, 5}));
}

// One table for every tolerance of this file: the size that the test compares, and what comes out.
struct EdgeCase {
  const char* name;
  int (*classify)(double);
  double size;
  int expected;
};

void PrintTo(const EdgeCase& c, std::ostream* out) {
  *out << c.name << " at " << c.size;
}

// The lines' cross product is d; they have their starts in common, so parallel ones coincide.
int Denominator(double d) {
  return LineLine({0, 0, 0}, {1, 0, 0}, {0, 0, 0}, {1, d, 0}).result;
}
// Parallel lines whose offset's cross product is d.
int Offset(double d) {
  return LineLine({0, 0, 0}, {1, 0, 0}, {0, d, 0}, {1, d, 0}).result;
}
int Height(double d) {
  return PointOnPlane3({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, d});
}
int SegmentLength(double d) {
  return PointOnSegment({0, 0, 0}, {d, 0, 0}, {0.00005, 0.00009, 0});
}
int DistanceFromStart(double d) {
  return PointOnSegment({0, 0, 0}, {1, 0, 0}, {d, 0, 0});
}
// Seen from the start, c lies off the direction of the segment by the angle d.
int Sine(double d) {
  return PointOnSegment({0, 0, 0}, {1, 0, 0}, {0.5, 0.5 * std::tan(d), 0});
}
int BeyondEnd(double d) {
  return PointOnSegment({0, 0, 0}, {1, 0, 0}, {1 + d, 0, 0});
}
int SquaredLength(double d) {
  double distance = 0;
  return PointLineDistance({0, 0, 0}, {d, 0, 0}, {1, 1, 1}, distance);
}
int Descent(double d) {
  double t = 0;
  return LinePlane({0, 0, 9}, {1, 0, d}, {0, 0, 0}, {0, 0, 1}, t);
}
int Gap(double d) {
  double t = 0;
  return LinePlane({0, 0, d}, {1, 0, 0}, {0, 0, 0}, {0, 0, 1}, t);
}
// The normals' cross product is d long. The first plane's direction across the line then meets the second
// normal with d squared, and it is this that falls below the tolerance first.
int Dihedral(double d) {
  Vec3 point{};
  Vec3 direction{};
  return PlanePlane({0, 0, 0}, {0, 0, 1}, {0, 0, 5}, {d, 0, 1}, point, direction);
}

class IntersectionTolerance : public testing::TestWithParam<EdgeCase> {};

TEST_P(IntersectionTolerance, Classifies) {
  EXPECT_EQ(GetParam().classify(GetParam().size), GetParam().expected);
}

const double ROOT_INSIDE = std::nextafter(0.01, 0.0);

INSTANTIATE_TEST_SUITE_P(
    LineLine, IntersectionTolerance,
    testing::Values(EdgeCase{"DenominatorInside", Denominator, INSIDE, INTERSECT_CONTAINED},
                    EdgeCase{"DenominatorOn", Denominator, ON, INTERSECT_POINT},
                    EdgeCase{"DenominatorOutside", Denominator, OUTSIDE, INTERSECT_POINT},
                    EdgeCase{"OffsetInside", Offset, INSIDE, INTERSECT_CONTAINED},
                    EdgeCase{"OffsetOn", Offset, ON, INTERSECT_PARALLEL},
                    EdgeCase{"OffsetOutside", Offset, OUTSIDE, INTERSECT_PARALLEL}),
    CaseName<EdgeCase>);

INSTANTIATE_TEST_SUITE_P(Incidence, IntersectionTolerance,
                         testing::Values(EdgeCase{"HeightInside", Height, INSIDE, 1},
                                         EdgeCase{"HeightOn", Height, ON, 0},
                                         EdgeCase{"HeightOutside", Height, OUTSIDE, 0},
                                         EdgeCase{"HeightBelowInside", Height, -INSIDE, 1},
                                         EdgeCase{"SegmentTooShort", SegmentLength, INSIDE, 2},
                                         EdgeCase{"SegmentLongEnough", SegmentLength, ON, 0},
                                         EdgeCase{"StartInside", DistanceFromStart, INSIDE, 2},
                                         EdgeCase{"StartOn", DistanceFromStart, ON, 1},
                                         EdgeCase{"SineInside", Sine, 0.0000999999, 1},
                                         EdgeCase{"SineOutside", Sine, 0.0001000001, 0},
                                         EdgeCase{"EndInside", BeyondEnd, 0.000049, 1},
                                         EdgeCase{"EndOutside", BeyondEnd, 0.000051, 2}),
                         CaseName<EdgeCase>);

INSTANTIATE_TEST_SUITE_P(Planes, IntersectionTolerance,
                         testing::Values(EdgeCase{"SquareInside", SquaredLength, ROOT_INSIDE, STATUS_ERROR},
                                         EdgeCase{"SquareOn", SquaredLength, 0.01, STATUS_NORMAL},
                                         EdgeCase{"DescentInside", Descent, INSIDE, INTERSECT_PARALLEL},
                                         EdgeCase{"DescentOn", Descent, ON, INTERSECT_POINT},
                                         EdgeCase{"DescentOutside", Descent, OUTSIDE, INTERSECT_POINT},
                                         EdgeCase{"GapInside", Gap, INSIDE, INTERSECT_CONTAINED},
                                         EdgeCase{"GapOn", Gap, ON, INTERSECT_PARALLEL},
                                         EdgeCase{"DihedralInside", Dihedral, ROOT_INSIDE, -1},
                                         EdgeCase{"DihedralOn", Dihedral, 0.01, 0},
                                         EdgeCase{"DihedralOutside", Dihedral, 0.0101, 0}),
                         CaseName<EdgeCase>);

// The second derivation: the lines as homogeneous triples, whose cross product is the common point.
TEST(IntersectionProperties, LinesMeetWhereTheirHomogeneousTriplesDo) {
  Random random(11);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 p[4] = {random.WholePoint(1000), random.WholePoint(1000), random.WholePoint(1000),
                       random.WholePoint(1000)};
    const LineLine hit(p[0], p[1], p[2], p[3]);
    if (hit.result != INTERSECT_POINT) continue;
    const Long3 line1 = Cross({p[0].x, p[0].y, 1}, {p[1].x, p[1].y, 1});
    const Long3 line2 = Cross({p[2].x, p[2].y, 1}, {p[3].x, p[3].y, 1});
    const Long3 common = Cross(line1, line2);
    const Long3 expected{common.x / common.z, common.y / common.z, 0};
    // Differences and cross products are exact here; the quotient, the product and the sum round.
    const double reach = 1000 + std::abs(hit.t) * 3000;
    EXPECT_LE(Difference(hit.point, expected), 3 * U * reach);
  }
}

TEST(IntersectionProperties, SymmetricCallsGiveTheSamePoint) {
  Random random(12);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 p[4] = {random.Point(1000), random.Point(1000), random.Point(1000), random.Point(1000)};
    const LineLine hit(p[0], p[1], p[2], p[3]);
    const LineLine back(p[2], p[3], p[0], p[1]);
    ASSERT_EQ(hit.result, back.result);
    // Errors of den and nt, of the size of the products, over den.
    const double den =
        std::abs((p[3].x - p[2].x) * (p[1].y - p[0].y) - (p[1].x - p[0].x) * (p[3].y - p[2].y));
    const double bound = 64 * U * 3000 * (1 + 3000.0 * 3000.0 / den);
    EXPECT_THAT(hit.point, IsNear(back.point, bound));
    EXPECT_NEAR(hit.t, back.u, bound);
  }
}

TEST(IntersectionProperties, DistanceIsTheHeightOfTheParallelogram) {
  Random random(13);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 p0 = random.Point(1000);
    const Vec3 p1 = random.Point(1000);
    const Vec3 q = random.Point(1000);
    double distance = 0;
    ASSERT_EQ(PointLineDistance(p0, p1, q, distance), STATUS_NORMAL);
    const Long3 d = Long(p1) - Long(p0);
    const Long3 w = Long(q) - Long(p0);
    // The foot is found within some roundings of the size of the operands.
    const long double expected = Length(Cross(d, w)) / Length(d);
    EXPECT_LE(std::abs(distance - static_cast<double>(expected)),
              16 * U * (4000 + static_cast<double>(Length(w))));
  }
}

TEST(IntersectionProperties, PointOfLineAndPlaneLiesInThePlane) {
  Random random(14);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 p = random.Point(5e8);
    const Vec3 direction = random.Point(1);
    const Vec3 planePoint = random.Point(5e8);
    const Vec3 normal = random.Point(1);
    double t = 0;
    if (LinePlane(p, direction, planePoint, normal, t) != INTERSECT_POINT) continue;
    const Long3 hit = Long(p) + Long(direction) * t;
    const long double height = Dot(hit - Long(planePoint), Long(normal));
    // num is a difference of two dot products of this size; t carries a relative rounding more.
    const double bound = 16 * U * (3 * 5e8 + std::abs(t));
    EXPECT_LE(std::abs(static_cast<double>(height)), bound);
  }
}

TEST(IntersectionProperties, CommonLineLiesInBothPlanes) {
  Random random(15);
  for (int i = 0; i < 10000; ++i) {
    const Vec3 p0 = random.Point(1000);
    const Vec3 n0 = random.Point(1);
    const Vec3 p1 = random.Point(1000);
    const Vec3 n1 = random.Point(1);
    Vec3 point{};
    Vec3 direction{};
    if (PlanePlane(p0, n0, p1, n1, point, direction) != 0) continue;
    const double sine = VecLength(direction) / VecLength(n0) / VecLength(n1);
    const double bound = 256 * U * 4000 / sine / sine;
    const Long3 unit0 = Long(n0) * (1 / Length(Long(n0)));
    const Long3 unit1 = Long(n1) * (1 / Length(Long(n1)));
    EXPECT_LE(std::abs(static_cast<double>(Dot(Long(point) - Long(p0), unit0))), bound);
    EXPECT_LE(std::abs(static_cast<double>(Dot(Long(point) - Long(p1), unit1))), bound);
    EXPECT_LE(std::abs(VecDot(direction, n0)), 8 * U * 9);
  }
}

}  // namespace
}  // namespace geometry
