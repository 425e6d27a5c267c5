// RoofChoiceTest.cpp - the roof that an order names, and orders that name none.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/RoofChoice.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

// Two roofs, the second 1000 above the first.
class RoofChoiceTest : public testing::Test {
 protected:
  RoofChoice Choose(const WindowOrder& order) const { return ChooseRoof(order, "house.dxf", roofs); }
  std::string Refusal(const WindowOrder& order) const {
    return RefusalOf([&] { Choose(order); });
  }

  const RoofFace& Face(std::size_t number) const { return roofs.Faces()[number]; }
  void TakeHouse(const std::vector<std::vector<geometry::Vec3>>& faces) {
    roofs = FindRoofs(DrawingWithFaces(faces), 1.0);
  }

  Roofs roofs = FindRoofs(DrawingWithFaces({RoofAt(0), RoofAt(1000)}), 1.0);
};

TEST_F(RoofChoiceTest, UppermostFaceAtThePointIsTaken) {
  const RoofChoice roof = Choose(OrderAt(4000, 2000));
  EXPECT_EQ(roof.face, &Face(1));
  EXPECT_TRUE(roof.facesNear);
}

TEST_F(RoofChoiceTest, NameGoesBeforeThePoint) {
  WindowOrder order = OrderAt(4000, 2000);
  order.roofName = Face(0).name;
  EXPECT_EQ(Choose(order).face, &Face(0));
}

TEST_F(RoofChoiceTest, NameOfASurfaceChoosesItsFaceAtThePoint) {
  TakeHouse({RoofAt(1000),
             {{0, 0, 0}, {4000, 0, 0}, {4000, 6000, 6000}, {0, 6000, 6000}},
             {{4000, 0, 0}, {8000, 0, 0}, {8000, 5000, 5000}, {4000, 5000, 5000}}});
  WindowOrder order = OrderAt(6000, 2000);
  order.roofName = "r2";
  EXPECT_EQ(Choose(order).face, &Face(2));
  order.at.reset();
  EXPECT_EQ(Choose(order).face, &Face(1));  // the largest
}

TEST_F(RoofChoiceTest, PlaneHasNoFaceAndNoBounds) {
  WindowOrder order = OrderAt(4000, 2000);
  order.roof = {{0, 0, 0}, {1, 0, 0}, {0, 1, 1}};
  const RoofChoice roof = Choose(order);
  EXPECT_EQ(roof.face, nullptr);
  EXPECT_FALSE(roof.facesNear);
  EXPECT_EQ(roof.corners.size(), 3U);
}

TEST_F(RoofChoiceTest, FieldOfTheRoofLeavesTheChoiceToTheDialog) {
  WindowOrder order = OrderAt(4000, 2000);
  order.settings = {{"roofPlanePoints", "0,0,0;1,0,0;0,1,1"}};
  EXPECT_TRUE(Choose(order).corners.empty());
  order.roofName = Face(0).name;
  EXPECT_EQ(Refusal(order),
            "--set roofPlanePoints gives the roof already; leave --roof, --on, --eaves and "
            "--ridge out");
}

TEST_F(RoofChoiceTest, PointBesideTheRoofsIsToldWithTheirExtents) {
  EXPECT_EQ(
      Refusal(OrderAt(9000, 2000)),
      "--at 9000,2000: no roof face lies over that point; the roofs lie within x 0 to 8000, y 0 to 6000");
}

TEST_F(RoofChoiceTest, ExtentsFarFromTheOriginAreToldToTheUnit) {
  TakeHouse({{{-743000000, -1043000000.5, 0},
              {-742992000, -1043000000.5, 0},
              {-742992000, -1042996000, 4000},
              {-743000000, -1042996000, 4000}}});
  EXPECT_THAT(Refusal(OrderAt(0, 0)),
              HasSubstr("x -743000000 to -742992000, y -1043000000.5 to -1042996000"));
}

TEST_F(RoofChoiceTest, OrderWithoutAPlaceAndUnknownNamesAreRefused) {
  EXPECT_EQ(Refusal({}),
            "say where the window goes with --at X,Y, or on which roof with --on NAME and where on it");
  WindowOrder order;
  order.roofName = "FFFF";
  EXPECT_EQ(Refusal(order),
            "--on FFFF: house.dxf has no roof or face of that name; teskarlt roofs lists them");
}

TEST_F(RoofChoiceTest, DrawingWithoutFacesIsToldSo) {
  TakeHouse({});
  EXPECT_EQ(Refusal(OrderAt(1, 1)), "house.dxf holds no planar face that can take a roof window");
}

TEST_F(RoofChoiceTest, RefusalsNameWhatWasNotRead) {
  roofs = Roofs(roofs.Faces(), 1.0, IN_DRAWING_UNITS, {{"3DSOLID", 2}});
  EXPECT_THAT(Refusal(OrderAt(9000, 2000)), HasSubstr("y 0 to 6000; 2 3DSOLID are not read: explode them"));
  roofs = Roofs({}, 1.0, IN_DRAWING_UNITS, {{"3DSOLID", 2}});
  EXPECT_THAT(Refusal(OrderAt(1, 1)), HasSubstr("can take a roof window; 2 3DSOLID are not read"));
}

TEST_F(RoofChoiceTest, NameOfAWallIsToldAsSuch) {
  const Ring upright = {{0, 0, 0}, {4000, 0, 0}, {4000, 0, 2500}};
  roofs = Roofs(roofs.Faces(), 1.0, IN_DRAWING_UNITS, {}, {{"2F", "A", upright}, {"2F.3", "A", upright}});
  WindowOrder order = OrderAt(4000, 2000);
  order.roofName = "2f/3";
  EXPECT_THAT(Refusal(order),
              HasSubstr("--on 2f/3: that face of house.dxf is a wall, vertical, and no roof; --roof"));
}

TEST_F(RoofChoiceTest, NameOfNoFaceIsRefused) {
  WindowOrder order = OrderAt(4000, 2000);
  order.roofName = "FFFF";
  EXPECT_EQ(Refusal(order),
            "--on FFFF: house.dxf has no roof or face of that name; teskarlt roofs lists them");
}

TEST_F(RoofChoiceTest, NameOfSeveralFacesIsRefused) {
  std::vector<RoofFace> faces = roofs.Faces();
  faces[0].name = faces[1].name = "2F";
  roofs = Roofs(faces, 1.0);
  WindowOrder order = OrderAt(4000, 2000);
  order.roofName = "2f";
  EXPECT_THAT(Refusal(order), HasSubstr("2 faces of house.dxf have that handle"));
}

TEST_F(RoofChoiceTest, UnevenRoofDoesNotLetTheWindowFallOntoItsCeiling) {
  std::vector<geometry::Vec3> uneven = RoofAt(3000);
  uneven[1].z += 400;
  TakeHouse({uneven, RoofAt(0)});
  EXPECT_EQ(Refusal(OrderAt(4000, 1000)),
            "--at 4000,1000: the uppermost face over that point, " + Face(0).name +
                " of layer ROOF, is not planar: a corner lies 72 mm off its plane; --on names another "
                "one, and --roof X,Y,Z X,Y,Z X,Y,Z or --eaves gives a plane in its place");
}

TEST_F(RoofChoiceTest, FaceThatIsNoRoofIsRefusedByItsName) {
  TakeHouse({RoofAt(0), {{0, 0, 0}, {8000, 0, 0}, {8000, 100, 3000}, {0, 100, 3000}}});
  WindowOrder order = OrderAt(4000, 50);
  order.roofName = Face(1).name;
  EXPECT_THAT(Refusal(order),
              HasSubstr(" is a wall, 88.1 degrees steep, and no roof above 85; --roof X,Y,Z"));
}

TEST_F(RoofChoiceTest, PlanarRoofIsSpannedByTheFaceAtThePoint) {
  TakeHouse({{{0, 0, 0}, {4000, 0, 0}, {4000, 6000, 6000}, {0, 6000, 6000}},
             {{4000, 0, 0}, {8000, 0, 0}, {8000, 5000, 5000}, {4000, 5000, 5000}}});
  const RoofChoice roof = Choose(OrderAt(6000, 2000));
  EXPECT_EQ(roof.facesNear({0, 0, 8000, 6000}).size(), 2U);
  EXPECT_EQ(roof.facesNear({5000, 0, 8000, 6000}).size(), 1U);
  EXPECT_EQ(roof.corners[1].x, 8000);
}

TEST_F(RoofChoiceTest, UnevenRoofIsSpannedByItsBestFit) {
  std::vector<geometry::Vec3> corners = RoofAt(0);
  corners[1].z += 20;  // two corners lie 5 above the plane between, two below
  TakeHouse({corners});
  const RoofChoice roof = Choose(OrderAt(6000, 2000));
  EXPECT_NEAR(roof.corners[0].z, 5, 1e-9);
  EXPECT_NEAR(roof.corners[1].z, 15, 1e-9);
}

}  // namespace
}  // namespace teskarlt
