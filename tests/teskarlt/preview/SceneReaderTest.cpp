// SceneReaderTest.cpp - what is to be seen of a drawing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "geometry/Vectors.h"
#include "teskarlt/Error.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string MessageOf(const Parts& parts, const SceneOptions& options = {}) {
  try {
    SceneOf(parts, options);
  } catch (const Error& error) {
    return error.what();
  }
  return "no error";
}

TEST(ReadScene, FaceKeepsItsCornersAndHiddenEdges) {
  const Scene scene = SceneOf({.entities = Rectangle("ROOF", 0, 0, 4, 3, 2, "|70 5")});
  ASSERT_EQ(scene.surfaces.size(), 1U);
  EXPECT_EQ(scene.surfaces[0].corners.size(), 4U);
  EXPECT_EQ(scene.surfaces[0].hiddenEdges, 5U);
  EXPECT_EQ(scene.layers[0].name, "ROOF");
}

TEST(ReadScene, BoxHoldsEverything) {
  const Scene scene = SceneOf({.entities = Rectangle("ROOF", 0, 0, 4, 3, 2) + Line("PLAN", -1, 0, 5, 9)});
  EXPECT_EQ(scene.box.low.x, -1);
  EXPECT_EQ(scene.box.high.y, 9);
  EXPECT_EQ(scene.box.low.z, 0);
  EXPECT_EQ(scene.box.high.z, 2);
}

TEST(ReadScene, UnitIsThatOfTheDrawingOrForced) {
  EXPECT_EQ(SceneOf({.entities = Line("0", 0, 0, 1, 1)}).perMetre, 1);
  EXPECT_EQ(SceneOf({.entities = Line("0", 0, 0, 1, 1)}, {{"cm", true}, {}}).perMetre, 100);
}

TEST(ReadScene, ColourIsTrueColourThenNumberThenLayer) {
  const Scene scene = SceneOf({.tables = "0 LAYER|2 A|70 0|62 3|6 CONTINUOUS|",
                               .entities = Line("A", 0, 0, 1, 1) + Line("A", 0, 0, 1, 1, "|62 1") +
                                           Line("A", 0, 0, 1, 1, "|62 1|420 66051")});
  EXPECT_EQ(Hex(scene.curves[0].colour), "#00ff00");
  EXPECT_EQ(Hex(scene.curves[1].colour), "#ff0000");
  EXPECT_EQ(Hex(scene.curves[2].colour), "#010203");
}

TEST(ReadScene, LayersThatAreOffOrFrozenAreNotShown) {
  const Scene scene =
      SceneOf({.tables = "0 LAYER|2 OFF|70 0|62 -3|0 LAYER|2 COLD|70 1|62 3|",
               .entities = Line("off", 0, 0, 1, 1) + Line("COLD", 0, 0, 1, 1) + Line("ON", 0, 0, 2, 2)});
  ASSERT_EQ(scene.curves.size(), 1U);
  EXPECT_EQ(scene.layers[0].name, "ON");
}

TEST(ReadScene, InvisibleEntityIsNotShown) {
  EXPECT_EQ(SceneOf({.entities = Line("A", 0, 0, 1, 1, "|60 1") + Line("A", 0, 0, 2, 2)}).curves.size(), 1U);
}

TEST(ReadScene, OnlyTheAskedLayersAreShown) {
  const Scene scene = SceneOf({.entities = Line("A", 0, 0, 1, 1) + Line("B", 0, 0, 1, 1)}, {{}, {"b"}});
  ASSERT_EQ(scene.layers.size(), 1U);
  EXPECT_EQ(scene.layers[0].name, "B");
}

TEST(ReadScene, LayerThatShowsNothingIsAnError) {
  EXPECT_THAT(MessageOf({.entities = Line("A", 0, 0, 1, 1)}, {{}, {"ROOF"}}), HasSubstr("on layer \"ROOF\""));
}

TEST(ReadScene, EmptyDrawingIsAnError) {
  EXPECT_EQ(MessageOf({}), "test.dxf: nothing is to be seen in this drawing");
}

TEST(ReadScene, DrawingThatReachesTooFarIsAnError) {
  EXPECT_EQ(MessageOf({.entities = Line("A", 0, 0, 1e300, 1)}), "test.dxf: reaches too far for a picture");
  EXPECT_EQ(MessageOf({.entities = "0 CIRCLE|8 A|10 0|20 0|40 1e308|"}),
            "test.dxf: reaches too far for a picture");
}

TEST(ReadScene, LinetypeOfTheLayerIsScaled) {
  const Scene scene = SceneOf(
      {.tables = "0 LAYER|2 A|70 0|62 3|6 DASHED|0 LTYPE|2 Dashed|70 0|49 2.0|49 -1.0|49 0.0|49 -1.0|",
       .entities = Line("A", 0, 0, 1, 1, "|48 0.5") + Line("A", 0, 0, 1, 1, "|6 CONTINUOUS")});
  EXPECT_THAT(scene.patterns[scene.curves[0].pattern], ElementsAre(1, 0.5, 0, 0.5));
  EXPECT_EQ(scene.curves[1].pattern, 0U);
}

TEST(ReadScene, PatternThatBeginsWithAGapBeginsWithADot) {
  const Scene scene = SceneOf(
      {.tables = "0 LTYPE|2 T|70 0|49 -1.0|49 2.0|49 3.0|", .entities = Line("A", 0, 0, 1, 1, "|6 T")});
  EXPECT_THAT(scene.patterns[scene.curves[0].pattern], ElementsAre(0, 1, 5, 0));
}

TEST(ReadScene, SolidHasItsLastCornersCrosswise) {
  const Scene scene = SceneOf({.entities = "0 SOLID|8 A|10 0|20 0|11 2|21 0|12 0|22 1|13 2|23 1|"});
  EXPECT_EQ(scene.surfaces[0].corners[2].x, 2);
  EXPECT_EQ(scene.surfaces[0].corners[3].x, 0);
}

TEST(ReadScene, MeshFacesAreSurfaces) {
  const Scene scene =
      SceneOf({.entities = "0 MESH|8 A|91 0|92 4|10 0|20 0|30 0|10 1|20 0|30 0|10 1|20 1|30 0|10 0|20 1|"
                           "30 5|93 8|90 3|90 0|90 1|90 2|90 3|90 0|90 2|90 3|94 0|"});
  ASSERT_EQ(scene.surfaces.size(), 2U);
  EXPECT_EQ(scene.surfaces[1].corners[2].z, 5);
}

TEST(ReadScene, MeshWithABrokenFaceListShowsWhatIsWhole) {
  const Scene scene = SceneOf({.entities = "0 MESH|8 A|92 3|10 0|20 0|30 0|10 1|20 0|30 0|10 1|20 1|30 0|"
                                           "93 9|90 3|90 0|90 1|90 2|90 99|90 0|94 0|"});
  EXPECT_EQ(scene.surfaces.size(), 1U);
}

TEST(ReadScene, ClosedPolylineInSpaceIsSurfaceAndCurve) {
  const auto vertex = [](const std::string& point) { return "0 VERTEX|8 A|" + point + "|70 32|"; };
  const Scene scene =
      SceneOf({.entities = "0 POLYLINE|8 A|66 1|70 9|" + vertex("10 0|20 0|30 0") + vertex("10 1|20 0|30 0") +
                           vertex("10 1|20 1|30 1") + "0 SEQEND|8 A|"});
  ASSERT_EQ(scene.surfaces.size(), 1U);
  EXPECT_EQ(scene.surfaces[0].hiddenEdges, ~0U);
  EXPECT_EQ(scene.curves[0].points.size(), 4U);
}

TEST(ReadScene, WhatIsNotShownIsCounted) {
  const Scene scene =
      SceneOf({.entities = "0 TOLERANCE|8 A|1 Hi|0 TOLERANCE|8 A|1 Ho|0 HATCH|8 A|" + Line("A", 0, 0, 1, 1)});
  EXPECT_EQ(scene.leftOut.at("TOLERANCE"), 2U);
  EXPECT_EQ(scene.leftOut.at("HATCH"), 1U);
}

TEST(ReadScene, EntitiesOfAWindowAreKnown) {
  const std::string marks = "|62 4|1001 TK_LT_ELEM|1000 TKBRVA|1071 7";
  const Scene scene = SceneOf({.entities = Rectangle("BODY", 0, 0, 1, 2, 3, marks) + Line("A", 0, 0, 9, 9)});
  ASSERT_EQ(scene.windows.size(), 1U);
  EXPECT_EQ(scene.windows[0].number, 7);
  EXPECT_TRUE(scene.surfaces[0].isGlass);
  EXPECT_EQ(scene.windows[0].box.high.y, 2);
  EXPECT_EQ(scene.windows[0].facing.z, 1);
  EXPECT_EQ(scene.curves[0].window, NO_WINDOW);
}

// A closed 3D polyline over a square of the plan in the plane z = y.
std::string SlopedSquare(double low, double high) {
  const auto vertex = [](double x, double y) {
    return fmt::format("0 VERTEX|10 {}|20 {}|30 {}|70 32|", x, y, y);
  };
  return "0 POLYLINE|8 A|66 1|70 9|" + vertex(low, low) + vertex(high, low) + vertex(high, high) +
         vertex(low, high) + "0 SEQEND|";
}

TEST(ReadScene, PolylineWithinAnotherIsAHoleOfItsSurface) {
  const Scene scene = SceneOf({.entities = SlopedSquare(1, 2) + SlopedSquare(0, 4)});
  ASSERT_EQ(scene.surfaces.size(), 1U);
  EXPECT_EQ(geometry::AreaVector(scene.surfaces[0].corners).z, 2 * (16 - 1));
  ASSERT_EQ(scene.curves.size(), 2U);
  EXPECT_EQ(scene.curves[0].outlined, NO_SURFACE);
  EXPECT_EQ(scene.curves[1].outlined, 0U);
}

TEST(ReadScene, SlopedHatchHasALineAroundIt) {
  // In the plane of the extrusion direction (0, -0.6, 0.8).
  const Scene scene =
      SceneOf({.entities = "0 HATCH|8 A|10 0|20 0|30 0|210 0|220 -0.6|230 0.8|2 SOLID|70 1|71 0|91 1|92 2|"
                           "72 0|73 1|93 3|10 0|20 0|10 4|20 0|10 0|20 3|97 0|75 0|76 1|98 0|"});
  ASSERT_EQ(scene.surfaces.size(), 1U);
  ASSERT_EQ(scene.curves.size(), 1U);
  EXPECT_EQ(scene.curves[0].points.size(), 4U);
  EXPECT_EQ(scene.curves[0].outlined, 0U);
}

}  // namespace
}  // namespace teskarlt::preview
