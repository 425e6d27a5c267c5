// OutlineHolesTest.cpp - closed polylines that are holes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/OutlineHoles.h"

namespace teskarlt {
namespace {

using geometry::Vec3;
using testing::SizeIs;

constexpr double TOLERANCE = 1e-3;  // metres

// A square from (low, low) to (high, high) on a slope of 45 degrees, lifted by `lift`.
RoofFace Square(double low, double high, const char* type = "3D POLYLINE", double lift = 0) {
  const auto at = [&](double x, double y) { return Vec3{x, y, y + lift}; };
  RoofFace face =
      MakeRoofFace({at(low, low), at(high, low), at(high, high), at(low, high)}, TOLERANCE).value();
  face.layer = "ROOF";
  face.type = type;
  return face;
}

std::vector<RoofFace> Cut(std::vector<RoofFace> faces) {
  CutHoles(faces, TOLERANCE);
  return faces;
}

TEST(CutHoles, PolylineWithinAnotherOneIsItsHole) {
  const std::vector<RoofFace> faces = Cut({Square(4, 6), Square(0, 10, "LWPOLYLINE")});
  ASSERT_THAT(faces, SizeIs(1));
  EXPECT_EQ(faces[0].type, "LWPOLYLINE");
  ASSERT_THAT(faces[0].holes, SizeIs(1));
  EXPECT_FALSE(LiesOver(faces[0], 5, 5));
}

TEST(CutHoles, WithinAHoleIsAFaceAgain) {
  const std::vector<RoofFace> faces = Cut({Square(0, 10), Square(2, 8), Square(4, 6)});
  ASSERT_THAT(faces, SizeIs(2));
  EXPECT_TRUE(LiesOver(faces[1], 5, 5));
}

TEST(CutHoles, RingThatIsFilledIsNoHole) {
  for (const char* type : {"3DFACE", "MESH", "HATCH"}) {
    const std::vector<RoofFace> faces = Cut({Square(0, 10), Square(4, 6), Square(4, 6, type)});
    EXPECT_THAT(faces, SizeIs(3)) << type;
    EXPECT_THAT(faces[0].holes, SizeIs(0));
  }
}

TEST(CutHoles, RingThatIsFilledInAnotherPlaneIsAHole) {
  EXPECT_THAT(Cut({Square(0, 10), Square(4, 6), Square(4, 6, "3DFACE", -3)}), SizeIs(2));
}

TEST(CutHoles, RingOfAnotherLayerIsAFace) {
  RoofFace other = Square(4, 6);
  other.layer = "GLASS";
  EXPECT_THAT(Cut({Square(0, 10), other}), SizeIs(2));
}

TEST(CutHoles, RingAboveTheFaceIsAFace) {
  EXPECT_THAT(Cut({Square(0, 10), Square(4, 6, "3D POLYLINE", 0.01)}), SizeIs(2));
  EXPECT_THAT(Cut({Square(0, 10), Square(4, 6, "3D POLYLINE", 0.002)}), SizeIs(1));  // 1.4 mm off the plane
}

TEST(CutHoles, RoofDrawnTwiceHasItsHoleTwice) {
  const std::vector<RoofFace> faces = Cut({Square(0, 10), Square(0, 10), Square(4, 6), Square(4, 6)});
  ASSERT_THAT(faces, SizeIs(2));
  for (const RoofFace& face : faces)
    EXPECT_NEAR(Area(face) / Area(Square(0, 10)), 0.96, 1e-12);
}

TEST(CutHoles, FacesOfOtherKindsCutNothing) {
  EXPECT_THAT(Cut({Square(0, 10, "3DFACE"), Square(4, 6, "3DFACE")}), SizeIs(2));
}

}  // namespace
}  // namespace teskarlt
