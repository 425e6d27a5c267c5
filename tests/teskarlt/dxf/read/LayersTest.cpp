// LayersTest.cpp - what layers look like, and which can be seen and changed.
#include "teskarlt/dxf/read/Layers.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

// The layers of a drawing with these entries of its table, and another table behind it.
Layers LayersWith(const std::string& entries) {
  return Parsed(Tags("0|SECTION|2|HEADER|9|$ACADVER|1|AC1015|9|$DWGCODEPAGE|3|ANSI_1250|0|ENDSEC|"
                     "0|SECTION|2|TABLES|0|TABLE|2|LAYER|70|1") +
                Tags(entries) +
                Tags("0|ENDTAB|0|TABLE|2|STYLE|70|1|0|STYLE|2|WALL|70|5|0|ENDTAB|0|ENDSEC|"
                     "0|SECTION|2|ENTITIES|0|ENDSEC|0|EOF"))
      .ReadLayers();
}

TEST(Layers, OrdinaryLayerCanBeSeenAndChanged) {
  const Layers layers = LayersWith("0|LAYER|2|ROOF|70|0|62|7");
  EXPECT_FALSE(layers.Of("ROOF").isOff);
  EXPECT_FALSE(layers.Of("ROOF").isFrozen);
  EXPECT_FALSE(layers.Of("ROOF").isLocked);
}

TEST(Layers, NegativeColourIsThatOfALayerSwitchedOff) {
  const Layers layers = LayersWith("0|LAYER|2|ROOF|70|0|62|-3");
  EXPECT_TRUE(layers.Of("ROOF").isOff);
  EXPECT_EQ(layers.Of("ROOF").colour, 3);
}

TEST(Layers, FlagsSayFrozenAndLocked) {
  const Layers layers =
      LayersWith("0|LAYER|2|COLD|70|1|0|LAYER|2|SHUT|70|4|0|LAYER|2|BOTH|70|69");  // 1 + 4 + 64
  EXPECT_TRUE(layers.Of("COLD").isFrozen);
  EXPECT_FALSE(layers.Of("COLD").isLocked);
  EXPECT_FALSE(layers.Of("SHUT").isFrozen);
  EXPECT_TRUE(layers.Of("SHUT").isLocked);
  EXPECT_TRUE(layers.Of("BOTH").isFrozen);
  EXPECT_TRUE(layers.Of("BOTH").isLocked);
}

TEST(Layers, TrueColourAndLinetypeAreGiven) {
  const Layers layers = LayersWith("0|LAYER|2|ROOF|70|0|62|3|420|66051|6|DASHED|0|LAYER|2|WALL|70|0");
  EXPECT_EQ(layers.Of("ROOF").trueColour, 66051);
  EXPECT_EQ(layers.Of("ROOF").linetype, "DASHED");
  EXPECT_EQ(layers.Of("WALL").trueColour, std::nullopt);
  EXPECT_EQ(layers.Of("WALL").linetype, "Continuous");
}

TEST(Layers, NumbersOfColoursEndWithThatOfTheLayer) {
  EXPECT_EQ(LayersWith("0|LAYER|2|ROOF|62|1000").Of("ROOF").colour, COLOUR_BY_LAYER);
  EXPECT_EQ(LayersWith("0|LAYER|2|ROOF|62|-1000").Of("ROOF").colour, COLOUR_BY_LAYER);
}

TEST(Layers, NamesAreFoundWithoutRegardToCase) {
  const Layers layers = LayersWith(
      "0|LAYER|2|Roof|70|4|0|LAYER|2|St\xF8"
      "echa|70|4");  // in code page 1250
  EXPECT_TRUE(layers.Of("rOOF").isLocked);
  EXPECT_TRUE(layers.Of("STŘECHA").isLocked);
}

TEST(Layers, FirstOfTwoEntriesCounts) {
  EXPECT_TRUE(LayersWith("0|LAYER|2|ROOF|70|4|0|LAYER|2|Roof|70|0").Of("ROOF").isLocked);
}

TEST(Layers, LayerThatIsNotDeclaredIsWhiteAndOpen) {
  const Layers layers = LayersWith("0|LAYER|2|ROOF|70|5|62|-3");
  const Layer& wall = layers.Of("WALL");  // the text style of that name is no layer
  EXPECT_EQ(wall.colour, COLOUR_WHITE);
  EXPECT_FALSE(wall.isOff || wall.isFrozen || wall.isLocked);
}

TEST(Layers, ValuesThatAreNoNumbersSayNothing) {
  const Layers layers = LayersWith("0|LAYER|2|ROOF|70|x|62|y");
  const Layer& roof = layers.Of("ROOF");
  EXPECT_EQ(roof.colour, COLOUR_WHITE);
  EXPECT_FALSE(roof.isOff || roof.isFrozen || roof.isLocked);
}

}  // namespace
}  // namespace teskarlt::dxf
