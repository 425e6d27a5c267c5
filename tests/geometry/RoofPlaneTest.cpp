// RoofPlaneTest.cpp - the roof-plane fit, its local frame, and intersections with planes.
#include <cmath>

#include <gtest/gtest.h>

#include "geometry/RoofPlane.h"
#include "geometry/Trigonometry.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

const Vec3 UNTOUCHED{7, 8, 9};

// Each test starts with the state of a freshly loaded module.
class RoofFit : public testing::Test {
 protected:
  void SetUp() override { roofPlane = RoofPlane{}; }
};

using ProjectAlongLine = RoofFit;
using HitRoof = RoofFit;
using RoofFrame = RoofFit;

// A roof that rises one in one along +y, through the origin.
int FitRisingAlongY() {
  return FitRoofPlane({0, 0, 0}, {10, 0, 0}, {5, 4, 4}, 1);
}

TEST_F(RoofFit, RisingAlongYTurnsByNothing) {
  EXPECT_EQ(FitRisingAlongY(), 1);
  EXPECT_THAT(roofPlane.normal, IsNear((Vec3{0, -std::sqrt(0.5), std::sqrt(0.5)}), 2 * U));
  EXPECT_EQ(roofPlane.localNormal, roofPlane.normal);
  EXPECT_EQ(roofPlane.worldToLocal, (Matrix4{{{1, 0, 0, -5}, {0, 1, 0, -4}, {0, 0, 1, 0}, {0, 0, 0, 1}}}));
  EXPECT_EQ(roofPlane.localToWorld, (Matrix4{{{1, 0, 0, 5}, {0, 1, 0, 4}, {0, 0, 1, 0}, {0, 0, 0, 1}}}));
}

TEST_F(RoofFit, RisingAlongMinusXTurnsClockwise) {
  // The normal is (0.7071, 0, 0.7071) and the angle -pi/2, so that -x becomes +y.
  EXPECT_EQ(FitRoofPlane({0, 0, 0}, {0, 10, 0}, {-4, 5, 4}, 1), 1);
  EXPECT_THAT(roofPlane.normal, IsNear((Vec3{std::sqrt(0.5), 0, std::sqrt(0.5)}), 2 * U));
  EXPECT_THAT(roofPlane.localNormal, IsNear((Vec3{0, -std::sqrt(0.5), std::sqrt(0.5)}), 4 * U));
  Vec3 uphill{};
  MatTransformVector(roofPlane.worldToLocal, {-1, 0, 1}, uphill);
  EXPECT_THAT(uphill, IsNear((Vec3{0, 1, 1}), 4 * U));
}

TEST_F(RoofFit, HorizontalRoofIsShiftedOnly) {
  EXPECT_EQ(FitRoofPlane({0, 0, 7}, {10, 0, 7}, {3, 4, 7}, 1), 1);
  EXPECT_EQ(roofPlane.normal, (Vec3{0, 0, 1}));
  EXPECT_EQ(roofPlane.worldToLocal, (Matrix4{{{1, 0, 0, -3}, {0, 1, 0, -4}, {0, 0, 1, 0}, {0, 0, 0, 1}}}));
}

TEST_F(RoofFit, EitherDirectionOfPickingGivesTheUpwardNormal) {
  FitRoofPlane({0, 0, 0}, {10, 0, 0}, {5, 4, 4}, 1);
  const Vec3 normal = roofPlane.normal;
  FitRoofPlane({10, 0, 0}, {0, 0, 0}, {5, 4, 4}, 1);
  EXPECT_EQ(roofPlane.normal, normal);
}

TEST_F(RoofFit, FourthCornerRepeatsTheThird) {
  FitRisingAlongY();
  EXPECT_EQ(roofPlane.corners[0], (Vec3{0, 0, 0}));
  EXPECT_EQ(roofPlane.corners[1], (Vec3{10, 0, 0}));
  EXPECT_EQ(roofPlane.corners[2], (Vec3{5, 4, 4}));
  EXPECT_EQ(roofPlane.corners[3], (Vec3{5, 4, 4}));
}

TEST_F(RoofFit, LocalOriginIsTheThirdPointsPlaceAtHeightZero) {
  FitRisingAlongY();
  EXPECT_EQ(roofPlane.localCorners[2], (Vec3{0, 0, 4}));
  EXPECT_EQ(roofPlane.originZ, 0.0);
}

TEST_F(RoofFit, FirstTwoLocalCornersAreOrderedAlongX) {
  FitRoofPlane({10, 0, 0}, {0, 0, 0}, {5, 4, 4}, 1);
  EXPECT_EQ(roofPlane.localCorners[0], (Vec3{-5, -4, 0}));
  EXPECT_EQ(roofPlane.localCorners[1], (Vec3{5, -4, 0}));
}

TEST_F(RoofFit, FourthLocalCornerStaysZeroOnTheFirstFit) {
  // The third local corner is at x = 0, so 0 > 0 exchanges nothing.
  FitRisingAlongY();
  EXPECT_EQ(roofPlane.localCorners[3], (Vec3{0, 0, 0}));
}

TEST_F(RoofFit, FourthLocalCornerIsExchangedWithTheThirdWhenItLiesToTheRight) {
  roofPlane.localCorners[3] = {1, 2, 3};
  FitRisingAlongY();
  EXPECT_EQ(roofPlane.localCorners[2], (Vec3{1, 2, 3}));
  EXPECT_EQ(roofPlane.localCorners[3], (Vec3{0, 0, 4}));
}

TEST_F(RoofFit, UnitFactorHasNoEffect) {
  FitRoofPlane({0, 1, 0}, {10, 0, 3}, {5, 4, 4}, 1);
  const RoofPlane metres = roofPlane;
  roofPlane = RoofPlane{};
  FitRoofPlane({0, 1, 0}, {10, 0, 3}, {5, 4, 4}, 1000);
  EXPECT_EQ(roofPlane.worldToLocal, metres.worldToLocal);
  EXPECT_EQ(roofPlane.localCorners[0], metres.localCorners[0]);
}

TEST_F(RoofFit, IsHorizontalIsResetByEveryFit) {
  roofPlane.isHorizontal = 1;
  EXPECT_EQ(FitRoofPlane({0, 0, 0}, {1, 0, 0}, {2, 0, 0}, 1), 0);
  EXPECT_EQ(roofPlane.isHorizontal, 0);
}

TEST_F(RoofFit, CollinearPointsFailWithTheFrameOfTheLastFit) {
  FitRisingAlongY();
  const RoofPlane before = roofPlane;
  EXPECT_EQ(FitRoofPlane({0, 0, 0}, {1, 1, 1}, {3, 3, 3}, 1), 0);
  EXPECT_EQ(roofPlane.corners[3], (Vec3{3, 3, 3}));
  EXPECT_EQ(roofPlane.normal, (Vec3{0, 0, 0}));
  EXPECT_EQ(roofPlane.worldToLocal, before.worldToLocal);
  EXPECT_EQ(roofPlane.localToWorld, before.localToWorld);
  EXPECT_EQ(roofPlane.localCorners[0], before.localCorners[0]);
}

TEST_F(RoofFit, CoincidentPointsFail) {
  EXPECT_EQ(FitRoofPlane({1, 2, 3}, {1, 2, 3}, {4, 5, 6}, 1), 0);
  EXPECT_EQ(FitRoofPlane({1, 2, 3}, {4, 5, 6}, {1, 2, 3}, 1), 0);
  EXPECT_EQ(FitRoofPlane({1, 2, 3}, {4, 5, 6}, {4, 5, 6}, 1), 0);
}

TEST_F(RoofFit, PointsMayBeTheLastFitsOwnCorners) {
  FitRisingAlongY();
  EXPECT_EQ(FitRoofPlane(roofPlane.corners[2], roofPlane.corners[1], roofPlane.corners[0], 1), 1);
  EXPECT_EQ(roofPlane.corners[0], (Vec3{5, 4, 4}));
  EXPECT_EQ(roofPlane.corners[2], (Vec3{0, 0, 0}));
  EXPECT_EQ(roofPlane.corners[3], (Vec3{0, 0, 0}));
}

TEST_F(RoofFit, NotANumberFails) {
  EXPECT_EQ(FitRoofPlane({NOT_A_NUMBER, 0, 0}, {1, 0, 0}, {0, 1, 0}, 1), 0);
}

TEST_F(RoofFit, InfinityGivesAFrameThatIsNone) {
  EXPECT_EQ(FitRoofPlane({0, 0, 0}, {1e200, 0, 0}, {0, 1e200, 0}, 1), 1);
  EXPECT_TRUE(std::isnan(roofPlane.normal.z));
  EXPECT_EQ(FitRoofPlane({INF, 0, 0}, {1, 0, 0}, {0, 1, 0}, 1), 0);  // inf - inf is no number
}

TEST_F(RoofFit, DenormalTriangleFails) {
  EXPECT_EQ(FitRoofPlane({0, 0, 0}, {DENORMAL, 0, 0}, {0, DENORMAL, 0}, 1), 0);
}

TEST_F(RoofFit, VerticalRoofIsFitted) {
  EXPECT_EQ(FitRoofPlane({0, 0, 0}, {10, 0, 0}, {5, 0, 4}, 1), 1);
  EXPECT_THAT(roofPlane.localNormal, IsNear((Vec3{0, -1, 0}), 2 * U));
}

TEST_F(RoofFit, VerticalRoofKeepsTheNormalOfItsPicks) {
  FitRoofPlane({0, 0, 0}, {10, 0, 0}, {5, 0, 4}, 1);
  EXPECT_EQ(roofPlane.normal, (Vec3{0, -1, 0}));
  FitRoofPlane({10, 0, 0}, {0, 0, 0}, {5, 0, 4}, 1);
  EXPECT_EQ(roofPlane.normal, (Vec3{0, 1, 0}));
}

struct FitEdge {
  const char* name;
  double size;
  int expected;
};

void PrintTo(const FitEdge& c, std::ostream* out) {
  *out << c.name;
}

class FitTolerance : public testing::TestWithParam<FitEdge> {};

TEST_P(FitTolerance, AreaOfTheTriangle) {
  // (p1 - p2) x (p2 - p3) is `size` long.
  EXPECT_EQ(FitRoofPlane({0, 0, 0}, {1, 0, 0}, {1, GetParam().size, 0}, 1), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Edge, FitTolerance,
                         testing::Values(FitEdge{"Inside", INSIDE, 0}, FitEdge{"On", ON, 1},
                                         FitEdge{"Outside", OUTSIDE, 1}),
                         CaseName<FitEdge>);

TEST_F(RoofFit, NormalOfTheFourthAttemptIsRejected) {
  // Far from the origin the products round differently: the first attempt falls below the tolerance, the
  // fourth, (p3 - p1) x (p1 - p2), reaches it.
  const Vec3 p1{0, 0, 0};
  const Vec3 p2{1, 0, 0};
  const Vec3 p3{1 + 1e8, INSIDE, 0};
  EXPECT_EQ(FitRoofPlane(p1, p2, p3, 1), 0);
  EXPECT_EQ(std::abs(roofPlane.normal.z), INSIDE);  // left by the fourth attempt
}

class HorizontalTolerance : public testing::TestWithParam<FitEdge> {};

TEST_P(HorizontalTolerance, SlopeAcrossThePlan) {
  // A roof that falls along +y with this slope: horizontal roofs are not turned, others by half a turn.
  FitRoofPlane({0, 0, 0}, {1, 0, 0}, {0, 1, -GetParam().size}, 1);
  EXPECT_EQ(roofPlane.worldToLocal.m[0][0], GetParam().expected);
}

TEST_P(HorizontalTolerance, SlopeAlongX) {
  // The same along +x: a quarter turn.
  FitRoofPlane({0, 0, 0}, {0, 1, 0}, {1, 0, -GetParam().size}, 1);
  EXPECT_EQ(roofPlane.worldToLocal.m[0][1], GetParam().expected == 1 ? 0.0 : 1.0);
}

// The slope whose unit normal has a horizontal part of exactly 0.0001.
constexpr double SLOPE_ON = 0.0001000000005;

TEST_F(RoofFit, SlopeOnTheToleranceIsThat) {
  FitRoofPlane({0, 0, 0}, {1, 0, 0}, {0, 1, -SLOPE_ON}, 1);
  EXPECT_EQ(roofPlane.normal.y, ON);
}

INSTANTIATE_TEST_SUITE_P(Edge, HorizontalTolerance,
                         testing::Values(FitEdge{"Flat", 0.0, 1}, FitEdge{"Inside", 0.0000999, 1},
                                         FitEdge{"On", SLOPE_ON, -1}, FitEdge{"Outside", 0.0001001, -1}),
                         CaseName<FitEdge>);

TEST_F(RoofFrame, PointsGoToTheWorldAndBack) {
  FitRoofPlane({0, 0, 0}, {0, 10, 0}, {-4, 5, 4}, 1);
  Vec3 p{0, 0, 0};
  RoofToWorld(p, p);
  EXPECT_EQ(p, (Vec3{-4, 5, 0}));
  WorldToRoof(p, p);
  EXPECT_THAT(p, IsNear((Vec3{0, 0, 0}), 1e-15));
}

TEST_F(RoofFrame, TransformByMatrixMayWriteItsInput) {
  Matrix4 m{};
  MatRotationZ(PI / 2, m);
  Vec3 p{1, 2, 3};
  TransformByMatrix(p, m, p);
  EXPECT_THAT(p, IsNear((Vec3{-2, 1, 3}), 4 * U));
}

TEST_F(ProjectAlongLine, MeetsThePlane) {
  Vec3 out{};
  EXPECT_EQ(ProjectAlong({1, 2, 9}, {0, 0, 1}, {0, 0, 0}, {0, -1, 1}, out), 1);
  EXPECT_EQ(out, (Vec3{1, 2, 2}));
}

TEST_F(ProjectAlongLine, ParallelLineAndLineInThePlaneFail) {
  Vec3 out = UNTOUCHED;
  EXPECT_EQ(ProjectAlong({1, 2, 9}, {1, 0, 0}, {0, 0, 0}, {0, 0, 1}, out), 0);
  EXPECT_EQ(ProjectAlong({1, 2, 0}, {1, 0, 0}, {0, 0, 0}, {0, 0, 1}, out), 0);
  EXPECT_EQ(out, UNTOUCHED);
}

TEST_F(ProjectAlongLine, OutputMayBeThePoint) {
  Vec3 p{1, 2, 9};
  EXPECT_EQ(ProjectAlong(p, {0, 1, 0}, {0, 0, 0}, {0, -1, 1}, p), 1);
  EXPECT_EQ(p, (Vec3{1, 9, 9}));
}

TEST_F(HitRoof, TellsAheadFromBehindAndMissing) {
  FitRisingAlongY();
  Vec3 out = UNTOUCHED;
  EXPECT_EQ(HitRoofPlane({0, -4, 5}, {1, 0, 0}, out), HIT_NONE);
  EXPECT_EQ(out, UNTOUCHED);
  EXPECT_EQ(HitRoofPlane({0, -4, 5}, {0, 0, -1}, out), HIT_AHEAD);
  EXPECT_THAT(out, IsNear((Vec3{0, -4, 0}), 1e-14));
  EXPECT_EQ(HitRoofPlane({0, -4, 5}, {0, 0, 1}, out), HIT_BEHIND);
  EXPECT_THAT(out, IsNear((Vec3{0, -4, 0}), 1e-14));
}

TEST_F(HitRoof, LineInTheRoofMissesIt) {
  FitRisingAlongY();
  Vec3 out = UNTOUCHED;
  EXPECT_EQ(HitRoofPlane({0, -4, 0}, {1, 0, 0}, out), HIT_NONE);
  EXPECT_EQ(out, UNTOUCHED);
}

TEST_F(HitRoof, NotANumberCountsAsAhead) {
  FitRisingAlongY();
  Vec3 out{};
  EXPECT_EQ(HitRoofPlane({0, 0, NOT_A_NUMBER}, {0, 0, 1}, out), HIT_AHEAD);
  EXPECT_TRUE(std::isnan(out.z));
}

TEST_F(HitRoof, OutputMayBeThePointOrTheDirection) {
  FitRoofPlane({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 1);
  Vec3 p{1, 2, 8};
  EXPECT_EQ(HitRoofPlane(p, {1, 2, -4}, p), HIT_AHEAD);
  EXPECT_EQ(p, (Vec3{3, 6, 0}));
  Vec3 direction{1, 2, -4};
  EXPECT_EQ(HitRoofPlane({1, 2, 8}, direction, direction), HIT_AHEAD);
  EXPECT_EQ(direction, (Vec3{3, 6, 0}));
}

class HitTolerance : public testing::TestWithParam<FitEdge> {};

TEST_P(HitTolerance, PlaceOnTheLine) {
  // A flat roof at height 0, met at t = size.
  FitRoofPlane({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 1);
  Vec3 out{};
  EXPECT_EQ(HitRoofPlane({0, 0, -GetParam().size}, {0, 0, 1}, out), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Edge, HitTolerance,
                         testing::Values(FitEdge{"WellBehind", -0.001, HIT_BEHIND},
                                         FitEdge{"Outside", -OUTSIDE, HIT_BEHIND},
                                         FitEdge{"On", -ON, HIT_AHEAD},
                                         FitEdge{"Inside", -0.00005, HIT_AHEAD},
                                         FitEdge{"Here", 0.0, HIT_AHEAD}),
                         CaseName<FitEdge>);

TEST(IntersectThreePlanes, MeetInOnePoint) {
  Vec3 out{};
  EXPECT_EQ(IntersectThreePlanes({2, 0, 0}, {3, 9, 9}, {0, 1, 0}, {9, 4, 9}, {0, 0, -1}, {9, 9, 5}, out), 1);
  EXPECT_EQ(out, (Vec3{3, 4, 5}));
}

TEST(IntersectThreePlanes, SingularSystemsFail) {
  const Vec3 origin{0, 0, 0};
  Vec3 out = UNTOUCHED;
  const Vec3 zero{0, 0, 0};
  const Vec3 slanted{0.1, 0.2, 0.3};
  const Vec3 thrice{0.1 * 3, 0.2 * 3, 0.3 * 3};
  EXPECT_EQ(IntersectThreePlanes({1, 0, 0}, origin, {0, 1, 0}, origin, zero, origin, out), 0);
  EXPECT_EQ(IntersectThreePlanes(slanted, origin, slanted, {1, 1, 1}, {0, 0, 1}, origin, out), 0);
  EXPECT_EQ(IntersectThreePlanes(slanted, origin, thrice, {1, 1, 1}, {0, 0, 1}, origin, out), 0);
  EXPECT_EQ(IntersectThreePlanes({1, 0, 0}, origin, {0, 1, 0}, origin, {1, 1, 0}, {1, 1, 1}, out), 0);
  EXPECT_EQ(IntersectThreePlanes({INF, 0, 0}, origin, {0, 1, 0}, origin, {0, 0, 1}, origin, out), 0);
  EXPECT_EQ(IntersectThreePlanes({NOT_A_NUMBER, 0, 0}, origin, {0, 1, 0}, origin, {0, 0, 1}, origin, out), 0);
  EXPECT_EQ(out, UNTOUCHED);
}

TEST(IntersectThreePlanes, NormalsMayHaveAnySize) {
  Vec3 out{};
  EXPECT_EQ(
      IntersectThreePlanes({1e-30, 0, 0}, {3, 0, 0}, {0, 1e30, 0}, {0, 4, 0}, {0, 0, 1}, {0, 0, 5}, out), 1);
  EXPECT_THAT(out, IsNear((Vec3{3, 4, 5}), 8 * U * 5));
}

struct TwoPlanes {
  const char* name;
  Vec3 nA;
  Vec3 nB;
  int expected;
  Vec3 point;
};

void PrintTo(const TwoPlanes& c, std::ostream* out) {
  *out << c.name;
}

class IntersectTwo : public testing::TestWithParam<TwoPlanes> {};

TEST_P(IntersectTwo, ChoosesTheAuxiliaryPlane) {
  // Both planes go through (2, 3, 4); the point is where their line meets the auxiliary plane.
  Vec3 point = UNTOUCHED;
  Vec3 direction{};
  const Vec3 common{2, 3, 4};
  EXPECT_EQ(IntersectTwoPlanes(common, GetParam().nA, common, GetParam().nB, point, direction),
            GetParam().expected);
  EXPECT_THAT(point, IsNear(GetParam().point, 1e-14 + 4 * U * VecLength(GetParam().point)));
  Vec3 expectedDirection{};
  VecCross(GetParam().nA, GetParam().nB, expectedDirection);
  EXPECT_EQ(direction, expectedDirection);
}

INSTANTIATE_TEST_SUITE_P(
    Auxiliary, IntersectTwo,
    testing::Values(TwoPlanes{"AcrossX", {0, -1, 1}, {0, 1, 1}, 1, {0, 3, 4}},
                    TwoPlanes{"AcrossYWhenOneLiesAlongX", {1, 0, 0}, {0, 1, 1}, 1, {2, 0, 7}},
                    TwoPlanes{"AcrossYWhenTheOtherLiesAlongX", {0, 1, 1}, {-1, 0, 0}, 1, {2, 0, 7}},
                    TwoPlanes{"AcrossZWhenBothAreTaken", {1, 0, 0}, {0, 1, 0}, 1, {2, 3, 0}},
                    TwoPlanes{"AcrossXThoughLevelAlongIt", {1, 0, 1}, {0, 1, 0}, 1, {0, 3, 6}},
                    TwoPlanes{"NearlyAlongXCounts", {1, 0.0001, 0}, {0, 1, 1}, 1, {2.0003, 0, 7}},
                    TwoPlanes{"NearlyAlongXByZCounts", {1, 0, 0.0001}, {0, 1, 0}, 1, {2.0004, 3, 0}},
                    TwoPlanes{"NearlyAlongYCounts", {1, 0, 0}, {0.0001, 1, 0}, 1, {2, 3, 0}},
                    TwoPlanes{"NearlyAlongYByZCounts", {1, 0, 0}, {0, 1, 0.0001}, 1, {2, 3.0004, 0}},
                    TwoPlanes{"ShortNormalLiesAlongEveryAxis", {1, 0, 0}, {0, 0.0001, 0}, 0, UNTOUCHED},
                    TwoPlanes{"ShortNormalJustLongEnough", {1, 0, 0}, {0, OUTSIDE, 0}, 1, {2, 3, 0}},
                    // Beyond the tolerance the line runs off almost along the auxiliary plane, or misses it.
                    TwoPlanes{
                        "OffXByY", {1, 0.00011, 0}, {0, 1, 1}, 1, {0, 3 + 2 / 0.00011, 4 - 2 / 0.00011}},
                    TwoPlanes{"OffXByZ", {1, 0, 0.00011}, {0, 1, 0}, 1, {0, 3, 4 + 2 / 0.00011}},
                    TwoPlanes{"OffYByX", {1, 0, 0}, {0.00011, 1, 0}, 0, UNTOUCHED},
                    TwoPlanes{"OffYByZ", {1, 0, 0}, {0, 1, 0.00011}, 1, {2, 0, 4 + 3 / 0.00011}},
                    TwoPlanes{"Parallel", {0, 1, 1}, {0, 2, 2}, 0, UNTOUCHED},
                    // Upright planes: their line is parallel to the plane across x.
                    TwoPlanes{"UprightPlanesMissTheOneAcrossX", {0, 1, 0}, {1, 1, 0}, 0, UNTOUCHED},
                    // Short normals that lie along each axis at once leave no auxiliary plane.
                    TwoPlanes{"AlongEveryAxis", {2, 0, 0.0001}, {0.0001, 0.0001, 0.0001}, 0, UNTOUCHED}),
    CaseName<TwoPlanes>);

class TwoPlanesTolerance : public testing::TestWithParam<FitEdge> {};

TEST_P(TwoPlanesTolerance, LengthOfTheDirection) {
  Vec3 point{};
  Vec3 direction{};
  const Vec3 common{2, 3, 4};
  EXPECT_EQ(IntersectTwoPlanes(common, {0, 1, 0}, common, {0, 1, GetParam().size}, point, direction),
            GetParam().expected);
  EXPECT_EQ(direction, (Vec3{GetParam().size, 0, 0}));
}

INSTANTIATE_TEST_SUITE_P(Edge, TwoPlanesTolerance,
                         testing::Values(FitEdge{"Inside", INSIDE, 0}, FitEdge{"On", ON, 1},
                                         FitEdge{"Outside", OUTSIDE, 1}),
                         CaseName<FitEdge>);

TEST(IntersectTwoPlanes, ShortNormalsCountAsParallel) {
  // At right angles to each other, but their cross product is 2e-6 long.
  Vec3 point = UNTOUCHED;
  Vec3 direction{};
  EXPECT_EQ(IntersectTwoPlanes({2, 3, 4}, {0, 0.001, 0.001}, {2, 3, 4}, {0, -0.001, 0.001}, point, direction),
            0);
  EXPECT_EQ(point, UNTOUCHED);
}

TEST(IntersectTwoPlanes, OutputsMayBeInputs) {
  Vec3 nA{0, -1, 1};
  Vec3 pA{2, 3, 4};
  EXPECT_EQ(IntersectTwoPlanes(pA, nA, {2, 3, 4}, {0, 1, 1}, pA, nA), 1);
  EXPECT_EQ(nA, (Vec3{-2, 0, 0}));
  EXPECT_EQ(pA, (Vec3{0, 3, 4}));
}

// The second derivation of the frame: its y axis is the horizontal direction uphill, its x axis lies to the
// right of that, and its origin is the third point's place in the plan.
struct Frame {
  Long3 normal;
  Long3 right;
  Long3 uphill;
  Long3 origin;

  Frame(const Vec3& p1, const Vec3& p2, const Vec3& p3) : origin{p3.x, p3.y, 0} {
    normal = Cross(Long(p2) - Long(p1), Long(p3) - Long(p1));
    normal = normal * ((normal.z < 0 ? -1 : 1) / Length(normal));
    const long double across = std::sqrt(normal.x * normal.x + normal.y * normal.y);
    uphill = {-normal.x / across, -normal.y / across, 0};
    right = {uphill.y, -uphill.x, 0};
  }

  [[nodiscard]] Long3 Local(const Vec3& p) const {
    const Long3 d = Long(p) - origin;
    return {Dot(d, right), Dot(d, uphill), d.z};
  }
};

struct Triangle {
  Vec3 p[3];

  // Sides of some units at the given distance from the origin, never near flat, steep or thin.
  Triangle(Random& random, double reach) {
    const Vec3 at = random.Point(reach);
    const double slope = random.Uniform(0.2, 1.4);
    const double turn = random.Uniform(-4, 4);
    for (int i = 0; i < 3; ++i) {
      const double along = 5 * std::cos(2.0 * i + slope);
      const double across = 5 * std::sin(2.0 * i + slope);
      const double level = across * std::cos(slope);
      p[i] = {at.x + along * std::cos(turn) - level * std::sin(turn),
              at.y + along * std::sin(turn) + level * std::cos(turn), at.z + across * std::sin(slope)};
    }
  }
};

// Coordinates at the distance R round by u R. On sides of some units that turns the normal by up to 8 u R
// and, with a slope above 0.19, the frame by up to 64 u R; a point 10 units off moves by ten times that.
double FrameBound(double reach) {
  return 700 * U * (reach + 10);
}

class RoofProperties : public testing::TestWithParam<double> {};

TEST_P(RoofProperties, FrameRunsUphillFromTheThirdPoint) {
  Random random(61);
  for (int i = 0; i < 2000; ++i) {
    const Triangle t(random, GetParam());
    ASSERT_EQ(FitRoofPlane(t.p[0], t.p[1], t.p[2], 1), 1);
    const Frame frame(t.p[0], t.p[1], t.p[2]);
    EXPECT_LE(Difference(roofPlane.normal, frame.normal), 64 * U);
    EXPECT_NEAR(roofPlane.localNormal.x, 0, 4 * U);
    EXPECT_LT(roofPlane.localNormal.y, 0);
    Vec3 local{};
    for (const Vec3& p : t.p) {
      WorldToRoof(p, local);
      // The origin's column carries the whole distance, so it rounds by that.
      EXPECT_LE(Difference(local, frame.Local(p)), 8 * U * (GetParam() + 10) * 2);
    }
  }
}

TEST_P(RoofProperties, LocalAndWorldAreInverse) {
  Random random(62);
  for (int i = 0; i < 2000; ++i) {
    const Triangle t(random, GetParam());
    ASSERT_EQ(FitRoofPlane(t.p[0], t.p[1], t.p[2], 1), 1);
    const Vec3 p = random.Point(100);
    Vec3 world{};
    Vec3 back{};
    RoofToWorld(p, world);
    WorldToRoof(world, back);
    EXPECT_THAT(back, IsNear(p, 16 * U * (GetParam() + 100)));
  }
}

TEST_P(RoofProperties, PlacementMatrixIsTheInverseByTheSolverToo) {
  Random random(63);
  for (int i = 0; i < 500; ++i) {
    const Triangle t(random, GetParam());
    ASSERT_EQ(FitRoofPlane(t.p[0], t.p[1], t.p[2], 1), 1);
    Matrix4 inverse{};
    ASSERT_EQ(MatInverse(roofPlane.worldToLocal, inverse), 1);
    for (int row = 0; row < 3; ++row) {
      for (int column = 0; column < 4; ++column) {
        EXPECT_NEAR(inverse.m[row][column], roofPlane.localToWorld.m[row][column],
                    32 * U * (GetParam() + 10));
      }
    }
  }
}

TEST_P(RoofProperties, OrderOfPicksChangesOnlyTheOrigin) {
  Random random(64);
  int order[3] = {0, 1, 2};
  for (int i = 0; i < 500; ++i) {
    const Triangle t(random, GetParam());
    FitRoofPlane(t.p[0], t.p[1], t.p[2], 1);
    const RoofPlane first = roofPlane;
    while (std::next_permutation(order, order + 3)) {
      const Vec3& origin = t.p[order[2]];
      ASSERT_EQ(FitRoofPlane(t.p[order[0]], t.p[order[1]], origin, 1), 1);
      EXPECT_THAT(roofPlane.normal, IsNear(first.normal, FrameBound(GetParam())));
      Vec3 x{};
      MatTransformVector(roofPlane.worldToLocal, {1, 0, 0}, x);
      EXPECT_NEAR(x.x, first.worldToLocal.m[0][0], FrameBound(GetParam()));
      EXPECT_NEAR(x.y, first.worldToLocal.m[1][0], FrameBound(GetParam()));
      Vec3 place{};
      RoofToWorld({0, 0, 0}, place);
      EXPECT_EQ(place, (Vec3{origin.x, origin.y, 0}));
      EXPECT_LE(roofPlane.localCorners[0].x, roofPlane.localCorners[1].x);
    }
  }
}

TEST_P(RoofProperties, EachCornerLiesInTheLocalPlane) {
  Random random(65);
  for (int i = 0; i < 2000; ++i) {
    const Triangle t(random, GetParam());
    ASSERT_EQ(FitRoofPlane(t.p[0], t.p[1], t.p[2], 1), 1);
    for (const Vec3& p : t.p) {
      Vec3 local{};
      Vec3 dropped{};
      WorldToRoof(p, local);
      ASSERT_NE(HitRoofPlane({local.x, local.y, -50}, {0, 0, 1}, dropped), HIT_NONE);
      // z = 50 is reached over a slope of up to 80 degrees, whose tangent multiplies the plan's rounding.
      EXPECT_NEAR(dropped.z, local.z, 16 * 6 * U * (GetParam() + 60) * 2);
    }
  }
}

// Metres about the origin, and 500 km in millimetres.
INSTANTIATE_TEST_SUITE_P(Reach, RoofProperties, testing::Values(0.0, 100.0, 5e8));

TEST(IntersectThreePlanesProperties, PointLiesInAllThreeByTheCondition) {
  Random random(66);
  for (int i = 0; i < 5000; ++i) {
    const Vec3 n[3] = {random.Point(1), random.Point(1), random.Point(1)};
    const Vec3 p[3] = {random.Point(1000), random.Point(1000), random.Point(1000)};
    Vec3 out{};
    if (IntersectThreePlanes(n[0], p[0], n[1], p[1], n[2], p[2], out) == 0) continue;
    const double size = 3000 + std::abs(out.x) + std::abs(out.y) + std::abs(out.z);
    for (int k = 0; k < 3; ++k) {
      const long double height = Dot(Long(out) - Long(p[k]), Long(n[k]));
      // Row scaling weighs the rows alike, so the residual follows the largest normal.
      EXPECT_LE(std::abs(static_cast<double>(height)), 96 * U * 2 * size);
    }
  }
}

// Cramer's rule in extended precision is the second derivation.
TEST(IntersectThreePlanesProperties, AgreesWithCramersRule) {
  Random random(67);
  for (int i = 0; i < 5000; ++i) {
    const Vec3 n[3] = {random.Point(1), random.Point(1), random.Point(1)};
    const Vec3 p[3] = {random.Point(1000), random.Point(1000), random.Point(1000)};
    Vec3 out{};
    if (IntersectThreePlanes(n[0], p[0], n[1], p[1], n[2], p[2], out) == 0) continue;
    const Long3 a = Long(n[0]);
    const Long3 b = Long(n[1]);
    const Long3 c = Long(n[2]);
    const long double volume = Dot(a, Cross(b, c));
    const Long3 expected = (Cross(b, c) * Dot(a, Long(p[0])) + Cross(c, a) * Dot(b, Long(p[1])) +
                            Cross(a, b) * Dot(c, Long(p[2]))) *
                           (1 / volume);
    // The condition is at most the size of the cofactors, below 6, over the volume.
    const double bound = 256 * U * (3000 + VecLength(out)) * 6 / std::abs(static_cast<double>(volume));
    EXPECT_LE(Difference(out, expected), bound);
  }
}

}  // namespace
}  // namespace geometry
