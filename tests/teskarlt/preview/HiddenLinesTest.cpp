// HiddenLinesTest.cpp - the parts of a line that surfaces hide.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/preview/HiddenLines.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

using Parts01 = std::vector<std::pair<double, double>>;

// The visible parts of a line in the plan, under or over a square from (2, 2) to (8, 8) at height 5.
Parts01 VisibleAt(const Vec3& a, const Vec3& b) {
  const Scene scene = SceneOf({.entities = Rectangle("A", 2, 2, 8, 8, 5)});
  return HiddenLines(scene, *FindView("plan")).Visible(a, b);
}

TEST(HiddenLines, LineAboveIsVisible) {
  EXPECT_EQ(VisibleAt({0, 5, 6}, {10, 5, 6}), (Parts01{{0, 1}}));
}

TEST(HiddenLines, LineOnTheSurfaceIsVisible) {
  EXPECT_EQ(VisibleAt({3, 5, 5}, {7, 5, 5}), (Parts01{{0, 1}}));
}

TEST(HiddenLines, LineUnderneathIsVisibleOutsideOnly) {
  const Parts01 parts = VisibleAt({0, 5, 0}, {10, 5, 0});
  ASSERT_EQ(parts.size(), 2U);
  EXPECT_NEAR(parts[0].second, 0.2, 1e-5);
  EXPECT_NEAR(parts[1].first, 0.8, 1e-5);
}

TEST(HiddenLines, LineThatPiercesTheSurfaceIsCutThere) {
  const Parts01 parts = VisibleAt({4, 5, 0}, {4, 5.5, 10});
  ASSERT_EQ(parts.size(), 1U);
  EXPECT_NEAR(parts[0].first, 0.5, 1e-5);
  EXPECT_EQ(parts[0].second, 1);
}

TEST(HiddenLines, NoGapShowsAlongTheDiagonalOfAFace) {
  EXPECT_TRUE(VisibleAt({3, 3, 0}, {7, 7, 0}).empty());
  EXPECT_TRUE(VisibleAt({3, 7, 0}, {7, 3, 0}).empty());
}

TEST(HiddenLines, SurfaceSeenFromItsEdgeHidesNothing) {
  const Scene scene = SceneOf({.entities = Rectangle("A", 0, 0, 8, 8, 5)});
  EXPECT_EQ(HiddenLines(scene, *FindView("south")).Visible({0, 5, -20}, {8, 5, -20}), (Parts01{{0, 1}}));
}

TEST(HiddenLines, SceneWithoutSurfacesHidesNothing) {
  const Scene scene = SceneOf({.entities = Line("A", 0, 0, 1, 1)});
  EXPECT_EQ(HiddenLines(scene, *FindView("plan")).Visible({0, 0, 0}, {1, 1, 0}), (Parts01{{0, 1}}));
}

// Bars of width 1 every 2, at height 5.
std::string Grating(int bars) {
  std::string entities;
  for (int i = 0; i < bars; ++i)
    entities += Rectangle("A", 2 * i, 0, 2 * i + 1, 10, 5);
  return entities;
}

TEST(HiddenLines, LineUnderAGratingIsVisibleInEachGap) {
  const Scene scene = SceneOf({.entities = Grating(50)});
  EXPECT_EQ(HiddenLines(scene, *FindView("plan")).Visible({0, 5, 0}, {100, 5, 0}).size(), 50U);
}

TEST(HiddenLines, QuestionsThatTakeTooLongAreRefused) {
  const Scene scene = SceneOf({.entities = Grating(50)});
  HiddenLines hidden(scene, *FindView("plan"), 20'000);
  EXPECT_EQ(hidden.Visible({0, 5, 0}, {100, 5, 0}).size(),
            50U);  // of 256 steps each but the first, and the boxes
  EXPECT_THROW(hidden.Visible({0, 5, 0}, {100, 5, 0}), Error);
}

}  // namespace
}  // namespace teskarlt::preview
