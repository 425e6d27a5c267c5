// SurfaceOutlineTest.cpp - the outline of a roof surface in its own plane.
#include <gtest/gtest.h>

#include "teskarlt/drawing/RingsAround.h"
#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/SurfaceOutline.h"

namespace teskarlt {
namespace {

using geometry::Vec3;

constexpr double TOLERANCE = 1.0;  // millimetres

// Four triangles around the middle of a roof of 8 m by 4 m in the plan, which rises by 3 m: 5 m up the slope.
Roofs RoofOfTriangles() {
  const Vec3 corners[] = {{0, 0, 2500}, {8000, 0, 2500}, {8000, 4000, 5500}, {0, 4000, 5500}};
  std::vector<RoofFace> faces;
  faces.reserve(4);
  for (int i = 0; i < 4; ++i)
    faces.push_back(MakeRoofFace({corners[i], corners[(i + 1) % 4], {4000, 2000, 4000}}, TOLERANCE).value());
  return {faces, TOLERANCE};
}

TEST(SurfaceOutline, TrianglesHaveOneRingOfTheirCorners) {
  const Roofs roofs = RoofOfTriangles();
  ASSERT_EQ(roofs.Surfaces().size(), 1U);
  const SurfaceOutline outline = OutlineOf(roofs.Surfaces()[0], roofs.Faces(), TOLERANCE);
  ASSERT_EQ(outline.rings.size(), 1U);
  EXPECT_EQ(outline.rings[0].size(), 4U);
  EXPECT_NEAR(AreaWithin(outline.rings), 8000.0 * 5000, 1e-3);
}

TEST(SurfaceOutline, HeightsAreThoseOfEavesAndRidge) {
  const Roofs roofs = RoofOfTriangles();
  const auto [eaves, ridge] = HeightRange(OutlineOf(roofs.Surfaces()[0], roofs.Faces(), TOLERANCE));
  EXPECT_NEAR(eaves, 2500, 1e-6);
  EXPECT_NEAR(ridge, 5500, 1e-6);
}

TEST(SurfaceOutline, SliverAloneHasItsCorners) {
  const Roofs roofs({MakeRoofFace({{0, 0, 0}, {9000, 0, 0}, {9000, 2, 1}, {0, 2, 1}}, TOLERANCE).value()},
                    TOLERANCE);
  EXPECT_EQ(OutlineOf(roofs.Surfaces()[0], roofs.Faces(), TOLERANCE).rings[0].size(), 4U);
}

}  // namespace
}  // namespace teskarlt
