// RoofsTest.cpp - surfaces that faces make, and which face lies over a point.
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/Roofs.h"

namespace teskarlt {
namespace {

using geometry::Vec3;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

constexpr double TOLERANCE = 1e-3;  // metres

// A house of faces with these corners.
Roofs RoofsOf(const std::vector<std::vector<Vec3>>& faces) {
  std::vector<RoofFace> made;
  made.reserve(faces.size());
  for (const std::vector<Vec3>& corners : faces)
    made.push_back(MakeRoofFace(corners, TOLERANCE).value());
  return {made, TOLERANCE};
}

// The numbers of the faces in the surface of one of them.
std::vector<std::size_t> SurfaceAround(std::size_t face, const Roofs& roofs) {
  return roofs.SurfaceOf(roofs.Faces()[face])->faces;
}

// A rectangle from (x, y), of which z rises by `rise` for every metre along y.
std::vector<Vec3> Slope(double x, double y, double width, double depth, double rise = 1) {
  const auto at = [&](double px, double py) { return Vec3{px, py, rise * py}; };
  return {at(x, y), at(x + width, y), at(x + width, y + depth), at(x, y + depth)};
}

std::vector<Vec3> Level(double z) {
  return {{0, 0, z}, {4, 0, z}, {4, 4, z}, {0, 4, z}};
}

TEST(Roofs, UppermostIsTheHighestOverThePoint) {
  const Roofs roofs = RoofsOf({Level(1), Level(5), Level(3)});
  EXPECT_EQ(roofs.UppermostAt(3, 1)->face, &roofs.Faces()[1]);
  EXPECT_EQ(roofs.FacesAt(3, 1).size(), 3U);
  EXPECT_FALSE(roofs.UppermostAt(9, 9));
}

TEST(Roofs, WallThatIsNotQuiteUprightLiesOverNothing) {
  const Roofs roofs = RoofsOf({Level(1), {{0, 1, 0}, {4, 1, 0}, {4, 1.2, 9}, {0, 1.2, 9}}});
  EXPECT_EQ(roofs.UppermostAt(2, 1.1)->face, &roofs.Faces()[0]);
  EXPECT_EQ(roofs.SurfaceOf(roofs.Faces()[1]), nullptr);
}

TEST(Roofs, FaceThatIsNotPlanarLiesOverThePoint) {
  const Roofs roofs = RoofsOf({Level(1), {{0, 0, 3}, {4, 0, 3}, {4, 4, 4}, {0, 4, 3}}});
  EXPECT_FALSE(roofs.UppermostAt(2, 2)->surface->isPlanar);
  EXPECT_FALSE(roofs.IsEmpty());
}

TEST(RoofSurface, GoesOnOverCommonEdgesInOnePlane) {
  const Roofs roofs = RoofsOf({Slope(0, 0, 2, 3), Slope(2, 0, 4, 3), Slope(6, 0, 1, 3)});
  EXPECT_THAT(SurfaceAround(2, roofs), ElementsAre(1, 0, 2));
}

TEST(RoofSurface, EndsAtARidge) {
  std::vector<Vec3> other = Slope(0, 3, 4, 3);
  other[2].z = other[3].z = 0;
  const Roofs roofs = RoofsOf({Slope(0, 0, 4, 3), other});
  EXPECT_THAT(SurfaceAround(0, roofs), ElementsAre(0));
}

TEST(RoofSurface, NeedsACommonEdgeWhereFacesAreUneven) {
  std::vector<Vec3> far = Slope(4.5, 0, 4, 3);
  std::vector<Vec3> near = Slope(4, 0, 4, 3);
  for (std::vector<Vec3>* face : {&far, &near})
    (*face)[1].z += 0.01;
  EXPECT_THAT(SurfaceAround(0, RoofsOf({Slope(0, 0, 4, 3), far})), ElementsAre(0));
  EXPECT_THAT(SurfaceAround(0, RoofsOf({Slope(0, 0, 4, 3), near})), UnorderedElementsAre(0, 1));
}

TEST(RoofSurface, PartOfAnEdgeIsEnough) {
  std::vector<Vec3> beside = Slope(4, 1, 4, 1);
  beside[1].z += 0.01;
  EXPECT_THAT(SurfaceAround(0, RoofsOf({Slope(0, 0, 4, 3), beside})), UnorderedElementsAre(0, 1));
}

TEST(RoofSurface, TakesSliversInWhateverTheirDirection) {
  // Between two triangles lies one 5 mm wide, whose middle corner is 4 mm too high: tilted by 39 degrees.
  const Roofs roofs = RoofsOf({{{0, 0, 0}, {8, 0, 0}, {4, -4, 0}},
                               {{0, 0, 0}, {8, 0, 0}, {4, 0.005, 0.004}},
                               {{0, 0, 0}, {4, 0.005, 0.004}, {0, 4, 0}},
                               {{8, 0, 0}, {8, 4, 0}, {4, 0.005, 0.004}}});
  EXPECT_THAT(SurfaceAround(1, roofs), UnorderedElementsAre(0, 1, 2, 3));
  EXPECT_LT(Pitch(roofs.SurfaceOf(roofs.Faces()[1])->plane), 0.2);
}

TEST(RoofSurface, FacesCountByTheirArea) {
  // The small face rises by 10 mm on 1 m, a twentieth of the area: the plane turns by a twentieth of that.
  const Roofs roofs = RoofsOf({{{0, 0, 0}, {19, 0, 0}, {19, 1, 0}, {0, 1, 0}},
                               {{19, 0, 0}, {20, 0, 0.01}, {20, 1, 0.01}, {19, 1, 0}}});
  const Plane& plane = roofs.SurfaceOf(roofs.Faces()[0])->plane;
  EXPECT_NEAR(plane.normal.x / plane.normal.z, -0.01 / 20, 1e-6);
}

TEST(RoofSurface, RoundRoofIsSeveralSurfaces) {
  // A quarter of a barrel of 10 m radius in faces of 1 degree each.
  std::vector<std::vector<Vec3>> faces;
  const auto at = [](double y, int degrees) {
    const double angle = degrees / 180.0 * 3.141592653589793;
    return Vec3{10 * std::cos(angle), y, 10 * std::sin(angle)};
  };
  for (int degrees = 30; degrees < 90; ++degrees)
    faces.push_back({at(0, degrees), at(8, degrees), at(8, degrees + 1), at(0, degrees + 1)});
  const Roofs roofs = RoofsOf(faces);
  for (const RoofFace& face : roofs.Faces()) {
    const RoofSurface& surface = *roofs.SurfaceOf(face);
    EXPECT_LE(surface.faces.size(), 9U);
    EXPECT_LE(surface.warp, WarpLimit(face, TOLERANCE));
  }
}

TEST(RoofSurface, NamesFollowTheOrderOfTheFacesAndPassOverUnevenOnes) {
  std::vector<Vec3> warped = Slope(20, 0, 4, 3);
  warped[2].z += 1;
  const Roofs roofs = RoofsOf({Slope(10, 0, 1, 1), warped, Slope(0, 0, 4, 3), Slope(11, 0, 9, 3)});
  const auto nameAround = [&](std::size_t face) { return roofs.SurfaceOf(roofs.Faces()[face])->name; };
  EXPECT_EQ(nameAround(0), "R1");
  EXPECT_EQ(nameAround(1), "");
  EXPECT_EQ(nameAround(2), "R2");
  EXPECT_EQ(nameAround(3), "R1");  // the first face is its neighbour
}

TEST(SurfaceNamed, NamesCompareWithoutRegardToCase) {
  const Roofs roofs = RoofsOf({Level(1), Slope(9, 0, 2, 2)});
  EXPECT_EQ(roofs.SurfaceNamed("r2"), roofs.SurfaceOf(roofs.Faces()[1]));
  EXPECT_EQ(roofs.SurfaceNamed("R3"), nullptr);
  EXPECT_EQ(roofs.SurfaceNamed(""), nullptr);
}

TEST(RoofSurface, TakesNoPartOfAnotherLayerBelow) {
  std::vector<Vec3> below = Level(1);
  for (Vec3& corner : below)
    corner.z -= 0.005;
  const Roofs roofs = RoofsOf({Level(1), below});
  EXPECT_THAT(SurfaceAround(0, roofs), ElementsAre(0));
}

TEST(FacesNamed, NamesCompareWithoutRegardToCase) {
  std::vector<RoofFace> faces = RoofsOf({Level(1), Level(2), Level(3)}).Faces();
  faces[0].name = faces[1].name = "2F";
  faces[2].name = "30";
  const Roofs roofs(faces, TOLERANCE);
  EXPECT_THAT(roofs.FacesNamed("2f"), ElementsAre(&roofs.Faces()[0], &roofs.Faces()[1]));
  EXPECT_TRUE(roofs.FacesNamed("31").empty());
}

}  // namespace
}  // namespace teskarlt
