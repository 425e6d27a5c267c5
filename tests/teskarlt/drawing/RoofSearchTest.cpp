// RoofSearchTest.cpp - the faces of a drawing of which roofs can be made.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/RoofSearch.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

constexpr double TOLERANCE = 1.0;

std::string Point(int code, double x, double y, double z) {
  const auto group = [](int c, double value) {
    return std::to_string(c) + "\n" + std::to_string(value) + "\n";
  };
  return group(code, x) + group(code + 10, y) + group(code + 20, z);
}

const std::string SLOPE =
    Point(10, 0, 0, 0) + Point(11, 4000, 0, 0) + Point(12, 4000, 3000, 3000) + Point(13, 0, 3000, 3000);

std::string Face(const std::string& handle, const std::string& points) {
  return "0\n3DFACE\n5\n" + handle + "\n8\nROOF\n" + points;
}

std::string Vertex(int flags, const std::string& rest) {
  return "0\nVERTEX\n8\nROOF\n" + rest + "70\n" + std::to_string(flags) + "\n";
}

TEST(FindFaces, FaceIsNamedByItsHandle) {
  const dxf::Document drawing = Drawing("", Face("2F", SLOPE));
  const auto faces = FindFaces(drawing, TOLERANCE);
  ASSERT_EQ(faces.size(), 1U);
  EXPECT_EQ(faces[0].name, "2F");
  EXPECT_EQ(faces[0].layer, "ROOF");
  EXPECT_EQ(faces[0].type, "3DFACE");
  EXPECT_EQ(faces[0].corners.size(), 4U);
}

TEST(FindFaces, OrderOfTheGroupsInAFaceIsFree) {
  const std::string points =
      Point(13, 0, 3000, 3000) + Point(12, 4000, 3000, 3000) + Point(11, 4000, 0, 0) + Point(10, 0, 0, 0);
  EXPECT_EQ(FindFaces(Drawing("", Face("2F", "70\n0\n" + points)), TOLERANCE).size(), 1U);
}

TEST(FindFaces, MissingFourthCornerMakesATriangle) {
  const std::string points = Point(10, 0, 0, 0) + Point(11, 4000, 0, 0) + Point(12, 4000, 3000, 3000);
  const auto faces = FindFaces(Drawing("", Face("2F", points)), TOLERANCE);
  ASSERT_EQ(faces.size(), 1U);
  EXPECT_EQ(faces[0].corners.size(), 3U);
}

TEST(FindFaces, FaceWithoutOneOfItsFirstCornersIsLeftOut) {
  const std::string points = Point(10, 0, 1000, 0) + Point(12, 4000, 3000, 3000) + Point(13, 0, 3000, 3000);
  EXPECT_TRUE(FindFaces(Drawing("", Face("2F", points)), TOLERANCE).empty());
}

TEST(FindFaces, WallsAreLeftOut) {
  const std::string wall =
      Point(10, 0, 0, 0) + Point(11, 4000, 0, 0) + Point(12, 4000, 0, 2500) + Point(13, 0, 0, 2500);
  EXPECT_TRUE(FindFaces(Drawing("", Face("1", wall)), TOLERANCE).empty());
  EXPECT_THAT(SearchFaces(Drawing("", Face("1", wall)), TOLERANCE).walls,
              testing::ElementsAre(testing::Field(&Wall::name, "1")));
  EXPECT_EQ(FindWalls(Drawing("", Face("1", wall)), TOLERANCE).size(), 1U);
}

TEST(SearchFaces, OutlineThatCancelsItselfIsTold) {
  const std::string crossed = Point(10, 0, 0, 2000) + Point(11, 8000, 0, 2000) + Point(12, 0, 5000, 5000) +
                              Point(13, 8000, 5000, 5000);
  const FoundFaces found = SearchFaces(Drawing("", Face("1", crossed)), TOLERANCE);
  EXPECT_TRUE(found.faces.empty());
  EXPECT_EQ(
      TextOf(found.unread),
      "1 3DFACE that crosses or retraces itself is not read: draw its corners in their order around the "
      "roof, or give the plane by --roof");
}

TEST(FindFaces, FacesOfAWindowAreLeftOut) {
  const std::string data = "1001\nTK_LT_ELEM\n1000\nTKBRVA\n1071\n1\n";
  EXPECT_TRUE(FindFaces(Drawing("", Face("2F", SLOPE + data)), TOLERANCE).empty());
}

TEST(FindFaces, FaceWithForeignExtendedDataStays) {
  const std::string data = "1001\nOTHER\n1000\nTKBRVA\n1011\n1\n1021\n2\n1031\n3\n";
  EXPECT_EQ(FindFaces(Drawing("", Face("2F", SLOPE + data)), TOLERANCE).size(), 1U);
}

TEST(FindFaces, PolyfaceMeshGivesItsFacesWithNumbers) {
  const std::string mesh = "0\nPOLYLINE\n5\n30\n8\nMESH\n66\n1\n70\n64\n71\n5\n72\n2\n" +
                           Vertex(192, Point(10, 0, 0, 0)) + Vertex(192, Point(10, 4000, 0, 0)) +
                           Vertex(192, Point(10, 4000, 3000, 3000)) + Vertex(192, Point(10, 0, 3000, 3000)) +
                           Vertex(192, Point(10, 2000, 6000, 6000)) +
                           Vertex(128, Point(10, 0, 0, 0) + "71\n1\n72\n2\n73\n-3\n74\n4\n") +
                           Vertex(128, Point(10, 0, 0, 0) + "71\n4\n72\n3\n73\n5\n") + "0\nSEQEND\n8\nMESH\n";
  const auto faces = FindFaces(Drawing("", mesh), TOLERANCE);
  ASSERT_EQ(faces.size(), 2U);
  EXPECT_EQ(faces[0].name, "30.1");
  EXPECT_EQ(faces[0].layer, "MESH");
  EXPECT_EQ(faces[0].type, "POLYFACE MESH");
  EXPECT_EQ(faces[0].corners.size(), 4U);
  EXPECT_EQ(faces[1].name, "30.2");
  EXPECT_EQ(faces[1].corners.size(), 3U);
}

TEST(FindFaces, FaceOfAMeshThatNamesAMissingVertexIsLeftOut) {
  const std::string vertices = Vertex(192, Point(10, 0, 0, 0)) + Vertex(192, Point(10, 4000, 0, 0)) +
                               Vertex(192, Point(10, 4000, 3000, 3000));
  for (const char* number : {"4", "-4", "9223372036854775807", "-9223372036854775808"}) {
    const std::string mesh = "0\nPOLYLINE\n5\n30\n70\n64\n" + vertices +
                             Vertex(128, "71\n1\n72\n2\n73\n3\n74\n" + std::string(number) + "\n") +
                             "0\nSEQEND\n";
    EXPECT_TRUE(FindFaces(Drawing("", mesh), TOLERANCE).empty()) << number;
  }
}

TEST(FindFaces, PolygonMeshGivesItsQuadrilaterals) {
  const std::string mesh = "0\nPOLYLINE\n5\n30\n8\nMESH\n66\n1\n70\n16\n71\n2\n72\n3\n" +
                           Vertex(64, Point(10, 0, 0, 0)) + Vertex(64, Point(10, 0, 1000, 1000)) +
                           Vertex(64, Point(10, 0, 2000, 2000)) + Vertex(64, Point(10, 4000, 0, 0)) +
                           Vertex(64, Point(10, 4000, 1000, 1000)) + Vertex(64, Point(10, 4000, 2000, 2000)) +
                           "0\nSEQEND\n";
  const auto faces = FindFaces(Drawing("", mesh), TOLERANCE);
  ASSERT_EQ(faces.size(), 2U);
  EXPECT_EQ(faces[1].name, "30.2");
  EXPECT_EQ(faces[1].corners[0].y, 1000);
}

TEST(FindFaces, MeshWithAWrongCountOfVerticesGivesNone) {
  const std::string mesh =
      "0\nPOLYLINE\n5\n30\n70\n16\n71\n2\n72\n3\n" + Vertex(64, Point(10, 0, 0, 0)) + "0\nSEQEND\n";
  EXPECT_TRUE(FindFaces(Drawing("", mesh), TOLERANCE).empty());
}

TEST(FindFaces, ClosedThreeDimensionalPolylineIsAFaceAndAnOpenOneIsNot) {
  const std::string vertices = Vertex(32, Point(10, 0, 0, 0)) + Vertex(32, Point(10, 4000, 0, 0)) +
                               Vertex(32, Point(10, 4000, 3000, 3000)) + "0\nSEQEND\n";
  EXPECT_EQ(FindFaces(Drawing("", "0\nPOLYLINE\n5\n30\n8\nROOF\n70\n9\n" + vertices), TOLERANCE).size(), 1U);
  EXPECT_TRUE(FindFaces(Drawing("", "0\nPOLYLINE\n5\n30\n8\nROOF\n70\n8\n" + vertices), TOLERANCE).empty());
}

TEST(FindFaces, FaceWithoutAHandleIsNumbered) {
  const auto faces = FindFaces(Drawing("", "0\nLINE\n8\n0\n0\n3DFACE\n8\nROOF\n" + SLOPE), TOLERANCE);
  ASSERT_EQ(faces.size(), 1U);
  EXPECT_EQ(faces[0].name, "N2");
}

TEST(SearchFaces, FlatOutlinesAtHeightZeroAreLinesOfAPlan) {
  const std::string outline = "|70 1|10 0|20 0|10 4000|20 0|10 4000|20 3000|";
  EXPECT_TRUE(FindFaces(Drawing("", Groups("0 LWPOLYLINE|8 A" + outline)), TOLERANCE).empty());
  EXPECT_EQ(FindFaces(Drawing("", Groups("0 LWPOLYLINE|8 A|38 2500" + outline)), TOLERANCE).size(), 1U);
}

TEST(SearchFaces, PolylineWithinAnotherOneIsItsHole) {
  const auto outline = [](int low, int high) {
    return Groups("0 LWPOLYLINE|8 A|70 1|38 2500|10 " + std::to_string(low) + "|20 0|10 " +
                  std::to_string(high) + "|20 0|10 " + std::to_string(high) + "|20 3000|10 " +
                  std::to_string(low) + "|20 3000|");
  };
  const auto faces = FindFaces(Drawing("", outline(0, 4000) + outline(1000, 2000)), TOLERANCE);
  ASSERT_EQ(faces.size(), 1U);
  EXPECT_DOUBLE_EQ(Area(faces[0]), 3000 * 3000);
}

TEST(PresentName, OldNamesAreUnderstood) {
  EXPECT_EQ(PresentName("2F/3"), "2F.3");
  EXPECT_EQ(PresentName("#7"), "N7");
  EXPECT_EQ(PresentName("1A-2.2F.3"), "1A-2.2F.3");
}

}  // namespace
}  // namespace teskarlt
