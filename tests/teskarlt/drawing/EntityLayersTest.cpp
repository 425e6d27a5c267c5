// EntityLayersTest.cpp - the layers on which entities lie.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/EntityLayers.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;

TEST(LayersOf, EachNameComesOnce) {
  const dxf::Document drawing =
      Drawing("", "0\nLINE\n8\nB\n0\nLINE\n8\nA\n0\nLINE\n8\nB\n0\nLINE\n62\n1\n0\nLINE\n8\nC\n");
  std::vector<const dxf::Entity*> entities;
  for (std::size_t i = 0; i < 4; ++i)
    entities.push_back(&drawing.Entities()[i]);
  EXPECT_THAT(LayersOf(drawing, entities),
              ElementsAre("A", "B"));  // the fourth names none, the fifth is not asked
}

}  // namespace
}  // namespace teskarlt
