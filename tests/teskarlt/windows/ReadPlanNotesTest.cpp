// ReadPlanNotesTest.cpp - what a plan tells of the roofs and roof windows of a drawing.
#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "geometry/Vectors.h"
#include "teskarlt/windows/ReadPlanNotes.h"
#include "teskarlt/windows/TagWindows.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using geometry::Vec3;
using plot::PlanNotes;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double ROUNDING = 1e-9;

PlanNotes Read(const dxf::Document& drawing) {
  return ReadPlanNotes(drawing, Millimetres());
}

TEST(ReadPlanNotes, RoofHasItsNamePitchAndOutlineInMetres) {
  const PlanNotes notes = Read(House());
  ASSERT_THAT(notes.roofs, SizeIs(1));
  const plot::PlanRoof& roof = notes.roofs[0];
  EXPECT_EQ(roof.name, "R1");
  EXPECT_NEAR(roof.pitch, 45, ROUNDING);
  EXPECT_NEAR(roof.frame.At({0, roof.eaves}).z, 0, ROUNDING);
  ASSERT_THAT(roof.rings, SizeIs(1));
  Vec3 highest{0, 0, 0};
  for (const SlopePoint& corner : roof.rings[0]) {
    const Vec3 place = roof.frame.At(corner);
    highest = {std::max(highest.x, place.x), std::max(highest.y, place.y), std::max(highest.z, place.z)};
  }
  EXPECT_NEAR(highest.x, 8, ROUNDING);
  EXPECT_NEAR(highest.y, 6, ROUNDING);
  EXPECT_NEAR(highest.z, 6, ROUNDING);
}

TEST(ReadPlanNotes, LevelRoofFallsNowhere) {
  EXPECT_THAT(Read(DrawingWithFaces({{{0, 0, 3}, {8000, 0, 3}, {8000, 6000, 3}, {0, 6000, 3}}})).roofs,
              IsEmpty());
}

TEST(ReadPlanNotes, WindowLiesOnItsRoofAsItIsDrawn) {
  const PlanNotes notes = Read(HouseWithWindow());
  ASSERT_THAT(notes.windows, SizeIs(1));
  const plot::PlanWindow& window = notes.windows[0];
  EXPECT_EQ(window.mark, "W01");
  EXPECT_EQ(window.number, 1);
  EXPECT_EQ(window.roof, 0U);
  EXPECT_FALSE(window.hasTag);
  const Vec3 foot = geometry::Between(window.frame[0], window.frame[3], 0.5);
  EXPECT_NEAR(foot.x, 4, ROUNDING);
  EXPECT_NEAR(foot.y, 2, ROUNDING);
  EXPECT_NEAR(foot.z, 2, ROUNDING);
  EXPECT_NEAR(geometry::Distance(window.frame[0], window.frame[3]), 0.94, ROUNDING);
}

TEST(ReadPlanNotes, WindowWithoutARoofUnderItHasNone) {
  const PlanNotes notes = Read(HouseWithRisenRoof(2000));
  ASSERT_THAT(notes.windows, SizeIs(1));
  EXPECT_EQ(notes.windows[0].roof, std::nullopt);
}

TEST(ReadPlanNotes, WindowWhoseTagIsDrawnSaysSo) {
  dxf::Document drawing = HouseWithWindow();
  TagWindows(drawing, Millimetres().working, {});
  EXPECT_TRUE(Read(Reloaded(drawing)).windows.at(0).hasTag);
}

}  // namespace
}  // namespace teskarlt
