// GlassPanesTest.cpp - lines under the panes of windows.
#include <cmath>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "teskarlt/preview/GlassPanes.h"

namespace teskarlt::preview {
namespace {

// A window with a level pane of 3 x 4 at height 1, 5 from corner to corner.
Scene Glazed() {
  Scene scene;
  scene.windows.emplace_back();
  Surface pane;
  pane.corners = {{0, 0, 1}, {3, 0, 1}, {3, 4, 1}, {0, 4, 1}};
  pane.isGlass = true;
  pane.window = 0;
  scene.surfaces.push_back(pane);
  return scene;
}

double InThousandths(double height) {
  return std::round(height * 1000) / 1000;
}

using Heights = std::pair<double, double>;

// The heights of a line of that window after it was raised.
Heights Raised(const Vec3& a, const Vec3& b, int window = 0) {
  Curve curve;
  curve.points = {a, b};
  curve.window = window;
  const Scene scene = Glazed();
  const std::vector<Vec3> points = GlassPanes(scene).OntoPane(curve);
  return {InThousandths(points.front().z), InThousandths(points.back().z)};
}

TEST(GlassPanes, LineUnderThePaneIsRaisedOntoIt) {
  EXPECT_EQ(Raised({0, 0, 0.8}, {3, 4, 0.8}), Heights(1.005, 1.005));
}

TEST(GlassPanes, LineBesideThePaneStaysWhereItIs) {
  EXPECT_EQ(Raised({-1, 0, 0.8}, {3, 4, 0.8}), Heights(0.8, 0.8));
}

TEST(GlassPanes, LineAboveThePaneStaysWhereItIs) {
  EXPECT_EQ(Raised({0, 0, 1.2}, {3, 4, 1.2}), Heights(1.2, 1.2));
}

TEST(GlassPanes, LineFarBelowThePaneStaysWhereItIs) {
  EXPECT_EQ(Raised({0, 0, -2}, {3, 4, -2}), Heights(-2, -2));
}

TEST(GlassPanes, LineThatIsNotParallelToThePaneStaysWhereItIs) {
  EXPECT_EQ(Raised({0, 0, 0.8}, {3, 4, 0.7}), Heights(0.8, 0.7));
}

TEST(GlassPanes, LineOfNoWindowStaysWhereItIs) {
  EXPECT_EQ(Raised({0, 0, 0.8}, {3, 4, 0.8}, NO_WINDOW), Heights(0.8, 0.8));
}

}  // namespace
}  // namespace teskarlt::preview
