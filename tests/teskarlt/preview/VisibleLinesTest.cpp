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

TEST(VisibleLines, ShortPartOfAnEdgeIsSeenInASmallPieceOfALargeDrawing) {
  // A fin through a roof, of whose edges half a metre is seen from above; ten kilometres away is a line.
  const Scene scene =
      SceneOf({.entities = "0 3DFACE|8 FIN|10 2|20 2|30 4|11 2|21 3|31 6|12 3|22 3|32 6|13 3|23 2|33 4|" +
                           Rectangle("ROOF", 0, 0, 10, 10, 5) + Line("FAR", 10000, 0, 10000, 1)});
  const View& plan = *FindView("plan");
  const std::vector<VisibleLine> lines = VisibleLines(scene, plan, {0, 0, 10, 10});
  const auto isSide = [&](const VisibleLine& line) {
    return scene.layers[line.layer].name == "FIN" && line.a.x == line.b.x;
  };
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(), isSide), 2);
}

}  // namespace
}  // namespace teskarlt::preview
