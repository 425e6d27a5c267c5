// BlocksTest.cpp - inserted blocks.
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

std::string Block(const std::string& name, const std::string& entities,
                  const std::string& base = "10 0|20 0|") {
  return "0 BLOCK|8 0|2 " + name + "|" + base + entities + "0 ENDBLK|";
}

TEST(Blocks, EntityIsScaledTurnedAndMoved) {
  const Scene scene = SceneOf({.blocks = Block("B", Line("0", 1, 0, 2, 0)),
                               .entities = "0 INSERT|8 0|2 B|10 10|20 20|30 5|41 2|42 2|43 2|50 90|"});
  ASSERT_EQ(scene.curves.size(), 1U);
  EXPECT_NEAR(scene.curves[0].points[0].x, 10, 1e-12);
  EXPECT_NEAR(scene.curves[0].points[0].y, 22, 1e-12);
  EXPECT_NEAR(scene.curves[0].points[1].y, 24, 1e-12);
  EXPECT_EQ(scene.curves[0].points[1].z, 5);
}

TEST(Blocks, BasePointComesToLieAtTheInsertion) {
  const Scene scene = SceneOf(
      {.blocks = Block("B", Line("0", 3, 4, 5, 4), "10 3|20 4|"), .entities = "0 INSERT|8 0|2 b|10 1|20 1|"});
  EXPECT_EQ(scene.curves[0].points[0].x, 1);
  EXPECT_EQ(scene.curves[0].points[0].y, 1);
}

TEST(Blocks, ArrayRepeatsTheBlock) {
  const Scene scene = SceneOf({.blocks = Block("B", Line("0", 0, 0, 1, 0)),
                               .entities = "0 INSERT|8 0|2 B|10 0|20 0|70 3|71 2|44 5|45 7|"});
  ASSERT_EQ(scene.curves.size(), 6U);
  EXPECT_EQ(scene.curves[5].points[0].x, 10);
  EXPECT_EQ(scene.curves[5].points[0].y, 7);
}

TEST(Blocks, EveryCopyInALongRowIsShown) {
  const Scene scene = SceneOf(
      {.blocks = Block("B", Line("0", 0, 0, 1, 0)), .entities = "0 INSERT|8 0|2 B|10 0|20 0|70 1200|44 5|"});
  ASSERT_EQ(scene.curves.size(), 1200U);
  EXPECT_EQ(scene.curves.back().points[0].x, 1199 * 5);
}

TEST(Blocks, BlocksInBlocksAreShown) {
  const Scene scene =
      SceneOf({.blocks = Block("A", "0 INSERT|8 0|2 B|10 1|20 0|") + Block("B", Line("0", 0, 0, 1, 0)),
               .entities = "0 INSERT|8 0|2 A|10 10|20 0|"});
  EXPECT_EQ(scene.curves[0].points[0].x, 11);
}

TEST(Blocks, BlockWithinItselfIsRefused) {
  const Parts parts = {.blocks = Block("A", "0 INSERT|8 0|2 A|10 1|20 0|"),
                       .entities = "0 INSERT|8 0|2 A|10 0|20 0|"};
  EXPECT_THROW(SceneOf(parts), Error);
}

TEST(Blocks, MissingBlockIsReported) {
  const Scene scene = SceneOf({.entities = "0 INSERT|8 0|2 NONE|10 0|20 0|" + Line("0", 0, 0, 1, 1)});
  EXPECT_EQ(scene.leftOut.at("INSERT of a missing block"), 1U);
}

TEST(Blocks, ByBlockAndLayerZeroFollowTheInsertion) {
  const Scene scene = SceneOf({.tables = "0 LAYER|2 RED|70 0|62 1|6 CONTINUOUS|",
                               .blocks = Block("B", Line("0", 0, 0, 1, 0, "|62 0") + Line("0", 0, 0, 1, 1)),
                               .entities = "0 INSERT|8 RED|2 B|62 3|10 0|20 0|"});
  EXPECT_EQ(scene.layers[scene.curves[0].layer].name, "RED");
  EXPECT_EQ(Hex(scene.curves[0].colour), "#00ff00");
  EXPECT_EQ(Hex(scene.curves[1].colour), "#ff0000");
}

TEST(Blocks, DimensionIsDrawnByItsBlock) {
  const Scene scene = SceneOf(
      {.blocks = Block("*D1", Line("0", 3, 0, 4, 0)), .entities = "0 DIMENSION|8 0|2 *D1|10 50|20 50|"});
  EXPECT_EQ(scene.curves[0].points[0].x, 3);
}

}  // namespace
}  // namespace teskarlt::preview
