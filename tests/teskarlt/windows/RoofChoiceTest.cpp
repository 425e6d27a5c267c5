// RoofChoiceTest.cpp - the roof that an order names, and orders that name none.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/RoofSearch.h"
#include "teskarlt/windows/RoofChoice.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

// Two roofs, the second 1000 above the first.
class RoofChoiceTest : public testing::Test {
 protected:
  RoofChoice Choose(const WindowOrder& order) const { return ChooseRoof(order, drawing, faces, 1.0); }
  std::string Refusal(const WindowOrder& order) const {
    return RefusalOf([&] { Choose(order); });
  }

  dxf::Document drawing = DrawingWithFaces({RoofAt(0), RoofAt(1000)});
  std::vector<RoofFace> faces = FindRoofFaces(drawing, 1.0);
};

TEST_F(RoofChoiceTest, UppermostFaceAtThePointIsTaken) {
  const RoofChoice roof = Choose(OrderAt(4000, 2000));
  EXPECT_EQ(roof.face, &faces[1]);
  EXPECT_TRUE(roof.isBounded);
}

TEST_F(RoofChoiceTest, NameGoesBeforeThePoint) {
  WindowOrder order = OrderAt(4000, 2000);
  order.roofFace = faces[0].name;
  EXPECT_EQ(Choose(order).face, &faces[0]);
}

TEST_F(RoofChoiceTest, PlaneHasNoFaceAndNoBounds) {
  WindowOrder order = OrderAt(4000, 2000);
  order.roof = {{0, 0, 0}, {1, 0, 0}, {0, 1, 1}};
  const RoofChoice roof = Choose(order);
  EXPECT_EQ(roof.face, nullptr);
  EXPECT_FALSE(roof.isBounded);
  EXPECT_EQ(roof.faces.size(), 1U);
}

TEST_F(RoofChoiceTest, FieldOfTheRoofLeavesTheChoiceToTheDialog) {
  WindowOrder order = OrderAt(4000, 2000);
  order.settings = {{"roofPlanePoints", "0,0,0;1,0,0;0,1,1"}};
  EXPECT_TRUE(Choose(order).faces.empty());
  order.roofFace = faces[0].name;
  EXPECT_EQ(Refusal(order), "--set roofPlanePoints gives the roof already; leave --roof and --roof-face out");
}

TEST_F(RoofChoiceTest, PointBesideTheRoofsIsToldWithTheirExtents) {
  EXPECT_EQ(
      Refusal(OrderAt(9000, 2000)),
      "--at 9000,2000: no roof face lies over that point; the roofs lie within x 0 to 8000, y 0 to 6000");
}

TEST_F(RoofChoiceTest, ExtentsFarFromTheOriginAreToldToTheUnit) {
  drawing = DrawingWithFaces({{{-743000000, -1043000000.5, 0},
                               {-742992000, -1043000000.5, 0},
                               {-742992000, -1042996000, 4000},
                               {-743000000, -1042996000, 4000}}});
  faces = FindRoofFaces(drawing, 1.0);
  EXPECT_THAT(Refusal(OrderAt(0, 0)),
              HasSubstr("x -743000000 to -742992000, y -1043000000.5 to -1042996000"));
}

TEST_F(RoofChoiceTest, OrderWithoutAPlaceAndUnknownNamesAreRefused) {
  EXPECT_EQ(Refusal({}), "say where the window goes with --at X,Y");
  WindowOrder order;
  order.roofFace = "FFFF";
  EXPECT_EQ(Refusal(order),
            "--roof-face FFFF: house.dxf has no roof face of that name; teskarlt roofs lists them");
}

TEST_F(RoofChoiceTest, DrawingWithoutFacesIsToldSo) {
  faces.clear();
  EXPECT_EQ(Refusal(OrderAt(1, 1)), "house.dxf holds no planar face that can take a roof window");
}

}  // namespace
}  // namespace teskarlt
