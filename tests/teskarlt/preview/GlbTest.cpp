// GlbTest.cpp - the structure of 3D models.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "teskarlt/preview/Glb.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

std::uint32_t NumberAt(const std::string& file, std::size_t place) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;)
    number = number << 8 | static_cast<unsigned char>(file[place + i]);
  return number;
}

struct Model {
  nlohmann::json json;
  std::string binary;
};

Model Read(const std::string& file) {
  const std::size_t length = NumberAt(file, 12);
  return {nlohmann::json::parse(file.substr(20, length)), file.substr(28 + length)};
}

float FloatAt(const Model& model, std::size_t place) {
  return std::bit_cast<float>(NumberAt(model.binary, place));
}

TEST(Glb, LengthsOfFileAndChunksAgree) {
  const std::string file = Glb(SceneOf({.entities = Rectangle("A", 0, 0, 2, 4, 1)}));
  const std::uint32_t length = NumberAt(file, 12);
  EXPECT_EQ(file.substr(0, 4), "glTF");
  EXPECT_EQ(NumberAt(file, 4), 2U);
  EXPECT_EQ(NumberAt(file, 8), file.size());
  EXPECT_EQ(length % 4, 0U);
  EXPECT_EQ(NumberAt(file, 20 + length) + 28 + length, file.size());
}

TEST(Glb, RectangleIsTwoTrianglesAndFourEdges) {
  const Model model = Read(Glb(SceneOf({.entities = Rectangle("A", 0, 0, 2, 4, 1)})));
  const nlohmann::json& primitives = model.json["meshes"][0]["primitives"];
  const auto countOf = [&](const nlohmann::json& attribute) {
    return model.json["accessors"][attribute.get<std::size_t>()]["count"];
  };
  ASSERT_EQ(primitives.size(), 2U);
  EXPECT_EQ(countOf(primitives[0]["attributes"]["POSITION"]), 6);
  EXPECT_EQ(countOf(primitives[1]["attributes"]["POSITION"]), 8);
  EXPECT_EQ(primitives[1]["mode"], 1);
  EXPECT_EQ(model.json["buffers"][0]["byteLength"], 14 * (12 + 4));  // a point and its surface's number
}

TEST(Glb, SurfaceAndItsEdgesHaveItsNumber) {
  const Model model =
      Read(Glb(SceneOf({.entities = Rectangle("A", 0, 0, 2, 4, 1) + Rectangle("B", 0, 0, 2, 4, 2)})));
  for (const nlohmann::json& primitive : model.json["meshes"][1]["primitives"]) {
    const std::size_t accessor = primitive["attributes"]["_SURFACE"];
    const std::size_t view = model.json["accessors"][accessor]["bufferView"];
    EXPECT_FLOAT_EQ(FloatAt(model, model.json["bufferViews"][view]["byteOffset"]), 2);
  }
}

TEST(Glb, ClosedPolylineHasTheNumberOfItsSurfaceAndALineNone) {
  const std::string ring =
      "0 POLYLINE|8 A|70 9|0 VERTEX|10 0|20 0|30 0|0 VERTEX|10 4|20 0|30 0|0 VERTEX|10 4|20 3|30 0|0 SEQEND|";
  const Model model = Read(Glb(SceneOf({.entities = ring + Line("B", 0, 0, 1, 1)})));
  EXPECT_TRUE(model.json["meshes"][0]["primitives"].back()["attributes"].contains("_SURFACE"));
  EXPECT_FALSE(model.json["meshes"][1]["primitives"][0]["attributes"].contains("_SURFACE"));
}

TEST(Glb, PointsAreMetresAroundTheMiddleWithYUp) {
  const Model model =
      Read(Glb(SceneOf({.entities = Line("A", 100, 200, 300, 600, "|30 50|31 150")}, {{"cm", true}, {}})));
  EXPECT_FLOAT_EQ(FloatAt(model, 0), -1);
  EXPECT_FLOAT_EQ(FloatAt(model, 4), 0);
  EXPECT_FLOAT_EQ(FloatAt(model, 8), 2);
  EXPECT_FLOAT_EQ(FloatAt(model, 16), 1);
  EXPECT_EQ(model.json["asset"]["extras"]["origin"], (nlohmann::json{200, 400, 50}));
}

TEST(Glb, OneNodeALayerWithItsName) {
  const Model model = Read(Glb(SceneOf({.entities = Line("A", 0, 0, 1, 1) + Line("B", 0, 0, 1, 1)})));
  ASSERT_EQ(model.json["nodes"].size(), 2U);
  EXPECT_EQ(model.json["nodes"][1]["name"], "B");
  EXPECT_EQ(model.json["scenes"][0]["nodes"], (nlohmann::json{0, 1}));
}

TEST(Glb, WindowIsListedWithItsPlace) {
  const Model model = Read(
      Glb(SceneOf({.entities = Rectangle("B", 0, 0, 3, 4, 0, "|62 4|1001 TK_LT_ELEM|1000 TKBRVA|1071 7")})));
  const nlohmann::json& window = model.json["asset"]["extras"]["windows"][0];
  EXPECT_EQ(window["number"], 7);
  EXPECT_EQ(window["size"], 5);
  EXPECT_EQ(window["facing"], (nlohmann::json{0, 1, 0}));
}

constexpr const char* OF_WINDOW = "|1001 TK_LT_ELEM|1000 TKBRVA|1071 7";

// A window with a frame of one face, a pane half a metre above it, and a line between both.
Scene WindowScene() {
  return SceneOf({.entities = Rectangle("BODY", 0, 0, 3, 4, 0, OF_WINDOW) +
                              Rectangle("BODY", 0, 0, 3, 4, 0.5, std::string("|62 4") + OF_WINDOW) +
                              Line("SYMBOL", 0, 0, 3, 4, OF_WINDOW) + Line("WALLS", 0, 0, 3, 4)});
}

// The names of the node's children.
std::vector<std::string> ChildrenOf(const Model& model, const nlohmann::json& node) {
  std::vector<std::string> names;
  for (const std::size_t child : node["children"])
    names.push_back(model.json["nodes"][child]["name"]);
  return names;
}

TEST(Glb, WindowIsANodeWithANodeALayer) {
  const Model model = Read(Glb(WindowScene()));
  const nlohmann::json& roots = model.json["scenes"][0]["nodes"];
  ASSERT_EQ(roots.size(), 2U);
  EXPECT_EQ(model.json["nodes"][roots[0].get<std::size_t>()]["name"], "WALLS");
  const nlohmann::json& window = model.json["nodes"][roots[1].get<std::size_t>()];
  EXPECT_EQ(window["name"], "7");
  EXPECT_EQ(ChildrenOf(model, window), (std::vector<std::string>{"BODY", "SYMBOL"}));
  EXPECT_EQ(model.json["asset"]["extras"]["windows"][0]["node"], roots[1]);
}

TEST(Glb, WindowHasItsNameAndThoseValuesThatAreKnown) {
  Scene scene = WindowScene();
  scene.windows[0].name = "W07";
  scene.windows[0].values = R"({"mark": "W07", "width": 0.78, "roof": null})";
  const Model model = Read(Glb(scene));
  const nlohmann::json& window = model.json["nodes"].back();
  EXPECT_EQ(window["name"], "W07");
  EXPECT_EQ(window["extras"], (nlohmann::json{{"number", 7}, {"mark", "W07"}, {"width", 0.78}}));
}

TEST(Glb, FrameAndPaneAreMaterials) {
  const Model model = Read(Glb(WindowScene()));
  std::vector<std::string> names;
  for (const nlohmann::json& material : model.json["materials"])
    names.push_back(material["name"]);
  EXPECT_EQ(std::count(names.begin(), names.end(), "frame"), 1);
  EXPECT_EQ(std::count(names.begin(), names.end(), "glass"), 1);
  EXPECT_EQ(std::count(names.begin(), names.end(), "surface"), 0);
}

TEST(Glb, SymbolLiesOnThePane) {
  const Model model = Read(Glb(WindowScene()));
  const nlohmann::json& node = model.json["nodes"][2];
  ASSERT_EQ(node["name"], "SYMBOL");
  const std::size_t mesh = node["mesh"];
  const std::size_t points = model.json["meshes"][mesh]["primitives"][0]["attributes"]["POSITION"];
  EXPECT_FLOAT_EQ(model.json["accessors"][points]["min"][1], 0.505F);  // a thousandth of its diagonal over it
}

TEST(Glb, DashesAreCutOut) {
  const Model model = Read(Glb(
      SceneOf({.tables = "0 LTYPE|2 T|70 0|49 1.0|49 -1.0|", .entities = Line("A", 0, 0, 10, 0, "|6 T")})));
  EXPECT_EQ(model.json["accessors"][0]["count"], 10);
}

}  // namespace
}  // namespace teskarlt::preview
