// SecondPlaneTest.cpp - the second plane against the roof's underside.
#include <gtest/gtest.h>

#include "inc/RecordPoints.h"
#include "tests/geometry/KernelTesting.h"
#include "tests/support/RoundRecord.h"
#include "window/Choices.h"
#include "window/SecondPlane.h"

namespace brevanta {
namespace {

constexpr double TOLERANCE = 1e-6;

// In the slope of 3 in 4 the normal is (0, -0.6, 0.8), so a layer of 10 reaches (0, 6, -8) deep.
WindowParams OnUndersideOfTen() {
  WindowParams params = round_record::OnSlope();
  params.roofBuildUp = BUILD_UP_SECOND_PLANE;
  params.layerThickness = 10;
  for (int i = 0; i < 3; ++i) {
    const RecordPoint& p = params.roofPlanePoints[i];
    params.secondPlanePoints[i] = {p.x, p.y + 6, p.z - 8};
  }
  return params;
}

TEST(SecondPlane, IsUsedWithALayerAndTheBuildUpForIt) {
  WindowParams params = OnUndersideOfTen();
  EXPECT_TRUE(UsesSecondPlane(params));
  params.layerThickness = 0;
  EXPECT_FALSE(UsesSecondPlane(params));
  params = OnUndersideOfTen();
  params.roofBuildUp = BUILD_UP_PLAIN;
  EXPECT_FALSE(UsesSecondPlane(params));
}

TEST(SecondPlane, UndersideLiesTheLayersThicknessBelowTheRoof) {
  WindowParams params = OnUndersideOfTen();
  params.unitFactor = 100;
  EXPECT_THAT(OnUnderside({1, 2, 3}, {0, -0.6, 0.8}, params),
              geometry::IsNear((geometry::Vec3{1, 602, -797}), 1e-9));
}

TEST(SecondPlane, LoweredRoofIsTheUnderside) {
  EXPECT_TRUE(IsUnderside(OnUndersideOfTen(), TOLERANCE));
  EXPECT_FALSE(HasOwnSecondPlane(OnUndersideOfTen(), TOLERANCE));
}

TEST(SecondPlane, APointOffByMoreThanTheToleranceMakesItTheUsersOwn) {
  WindowParams params = OnUndersideOfTen();
  params.secondPlanePoints[2].z += 2 * TOLERANCE;
  EXPECT_FALSE(IsUnderside(params, TOLERANCE));
  EXPECT_TRUE(HasOwnSecondPlane(params, TOLERANCE));
  EXPECT_TRUE(IsUnderside(params, 3 * TOLERANCE));
}

TEST(SecondPlane, RoofPointsOnOneLineHaveNoUnderside) {
  WindowParams params = OnUndersideOfTen();
  params.roofPlanePoints[1] = params.roofPlanePoints[0];
  EXPECT_FALSE(IsUnderside(params, TOLERANCE));
}

}  // namespace
}  // namespace brevanta
