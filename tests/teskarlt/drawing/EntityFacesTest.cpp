// EntityFacesTest.cpp - the faces of entities of each kind.
#include <cmath>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "geometry/PlanCover.h"
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
std::string XOf(const EntityFace& face) {
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

// --- Polylines ---

TEST(FacesOf, ClosedThreeDimensionalPolylineBoundsAFace) {
  const std::string vertices = Vertex(16, 9, 0) + Vertex(32, 1, 0) + Vertex(32, 2, 0) + Vertex(32, 3, 4);
  const EntityFaces faces = Faces(Polyline("70\n9\n", vertices));
  EXPECT_STREQ(faces.type, "3D POLYLINE");
  EXPECT_EQ(XOf(faces.faces.at(0)), "1 2 3");
  EXPECT_EQ(faces.faces[0].corners[2].z, 7);
}

TEST(FacesOf, OpenPolylinesHaveNoFaces) {
  const std::string vertices = Vertex(32, 1, 0) + Vertex(32, 2, 0) + Vertex(32, 3, 4);
  EXPECT_THAT(Faces(Polyline("70\n8\n", vertices)).faces, IsEmpty());
  EXPECT_THAT(Faces(Polyline("70\n0\n", vertices)).faces, IsEmpty());
  EXPECT_THAT(Faces(Groups("0 LWPOLYLINE|8 A|10 0|20 0|10 4|20 0|10 4|20 3|10 0|20 1|")).faces, IsEmpty());
}

TEST(FacesOf, PolylineThatEndsWhereItBeganIsClosed) {
  const std::string ring = Vertex(32, 1, 0) + Vertex(32, 2, 0) + Vertex(32, 3, 4) + Vertex(32, 1, 0);
  EXPECT_EQ(XOf(Faces(Polyline("70\n8\n", ring)).faces.at(0)), "1 2 3");
  EXPECT_EQ(XOf(Faces(Polyline("70\n0\n", ring)).faces.at(0)), "1 2 3");
  EXPECT_EQ(XOf(Faces(Groups("0 LWPOLYLINE|8 A|10 1|20 0|10 2|20 0|10 3|20 4|10 1|20 0|")).faces.at(0)),
            "1 2 3");
}

TEST(FacesOf, LightPolylineLiesAtItsElevationInItsTiltedPlane) {
  // The extrusion direction (0, -0.6, 0.8) has its x axis along x and its y axis along (0, 0.8, 0.6).
  const EntityFaces faces = Faces(Groups(
      "0 LWPOLYLINE|8 ROOF|70 1|38 10|210 0|220 -0.6|230 0.8|10 0|20 0|10 4|20 0|10 4|20 5|10 0|20 5|"));
  EXPECT_STREQ(faces.type, "LWPOLYLINE");
  EXPECT_TRUE(faces.isFlatKind);
  const geometry::Vec3 corner = faces.faces.at(0).corners.at(2);
  EXPECT_NEAR(corner.x, 4, 1e-12);
  EXPECT_NEAR(corner.y, 5 * 0.8 - 10 * 0.6, 1e-12);
  EXPECT_NEAR(corner.z, 5 * 0.6 + 10 * 0.8, 1e-12);
}

TEST(FacesOf, PolylineInAPlaneLiesAtItsElevation) {
  const EntityFaces faces =
      Faces(Polyline("70\n1\n30\n12\n", Vertex(0, 1, 0) + Vertex(0, 2, 0) + Vertex(0, 3, 4)));
  EXPECT_STREQ(faces.type, "2D POLYLINE");
  EXPECT_EQ(XOf(faces.faces.at(0)), "1 2 3");
  EXPECT_EQ(faces.faces[0].corners[2].z, 12);
}

TEST(FacesOf, ArcOfAPolylineIsDividedIntoSteps) {
  // A half circle (bulge 1) in steps of 5 degrees closes the rectangle.
  const EntityFaces faces =
      Faces(Groups("0 LWPOLYLINE|8 A|70 1|38 3|10 0|20 0|10 4|20 0|42 1|10 4|20 2|10 0|20 2|"));
  ASSERT_THAT(faces.faces.at(0).corners, SizeIs(4 + 35));
  EXPECT_NEAR(faces.faces[0].corners[2 + 17].x, 5, 1e-12);
}

// --- Solids ---

TEST(FacesOf, SolidHasItsLastCornersCrosswise) {
  const EntityFaces faces =
      Faces(Groups("0 SOLID|8 A|10 1|20 0|30 5|11 2|21 0|31 5|12 3|22 1|32 5|13 4|23 1|33 5|"));
  EXPECT_STREQ(faces.type, "SOLID");
  EXPECT_EQ(XOf(faces.faces.at(0)), "1 2 4 3");
  EXPECT_EQ(faces.faces[0].corners[3].z, 5);
}

TEST(FacesOf, TraceStandsInItsTiltedPlane) {
  const EntityFaces faces =
      Faces(Groups("0 TRACE|8 A|210 0|220 -0.6|230 0.8|10 0|20 0|11 4|21 0|12 0|22 5|13 4|23 5|"));
  EXPECT_STREQ(faces.type, "TRACE");
  EXPECT_NEAR(faces.faces.at(0).corners.at(2).y, 4, 1e-12);
  EXPECT_NEAR(faces.faces[0].corners[2].z, 3, 1e-12);
}

// --- MESH ---

const std::string MESH =
    "0 MESH|8 A|91 2|92 5|10 1|20 0|30 0|10 2|20 0|30 0|10 3|20 1|30 0|10 4|20 1|30 0|10 5|20 2|30 0|";

TEST(FacesOf, MeshHasItsFacesAsDrawn) {
  const EntityFaces faces =
      Faces(Groups(MESH + "93 9|90 4|90 0|90 1|90 2|90 3|90 3|90 2|90 3|90 4|94 1|90 0|90 1|95 0|"));
  EXPECT_STREQ(faces.type, "MESH");
  ASSERT_THAT(faces.faces, SizeIs(2));
  EXPECT_EQ(XOf(faces.faces[0]), "1 2 3 4");
  EXPECT_EQ(XOf(faces.faces[1]), "3 4 5");
}

TEST(FacesOf, FaceOfAMeshThatNamesAMissingVertexHasNoCorners) {
  const EntityFaces faces = Faces(Groups(MESH + "93 8|90 3|90 0|90 1|90 5|90 3|90 0|90 1|90 -1|94 0|"));
  ASSERT_THAT(faces.faces, SizeIs(2));
  EXPECT_THAT(faces.faces[0].corners, IsEmpty());
  EXPECT_THAT(faces.faces[1].corners, IsEmpty());
}

// --- Hatches ---

std::string Square(double low, double high) {
  return fmt::format("92 2|72 0|73 1|93 4|10 {0}|20 {0}|10 {1}|20 {0}|10 {1}|20 {1}|10 {0}|20 {1}|97 0|", low,
                     high);
}

std::string Hatch(const std::string& paths, const std::string& style = "0") {
  return Groups("0 HATCH|8 A|10 0|20 0|30 7|210 0|220 0|230 1|2 SOLID|70 1|71 0|91 1|" + paths + "75 " +
                style + "|76 1|98 1|10 99|20 99|");
}

TEST(FacesOf, HatchKeepsEverySecondBoundaryAsAHole) {
  const EntityFaces faces = Faces(Hatch(Square(1, 8) + Square(2, 7) + Square(3, 6)));
  EXPECT_STREQ(faces.type, "HATCH");
  ASSERT_THAT(faces.faces, SizeIs(2));
  EXPECT_EQ(XOf(faces.faces[0]), "1 8 8 1");
  EXPECT_EQ(faces.faces[0].corners[0].z, 7);
  ASSERT_THAT(faces.faces[0].holes, SizeIs(1));
  EXPECT_EQ(faces.faces[0].holes[0].size(), 4U);
  EXPECT_EQ(XOf(faces.faces[1]), "3 6 6 3");
}

TEST(FacesOf, StyleOfAHatchSaysHowDeepItFills) {
  const EntityFaces outer = Faces(Hatch(Square(1, 8) + Square(2, 7) + Square(3, 6), "1"));
  ASSERT_THAT(outer.faces, SizeIs(1));
  EXPECT_THAT(outer.faces[0].holes, SizeIs(1));
  const EntityFaces whole = Faces(Hatch(Square(1, 8) + Square(2, 7), "2"));
  EXPECT_THAT(whole.faces.at(0).holes, IsEmpty());
}

TEST(FacesOf, HatchHasLinesAndArcsForEdges) {
  // Three sides of a rectangle, and a half circle from (4, 0) to (4, 2) clockwise around (4, 1) beyond it:
  // angles of such an arc are counted clockwise.
  const EntityFaces faces = Faces(Hatch(
      "92 1|93 4|72 1|10 0|20 2|11 0|21 0|72 1|10 0|20 0|11 4|21 0|72 2|10 4|20 1|40 1|50 270|51 450|73 1|72 "
      "1|10 4|20 2|11 0|21 2|97 0|"));
  ASSERT_THAT(faces.faces, SizeIs(1));
  EXPECT_NEAR(geometry::PlanArea(faces.faces[0].corners), 8 + 3.14159 / 2, 0.01);
}

TEST(FacesOf, ClockwiseArcOfAHatchCountsItsAnglesClockwise) {
  // A square of 2 whose right side is hollowed out by a half circle of radius 1.
  const EntityFaces faces = Faces(Hatch(
      "92 1|93 4|72 1|10 0|20 2|11 0|21 0|72 1|10 0|20 0|11 2|21 0|72 2|10 2|20 1|40 1|50 90|51 270|73 0|72 "
      "1|10 2|20 2|11 0|21 2|97 0|"));
  EXPECT_NEAR(geometry::PlanArea(faces.faces.at(0).corners), 4 - 3.14159 / 2, 0.01);
}

TEST(FacesOf, HatchWithACurvedEdgeHasNoFaces) {
  EXPECT_THAT(Faces(Hatch("92 1|93 1|72 3|10 0|20 0|11 4|21 0|40 0.5|50 0|51 360|73 1|97 0|")).faces,
              IsEmpty());
}

// --- Other entities ---

TEST(FacesOf, OtherEntitiesHaveNoFaces) {
  const EntityFaces faces = Faces("0\nLINE\n8\nROOF\n" + Point(10, 1, 0, 0) + Point(11, 2, 0, 0));
  EXPECT_STREQ(faces.type, "");
  EXPECT_THAT(faces.faces, IsEmpty());
}

}  // namespace
}  // namespace teskarlt
