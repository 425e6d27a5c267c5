// PlanCoverTest.cpp - how much of an outline a face covers.
#include <gtest/gtest.h>

#include "geometry/PlanCover.h"

namespace geometry {
namespace {

const PlanPolygon SQUARE = {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}};
const PlanPolygon SQUARE_CLOCKWISE = {{0, 2, 0}, {2, 2, 0}, {2, 0, 0}, {0, 0, 0}};

TEST(PlanArea, DoesNotDependOnTheDirectionAroundTheOutline) {
  EXPECT_EQ(PlanArea(SQUARE), 4);
  EXPECT_EQ(PlanArea(SQUARE_CLOCKWISE), 4);
}

TEST(CoveredArea, FaceAroundTheOutlineCoversItWhole) {
  const PlanPolygon face = {{-1, -1, 9}, {5, -1, 9}, {5, 5, 9}, {-1, 5, 9}};
  EXPECT_EQ(CoveredArea(SQUARE, {face}), 4);
  EXPECT_EQ(CoveredArea(SQUARE_CLOCKWISE, {face}), 4);
}

TEST(CoveredArea, SameOutlineCoversItself) {
  EXPECT_EQ(CoveredArea(SQUARE, {SQUARE_CLOCKWISE}), 4);
}

TEST(CoveredArea, HalfIsHalf) {
  EXPECT_EQ(CoveredArea(SQUARE, {{{1, -9, 0}, {9, -9, 0}, {9, 9, 0}, {1, 9, 0}}}), 2);
}

TEST(CoveredArea, FaceApartCoversNothing) {
  EXPECT_EQ(CoveredArea(SQUARE, {{{5, 5, 0}, {6, 5, 0}, {6, 6, 0}}}), 0);
}

TEST(CoveredArea, TwoTrianglesOfOneFaceCoverTogether) {
  const PlanPolygon lower = {{-1, -1, 0}, {5, -1, 0}, {5, 5, 0}};
  const PlanPolygon upper = {{-1, -1, 0}, {5, 5, 0}, {-1, 5, 0}};
  EXPECT_DOUBLE_EQ(CoveredArea(SQUARE, {lower, upper}), 4);
}

TEST(CoveredArea, ConcaveFaceLeavesItsNotchOut) {
  // An L whose notch takes the upper right quarter of the square away.
  const PlanPolygon face = {{-1, -1, 0}, {3, -1, 0}, {3, 1, 0}, {1, 1, 0}, {1, 3, 0}, {-1, 3, 0}};
  EXPECT_DOUBLE_EQ(CoveredArea(SQUARE, {face}), 3);
}

TEST(CoveredArea, NotchThatSplitsTheFaceInTheOutlineCountsBothLegs) {
  // A U from above: the legs cover x 0..0.5 and 1.5..2, the bottom lies below the square.
  const PlanPolygon face = {{-1, 3, 0},  {-1, -2, 0},  {3, -2, 0},   {3, 3, 0},
                            {1.5, 3, 0}, {1.5, -1, 0}, {0.5, -1, 0}, {0.5, 3, 0}};
  EXPECT_DOUBLE_EQ(CoveredArea(SQUARE, {face}), 2);
}

TEST(CoveredArea, FacesThatLieOverEachOtherCountOnce) {
  const PlanPolygon right = {{1, -9, 0}, {9, -9, 0}, {9, 9, 0}, {1, 9, 0}};
  const PlanPolygon upper = {{-9, 1, 0}, {9, 1, 0}, {9, 9, 0}, {-9, 9, 0}};
  EXPECT_EQ(CoveredArea(SQUARE, {right, right}), 2);
  EXPECT_EQ(CoveredArea(SQUARE, {right, upper}), 3);
}

TEST(CoveredArea, FacesWhoseEdgesCrossCountOnce) {
  // The triangles below the two diagonals of the square; together they leave its upper quarter open.
  const PlanPolygon rising = {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}};
  const PlanPolygon falling = {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}};
  EXPECT_DOUBLE_EQ(CoveredArea(SQUARE, {rising, falling}), 3);
}

TEST(CoveredArea, WithoutFacesNothingIsCovered) {
  EXPECT_EQ(CoveredArea(SQUARE, {}), 0);
}

}  // namespace
}  // namespace geometry
