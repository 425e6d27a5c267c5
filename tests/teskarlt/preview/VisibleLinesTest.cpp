// VisibleLinesTest.cpp - edges and curves as far as nothing hides them.
#include <algorithm>

#include <gtest/gtest.h>

#include "teskarlt/preview/VisibleLines.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

// A wall of height 1 below the middle of a roof, as a closed polyline; its top lies in the roof's plane.
constexpr const char* WALL =
    "0 POLYLINE|8 WALL|70 9|0 VERTEX|10 2|20 5|30 2|0 VERTEX|10 8|20 5|30 2|0 VERTEX|10 8|20 5|30 3|"
    "0 VERTEX|10 2|20 5|30 3|0 SEQEND|";

// How many visible lines of the layer WALL lie wholly at its top.
std::ptrdiff_t TopsSeen(const std::string& entities, const char* view) {
  const Scene scene = SceneOf({.entities = entities});
  const View& direction = *FindView(view);
  const double top = direction.Project({2, 5, 3}).y;
  const std::vector<VisibleLine> lines = VisibleLines(scene, direction, FrameOf(scene, direction, {}));
  return std::count_if(lines.begin(), lines.end(), [&](const VisibleLine& line) {
    return scene.layers[line.layer].name == "WALL" && line.a.y == top && line.b.y == top;
  });
}

TEST(VisibleLines, TopOfAWallOfPolylinesIsHiddenByTheRoofThatItEndsIn) {
  const Scene scene = SceneOf({.entities = WALL + Rectangle("ROOF", 0, 0, 10, 10, 3)});
  const View& iso = *FindView("iso");
  for (const VisibleLine& line : VisibleLines(scene, iso, FrameOf(scene, iso, {})))
    EXPECT_EQ(scene.layers[line.layer].name, "ROOF");
}

TEST(VisibleLines, TopOfAWallIsSeenFromTheSide) {
  EXPECT_EQ(TopsSeen(WALL, "south"), 1);
}

}  // namespace
}  // namespace teskarlt::preview
