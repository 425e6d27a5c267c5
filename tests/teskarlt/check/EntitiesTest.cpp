// EntitiesTest.cpp - polylines, face meshes, attributes and control groups.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

constexpr const char* POLYLINE = "0|POLYLINE|8|ROOF|66|1|10|0|20|0|30|0|70|8|";
constexpr const char* VERTEX = "0|VERTEX|8|ROOF|10|0|20|0|30|0|70|32|";
constexpr const char* END = "0|SEQEND|8|ROOF|";
constexpr const char* MESH = "0|POLYLINE|8|ROOF|66|1|70|64|";
constexpr const char* MESH_POINT = "0|VERTEX|8|ROOF|10|0|20|0|30|0|70|192|";

std::string OfAll(std::initializer_list<std::string> parts) {
  std::string all;
  for (const std::string& part : parts)
    all += part;
  return SoundOld(all);
}

TEST(Entities, PolylineWithItsEndIsSound) {
  EXPECT_THAT(Found(OfAll({POLYLINE, VERTEX, VERTEX, END, OldLine()})), IsEmpty());
}

TEST(Entities, PolylineWithoutItsEndIsFoundWhereItBegins) {
  EXPECT_THAT(Found(OfAll({POLYLINE, VERTEX, OldLine()})), ElementsAre("error seqend-missing POLYLINE"));
  EXPECT_THAT(Found(OfAll({POLYLINE, VERTEX})), ElementsAre("error seqend-missing POLYLINE"));
}

TEST(Entities, InsertWithAttributesNeedsItsEnd) {
  const std::string insert = "0|INSERT|8|ROOF|66|1|2|TREE|10|0|20|0|";
  EXPECT_THAT(Found(OfAll({insert, "0|ATTRIB|8|ROOF|10|0|20|0|1|x|2|KIND|"})),
              testing::Contains("error seqend-missing INSERT"));
}

TEST(Entities, VertexOutsideOfAPolylineIsAnError) {
  EXPECT_THAT(Found(OfAll({OldLine(), VERTEX})), ElementsAre("error part-outside VERTEX"));
  EXPECT_THAT(Found(OfAll({END})), ElementsAre("error part-outside SEQEND"));
}

TEST(Entities, FaceOfAMeshMayOnlyHaveItsVertices) {
  const std::string face = "0|VERTEX|8|ROOF|10|0|20|0|30|0|70|128|71|1|72|-2|73|3|74|";
  EXPECT_THAT(Found(OfAll({MESH, MESH_POINT, MESH_POINT, MESH_POINT, face + "0|", END})), IsEmpty());
  EXPECT_THAT(Found(OfAll({MESH, MESH_POINT, MESH_POINT, MESH_POINT, face + "-4|", END})),
              ElementsAre("error face-index -4"));
}

TEST(Entities, LightPolylineHasToHaveTheVerticesThatItSays) {
  const std::string points = "10|0|20|0|10|1|20|0|10|1|20|1|";
  EXPECT_THAT(Found(SoundOld("0|LWPOLYLINE|8|ROOF|90|3|70|1|" + points)), IsEmpty());
  EXPECT_THAT(Found(SoundOld("0|LWPOLYLINE|8|ROOF|90|4|70|1|" + points)),
              ElementsAre("error vertex-count 4"));
}

TEST(Entities, EntityWithoutALayerIsDoubtful) {
  EXPECT_THAT(Found(SoundOld("0|POINT|10|0|20|0|")), ElementsAre("warning layer-missing POINT"));
}

TEST(Entities, ControlGroupHasToBeClosed) {
  EXPECT_THAT(Found(Sound(Line("100", "102|{MAKER|70|1|102|}|"))), IsEmpty());
  EXPECT_THAT(Found(Sound(Line("100", "102|{MAKER|70|1|"))), ElementsAre("error control-group {MAKER"));
  EXPECT_THAT(Found(Sound(Line("100", "102|}|"))), ElementsAre("error control-group }"));
}

}  // namespace
}  // namespace teskarlt::check
