// PaintOrderTest.cpp - the order of surfaces that are painted over each other.
#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/preview/PaintOrder.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

using testing::ElementsAre;

TEST(PaintOrder, LowerSurfaceComesFirst) {
  const Scene scene = SceneOf({.entities = Rectangle("A", 0, 0, 2, 2, 5) + Rectangle("A", 1, 1, 3, 3, 1)});
  EXPECT_THAT(PaintOrder(scene, *FindView("plan")), ElementsAre(1, 0));
}

TEST(PaintOrder, SmallSurfaceOnALargeSlopeComesLastThoughItsMiddleIsLower) {
  // A slope of 45 degrees, and a window near its foot, half a unit above it.
  const std::string slope = "0 3DFACE|8 A|10 0|20 0|30 0|11 9|21 0|31 0|12 9|22 9|32 9|13 0|23 9|33 9|";
  const Scene scene = SceneOf({.entities = Rectangle("B", 1, 1, 2, 2, 2.5) + slope});
  EXPECT_THAT(PaintOrder(scene, *FindView("plan")), ElementsAre(1, 0));
}

TEST(PaintOrder, SurfacesApartKeepTheOrderOfTheDrawing) {
  const Scene scene = SceneOf({.entities = Rectangle("A", 0, 0, 1, 1, 5) + Rectangle("A", 1, 0, 2, 1, 1)});
  EXPECT_THAT(PaintOrder(scene, *FindView("plan")), ElementsAre(0, 1));
}

TEST(PaintOrder, SurfacesSeenFromTheirEdgeAreLeftOut) {
  const Scene scene = SceneOf({.entities = Rectangle("A", 0, 0, 1, 1, 5)});
  EXPECT_THAT(PaintOrder(scene, *FindView("south")), ElementsAre());
}

TEST(PaintOrder, RingOfSurfacesIsPaintedWhole) {
  // Three boards, each over the next at one end and under the one before at the other.
  const auto board = [](double x0, double y0, double z0, double x1, double y1, double z1, double dx,
                        double dy) {
    return fmt::format(
        "0 3DFACE|8 A|10 {}|20 {}|30 {}|11 {}|21 {}|31 {}|12 {}|22 {}|32 {}|13 {}|23 {}|33 {}|", x0, y0, z0,
        x1, y1, z1, x1 + dx, y1 + dy, z1, x0 + dx, y0 + dy, z0);
  };
  const Scene scene = SceneOf({.entities = board(0, 0, 0, 10, 0, 4, 0, 1) + board(9, -1, 0, 4, 9, 4, 1, 0) +
                                           board(5, 9, 0, 0, -1, 4, 1, 0)});
  EXPECT_EQ(PaintOrder(scene, *FindView("plan")).size(), 3U);
}

TEST(PaintOrder, TooManyToCompareAreInTheOrderOfTheirDepths) {
  std::string entities;
  for (int i = 0; i < 1500; ++i)
    entities += Rectangle("A", 0, 0, 9, 9, (i * 7 % 1500) * 0.01);
  const Scene scene = SceneOf({.entities = entities});
  const std::vector<std::size_t> order = PaintOrder(scene, *FindView("plan"));
  ASSERT_EQ(order.size(), 1500U);
  EXPECT_TRUE(std::is_sorted(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return scene.surfaces[a].corners[0].z < scene.surfaces[b].corners[0].z;
  }));
}

}  // namespace
}  // namespace teskarlt::preview
