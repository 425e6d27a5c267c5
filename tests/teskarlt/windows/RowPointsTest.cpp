// RowPointsTest.cpp - where the windows of a row stand, on roofs of any direction.
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "teskarlt/windows/RowPoints.h"

namespace teskarlt {
namespace {

const PlanPoint POINT{100, 200, "100,200"};
constexpr double STEP = 5;  // along a roof that rises by 3 on 4

// A roof and its directions in the plan, as the test knows them.
struct TurnedRoof {
  explicit TurnedRoof(int degrees) {
    const double fall = degrees / 180.0 * 3.141592653589793;
    frame = FrameOf({{0, 0, 0}, {0.6 * std::cos(fall), 0.6 * std::sin(fall), 0.8}});
    right = {-std::sin(fall), std::cos(fall), 0};
    up = {-std::cos(fall), -std::sin(fall), 0};
  }
  SlopeFrame frame;
  geometry::Vec3 right;
  geometry::Vec3 up;
};

void ExpectAt(const PlanPoint& point, const geometry::Vec3& direction, double distance) {
  EXPECT_NEAR(point.x, POINT.x + direction.x * distance, 1e-9);
  EXPECT_NEAR(point.y, POINT.y + direction.y * distance, 1e-9);
}

TEST(RowPoints, RowRunsToTheRightAlongTheEaves) {
  for (int degrees = 0; degrees < 360; degrees += 25) {
    const TurnedRoof roof(degrees);
    const auto points = RowPoints({.count = 3}, POINT, roof.frame, STEP, IN_DRAWING_UNITS);
    ASSERT_EQ(points.size(), 3U);
    for (int i = 0; i < 3; ++i)
      ExpectAt(points[static_cast<std::size_t>(i)], roof.right, i * STEP);
  }
}

// 5 m along the slope are 4 m in the plan.
TEST(RowPoints, ColumnRunsUpTheSlope) {
  for (int degrees = 0; degrees < 360; degrees += 25) {
    const TurnedRoof roof(degrees);
    const auto points = RowPoints({.count = 2, .isColumn = true}, POINT, roof.frame, STEP, IN_DRAWING_UNITS);
    ExpectAt(points[0], roof.up, 0);
    ExpectAt(points[1], roof.up, 4);
  }
}

TEST(RowPoints, PointMayBeTheMiddleOrTheEnd) {
  const TurnedRoof roof(270);
  const auto centred = RowPoints({.count = 4, .from = "centre"}, POINT, roof.frame, STEP, IN_DRAWING_UNITS);
  ExpectAt(centred[0], roof.right, -1.5 * STEP);
  ExpectAt(centred[3], roof.right, 1.5 * STEP);
  const auto ending = RowPoints({.count = 4, .from = "right"}, POINT, roof.frame, STEP, IN_DRAWING_UNITS);
  ExpectAt(ending[0], roof.right, -3 * STEP);
  ExpectAt(ending[3], roof.right, 0);
}

TEST(RowPoints, RowOnAFlatRoofRunsAlongX) {
  const auto points = RowPoints({.count = 2}, POINT, FrameOf({{0, 0, 3}, {0, 0, 1}}), STEP, IN_DRAWING_UNITS);
  ExpectAt(points[1], {1, 0, 0}, STEP);
}

// 254 mm are 10 inches.
TEST(RowPoints, TextsAreInDrawingUnits) {
  const WorkingUnit inches{.perMetre = 1000, .perDrawingUnit = 25.4};
  const auto points = RowPoints({.count = 2}, {254, 508, ""}, FrameOf({{0, 0, 3}, {0, 0, 1}}), 508, inches);
  EXPECT_EQ(points[1].text, "30,20");
}

TEST(RowPoints, ReachIsCountedFromThePoint) {
  const RowReach row = ReachOf({.count = 4, .from = "centre"}, STEP);
  EXPECT_EQ(row.before, 1.5 * STEP);
  EXPECT_EQ(row.behind, 1.5 * STEP);
  EXPECT_FALSE(row.isColumn);
  const RowReach column = ReachOf({.count = 3, .isColumn = true}, STEP);
  EXPECT_EQ(column.before, 0);
  EXPECT_EQ(column.behind, 2 * STEP);
  EXPECT_TRUE(column.isColumn);
}

}  // namespace
}  // namespace teskarlt
