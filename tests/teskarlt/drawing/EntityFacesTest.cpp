// EntityFacesTest.cpp - the faces of 3D faces, meshes and closed 3D polylines.
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/EntityFaces.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

std::string Point(int code, double x, double y, double z) {
  const auto tag = [](int c, double value) {
    return std::to_string(c) + "\n" + std::to_string(value) + "\n";
  };
  return tag(code, x) + tag(code + 10, y) + tag(code + 20, z);
}

std::string Vertex(int flags, double x, double y, const std::string& rest = "") {
  return "0\nVERTEX\n8\nOTHER\n" + Point(10, x, y, 7) + "70\n" + std::to_string(flags) + "\n" + rest;
}

std::string Polyline(const std::string& own, const std::string& vertices) {
  return "0\nPOLYLINE\n8\nROOF\n66\n1\n" + own + vertices + "0\nSEQEND\n8\nOTHER\n";
}

// The faces of the drawing's only entity.
EntityFaces Faces(const std::string& entity) {
  const dxf::Document drawing = Drawing("", entity);
  return FacesOf(drawing, drawing.Entities()[0]);
}

// The corners' x, in order, as "0 4 4".
std::string XOf(const FaceCorners& face) {
  std::string text;
  for (const geometry::Vec3& corner : face.corners)
    text += (text.empty() ? "" : " ") + std::to_string(std::lround(corner.x));
  return text;
}

// --- 3D faces ---

const std::string TRIANGLE =
    "0\n3DFACE\n8\nROOF\n" + Point(10, 1, 0, 0) + Point(11, 2, 0, 0) + Point(12, 3, 5, 6);

TEST(FacesOf, FaceHasItsCornersInOrder) {
  const EntityFaces faces = Faces(TRIANGLE + Point(13, 4, 8, 9));
  EXPECT_STREQ(faces.type, "3DFACE");
  EXPECT_EQ(faces.layer, "ROOF");
  ASSERT_THAT(faces.faces, SizeIs(1));
  EXPECT_EQ(XOf(faces.faces[0]), "1 2 3 4");
  EXPECT_EQ(faces.faces[0].corners[2].y, 5);
  EXPECT_EQ(faces.faces[0].corners[2].z, 6);
}

TEST(FacesOf, FaceWithoutAFourthCornerIsATriangle) {
  EXPECT_EQ(XOf(Faces(TRIANGLE).faces.at(0)), "1 2 3");
}

TEST(FacesOf, FaceHidesTheEdgesOfItsFlags) {
  EXPECT_EQ(Faces(TRIANGLE).faces.at(0).hiddenEdges, 0U);
  EXPECT_EQ(Faces(TRIANGLE + "70\n5\n").faces.at(0).hiddenEdges, 5U);
  EXPECT_EQ(Faces(TRIANGLE + "70\n18\n").faces.at(0).hiddenEdges, 2U);  // 16 is no edge
}

TEST(FacesOf, FaceWithoutACornerHasNone) {
  EXPECT_THAT(Faces("0\n3DFACE\n8\nROOF\n" + Point(10, 1, 0, 0) + Point(12, 3, 5, 6)).faces, IsEmpty());
}

TEST(FacesOf, PointsOfExtendedDataAreNoCorners) {
  EXPECT_EQ(XOf(Faces(TRIANGLE + "1001\nOTHER\n" + Point(1010, 9, 9, 9)).faces.at(0)), "1 2 3");
}

// --- Polyface meshes ---

constexpr const char* POLYFACE = "70\n64\n";
const std::string CORNERS = Vertex(192, 1, 0) + Vertex(192, 2, 0) + Vertex(192, 3, 0) + Vertex(192, 4, 0);

TEST(FacesOf, PolyfaceMeshNamesCornersByTheirNumbers) {
  const EntityFaces faces = Faces(Polyline(POLYFACE, CORNERS + Vertex(128, 0, 0, "71\n4\n72\n2\n73\n1\n") +
                                                         Vertex(128, 0, 0, "71\n1\n72\n2\n73\n3\n74\n4\n")));
  EXPECT_STREQ(faces.type, "POLYFACE MESH");
  EXPECT_EQ(faces.layer, "ROOF");
  ASSERT_THAT(faces.faces, SizeIs(2));
  EXPECT_EQ(XOf(faces.faces[0]), "4 2 1");
  EXPECT_EQ(XOf(faces.faces[1]), "1 2 3 4");
}

TEST(FacesOf, NegativeNumberHidesTheEdgeBehindItsCorner) {
  const EntityFaces faces =
      Faces(Polyline(POLYFACE, CORNERS + Vertex(128, 0, 0, "71\n1\n72\n-2\n73\n3\n74\n-4\n")));
  EXPECT_EQ(XOf(faces.faces.at(0)), "1 2 3 4");
  EXPECT_EQ(faces.faces[0].hiddenEdges, 2U + 8U);
}

TEST(FacesOf, FaceOfAMeshWithAWrongNumberKeepsItsPlaceWithoutCorners) {
  for (const char* number : {"5", "-5", "9223372036854775807", "-9223372036854775808"}) {
    const EntityFaces faces = Faces(
        Polyline(POLYFACE, CORNERS + Vertex(128, 0, 0, "71\n1\n72\n2\n73\n" + std::string(number) + "\n") +
                               Vertex(128, 0, 0, "71\n1\n72\n2\n73\n3\n")));
    ASSERT_THAT(faces.faces, SizeIs(2)) << number;
    EXPECT_THAT(faces.faces[0].corners, IsEmpty());
    EXPECT_EQ(XOf(faces.faces[1]), "1 2 3");
  }
}

TEST(FacesOf, OtherVerticesOfAMeshAreNoCorners) {
  const EntityFaces faces =
      Faces(Polyline(POLYFACE, Vertex(0, 9, 9) + CORNERS + Vertex(128, 0, 0, "71\n1\n72\n2\n73\n3\n")));
  EXPECT_EQ(XOf(faces.faces.at(0)), "1 2 3");
}

// --- Polygon meshes ---

// 2 rows of 3; the x of a vertex is its row and column as two digits.
std::string Grid(const std::string& flags) {
  std::string vertices;
  for (const int x : {11, 12, 13, 21, 22, 23})
    vertices += Vertex(64, x, 0);
  return Polyline("70\n" + flags + "\n71\n2\n72\n3\n", vertices);
}

TEST(FacesOf, PolygonMeshHasAFaceBetweenFourVertices) {
  const EntityFaces faces = Faces(Grid("16"));
  EXPECT_STREQ(faces.type, "POLYGON MESH");
  ASSERT_THAT(faces.faces, SizeIs(2));
  EXPECT_EQ(XOf(faces.faces[0]), "11 12 22 21");
  EXPECT_EQ(XOf(faces.faces[1]), "12 13 23 22");
}

TEST(FacesOf, ClosedPolygonMeshGoesOnWhereItBegan) {
  const EntityFaces along = Faces(Grid("17"));
  ASSERT_THAT(along.faces, SizeIs(4));
  EXPECT_EQ(XOf(along.faces[2]), "21 22 12 11");
  const EntityFaces across = Faces(Grid("48"));
  ASSERT_THAT(across.faces, SizeIs(3));
  EXPECT_EQ(XOf(across.faces[2]), "13 11 21 23");
}

TEST(FacesOf, PolygonMeshWhoseCountsDoNotFitHasNoFaces) {
  const std::string vertices = Vertex(64, 1, 0) + Vertex(64, 2, 0) + Vertex(64, 3, 0) + Vertex(64, 4, 0);
  EXPECT_THAT(Faces(Polyline("70\n16\n71\n2\n72\n2\n", vertices)).faces, SizeIs(1));
  for (const char* counts :
       {"71\n2\n72\n3\n", "71\n1\n72\n4\n", "71\n-2\n72\n-2\n", "", "71\n4294967298\n72\n4294967298\n"}) {
    EXPECT_THAT(Faces(Polyline("70\n16\n" + std::string(counts), vertices)).faces, IsEmpty()) << counts;
  }
}

TEST(FacesOf, ControlPointsOfASmoothedMeshAreNoVertices) {
  const std::string frame = Vertex(16, 8, 0) + Vertex(16, 9, 0);
  const std::string vertices = Vertex(64, 1, 0) + Vertex(64, 2, 0) + Vertex(64, 3, 0) + Vertex(64, 4, 0);
  const EntityFaces faces = Faces(Polyline("70\n16\n71\n2\n72\n2\n", frame + vertices));
  EXPECT_EQ(XOf(faces.faces.at(0)), "1 2 4 3");
}

// --- Polylines and other entities ---

TEST(FacesOf, ClosedThreeDimensionalPolylineBoundsAFace) {
  const std::string vertices = Vertex(16, 9, 0) + Vertex(32, 1, 0) + Vertex(32, 2, 0) + Vertex(32, 3, 4);
  const EntityFaces faces = Faces(Polyline("70\n9\n", vertices));
  EXPECT_STREQ(faces.type, "3D POLYLINE");
  EXPECT_EQ(XOf(faces.faces.at(0)), "1 2 3");
  EXPECT_EQ(faces.faces[0].corners[2].z, 7);
}

TEST(FacesOf, OpenAndPlanarPolylinesHaveNoFaces) {
  const std::string vertices = Vertex(32, 1, 0) + Vertex(32, 2, 0) + Vertex(32, 3, 4);
  EXPECT_THAT(Faces(Polyline("70\n8\n", vertices)).faces, IsEmpty());
  EXPECT_THAT(Faces(Polyline("70\n1\n", vertices)).faces, IsEmpty());
}

TEST(FacesOf, OtherEntitiesHaveNoFaces) {
  const EntityFaces faces = Faces("0\nLINE\n8\nROOF\n" + Point(10, 1, 0, 0) + Point(11, 2, 0, 0));
  EXPECT_STREQ(faces.type, "");
  EXPECT_THAT(faces.faces, IsEmpty());
}

}  // namespace
}  // namespace teskarlt
