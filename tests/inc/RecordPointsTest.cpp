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

TEST(RecordPoints, ThreeOfThemSpanAPlane) {
  const RecordPoint points[3] = {{0, 0, 7}, {1, 0, 7}, {0, 1, 7}};
  ASSERT_TRUE(PlaneThrough(points));
  EXPECT_EQ(PlaneThrough(points)->normal, (geometry::Vec3{0, 0, 1}));
}

TEST(RecordPoints, ThreeOnOneLineSpanNone) {
  const RecordPoint points[3] = {{0, 0, 7}, {1, 0, 7}, {2, 0, 7}};
  EXPECT_FALSE(PlaneThrough(points));
}

}  // namespace
}  // namespace brevanta
