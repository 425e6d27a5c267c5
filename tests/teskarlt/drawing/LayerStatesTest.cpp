// LayerStatesTest.cpp - which layers can be seen and changed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/LayerStates.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;

// A drawing with these entries of its layer table, and another table behind it.
dxf::Document WithLayers(const std::string& entries) {
  return dxf::Document::FromText(
      "test.dxf",
      "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n9\n$DWGCODEPAGE\n3\nANSI_1250\n0\nENDSEC\n"
      "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n1\n" +
          entries +
          "0\nENDTAB\n0\nTABLE\n2\nSTYLE\n70\n1\n0\nSTYLE\n2\nWALL\n70\n5\n0\nENDTAB\n0\nENDSEC\n"
          "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
}

std::string Layer(const std::string& name, int flags, int colour) {
  return "0\nLAYER\n2\n" + name + "\n70\n" + std::to_string(flags) + "\n62\n" + std::to_string(colour) + "\n";
}

TEST(LayerStates, OrdinaryLayerCanBeSeenAndChanged) {
  const LayerState state = LayerStates(WithLayers(Layer("ROOF", 0, 7))).Of("ROOF");
  EXPECT_FALSE(state.isOff);
  EXPECT_FALSE(state.isFrozen);
  EXPECT_FALSE(state.isLocked);
}

TEST(LayerStates, NegativeColourIsOff) {
  EXPECT_TRUE(LayerStates(WithLayers(Layer("ROOF", 0, -7))).Of("ROOF").isOff);
}

TEST(LayerStates, FlagsSayFrozenAndLocked) {
  const LayerStates states(WithLayers(Layer("COLD", 1, 7) + Layer("SHUT", 4, 7) + Layer("BOTH", 5 + 64, 7)));
  EXPECT_TRUE(states.Of("COLD").isFrozen);
  EXPECT_FALSE(states.Of("COLD").isLocked);
  EXPECT_FALSE(states.Of("SHUT").isFrozen);
  EXPECT_TRUE(states.Of("SHUT").isLocked);
  EXPECT_TRUE(states.Of("BOTH").isFrozen);
  EXPECT_TRUE(states.Of("BOTH").isLocked);
}

TEST(LayerStates, NamesAreFoundWithoutRegardToCase) {
  const LayerStates states(WithLayers(Layer("Roof", 4, 7) + Layer("ST\xD8"
                                                                  "ECHA",
                                                                  4, 7)));  // in code page 1250
  EXPECT_TRUE(states.Of("rOOF").isLocked);
  EXPECT_TRUE(states.Of("STŘECHA").isLocked);
}

TEST(LayerStates, LayerThatIsNotDeclaredIsOpen) {
  const LayerState state = LayerStates(WithLayers(Layer("ROOF", 5, -7))).Of("WALL");
  EXPECT_FALSE(state.isOff);
  EXPECT_FALSE(state.isFrozen || state.isLocked);
}

TEST(LayerStates, ValuesThatAreNoNumbersSayNothing) {
  const LayerState state = LayerStates(WithLayers("0\nLAYER\n2\nROOF\n70\nx\n62\ny\n")).Of("ROOF");
  EXPECT_FALSE(state.isOff || state.isFrozen || state.isLocked);
}

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
