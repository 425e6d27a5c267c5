// ViewTest.cpp - projections and frames.
#include <gtest/gtest.h>

#include "teskarlt/preview/View.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

TEST(FindView, UnknownNameIsNull) {
  EXPECT_EQ(FindView("below"), nullptr);
}

TEST(View, AxesOfEveryViewAreARightHandedUnitFrame) {
  for (const char* name : {"plan", "iso", "south", "north", "east", "west"}) {
    const View& view = *FindView(name);
    Vec3 cross{};
    geometry::VecCross(view.right, view.up, cross);
    EXPECT_NEAR(geometry::VecDot(cross, view.toward), 1, 1e-15) << name;
    EXPECT_NEAR(geometry::VecDot(view.right, view.up), 0, 1e-15) << name;
    EXPECT_NEAR(geometry::VecDot(view.right, view.right), 1, 1e-15) << name;
  }
}

TEST(View, EastIsToTheRightFromTheSouth) {
  const Vec3 p = FindView("south")->Project({3, 4, 5});
  EXPECT_EQ(p.x, 3);
  EXPECT_EQ(p.y, 5);
  EXPECT_EQ(p.z, -4);
}

TEST(FrameOf, WindowHasAsMuchAgainAroundIt) {
  const Scene scene =
      SceneOf({.entities = Rectangle("B", 10, 10, 12, 11, 0, "|1001 TK_LT_ELEM|1000 TKBRVA|1071 7") +
                           Line("A", 0, 0, 99, 99)});
  const Frame frame = FrameOf(scene, *FindView("plan"), {.window = 0});
  EXPECT_EQ(frame.left, 8);
  EXPECT_EQ(frame.top, 13);
}

TEST(FrameOf, LineInOneDirectionStillHasAnArea) {
  const Frame frame = FrameOf(SceneOf({.entities = Line("A", 0, 0, 10, 0)}), *FindView("plan"), {});
  EXPECT_GT(frame.Height(), 0);
}

}  // namespace
}  // namespace teskarlt::preview
