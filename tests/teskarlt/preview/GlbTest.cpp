// GlbTest.cpp - the structure of 3D models.
#include <bit>
#include <cstdint>

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
  ASSERT_EQ(model.json["accessors"].size(), 2U);
  EXPECT_EQ(model.json["accessors"][0]["count"], 6);
  EXPECT_EQ(model.json["accessors"][1]["count"], 8);
  EXPECT_EQ(model.json["meshes"][0]["primitives"][1]["mode"], 1);
  EXPECT_EQ(model.json["buffers"][0]["byteLength"], 14 * 12);
}

TEST(Glb, PointsAreMetresAroundTheMiddleWithYUp) {
  const Model model =
      Read(Glb(SceneOf({.entities = Line("A", 100, 200, 300, 600, "|30 50|31 150")}, {"cm", {}})));
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

TEST(Glb, DashesAreCutOut) {
  const Model model = Read(Glb(
      SceneOf({.tables = "0 LTYPE|2 T|70 0|49 1.0|49 -1.0|", .entities = Line("A", 0, 0, 10, 0, "|6 T")})));
  EXPECT_EQ(model.json["accessors"][0]["count"], 10);
}

}  // namespace
}  // namespace teskarlt::preview
