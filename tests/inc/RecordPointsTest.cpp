// RecordPointsTest.cpp - points between the record and the geometry kernel.
#include <gtest/gtest.h>

#include "inc/RecordPoints.h"
#include "tests/geometry/KernelTesting.h"

namespace brevanta {
namespace {

TEST(RecordPoints, KeepTheirCoordinatesBothWays) {
  EXPECT_EQ(ToVec3(RecordPoint{1, 2, 3}), (geometry::Vec3{1, 2, 3}));
  const RecordPoint back = ToRecordPoint({4, 5, 6});
  EXPECT_EQ(ToVec3(back), (geometry::Vec3{4, 5, 6}));
}

}  // namespace
}  // namespace brevanta
