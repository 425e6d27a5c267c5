// ObstaclesTest.cpp - what stands through or on a roof.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/ObstacleWords.h"
#include "teskarlt/drawing/Obstacles.h"

namespace teskarlt {
namespace {

using geometry::Vec3;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double TOLERANCE = 1.0;  // millimetres
constexpr double LEAST = 20.0;
constexpr PlanBox AREA{0, 0, 10000, 8000};

// Rises 3 in 4 along y from the x axis: 5 up the slope for 4 in the plan.
const Plane SLOPE{{0, 0, 0}, {0, -0.6, 0.8}};

RoofFace Face(const char* name, const std::vector<Vec3>& corners) {
  RoofFace face = *MakeRoofFace(corners, TOLERANCE);
  face.name = name;
  face.layer = "A";
  return face;
}

// From (4000, 4000) of the plan, 1000 long along x.
Wall Standing(double low, double high) {
  return {"W", "CHIMNEY", {{4000, 4000, low}, {5000, 4000, low}, {5000, 4000, high}, {4000, 4000, high}}};
}

std::vector<Obstacle> On(std::vector<RoofFace> faces, std::vector<Wall> walls = {}) {
  return ObstaclesOn(SLOPE, "ROOF", AREA, LEAST,
                     Roofs(std::move(faces), TOLERANCE, IN_DRAWING_UNITS, {}, std::move(walls)));
}

TEST(ObstaclesOn, WallThroughTheRoofIsALineOnIt) {
  const auto found = On({}, {Standing(0, 9000)});
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].layer, "CHIMNEY");
  for (const SlopePoint& corner : found[0].footprint)
    EXPECT_NEAR(corner.up, 5000, 1e-9);
}

// At y = 4000 the roof is 3000 high.
TEST(ObstaclesOn, WallUnderTheRoofIsNone) {
  EXPECT_THAT(On({}, {Standing(0, 3000)}), IsEmpty());
  EXPECT_THAT(On({}, {Standing(0, 3019)}), IsEmpty());
  EXPECT_EQ(On({}, {Standing(0, 3021)}).size(), 1U);
}

TEST(ObstaclesOn, WallOnFeetIsOneAndWhatHoversIsNone) {
  EXPECT_EQ(On({}, {Standing(3299, 4000)}).size(), 1U);
  EXPECT_THAT(On({}, {Standing(3301, 4000)}), IsEmpty());
}

TEST(ObstaclesOn, RoofOfADormerCoversWhatLiesUnderIt) {
  // Level at 4500, it ends in the roof at y = 6000, less the 20 mm that do not count.
  const auto found =
      On({Face("D", {{2000, 3000, 4500}, {6000, 3000, 4500}, {6000, 7000, 4500}, {2000, 7000, 4500}})});
  ASSERT_EQ(found.size(), 1U);
  double top = 0;
  for (const SlopePoint& corner : found[0].footprint)
    top = std::max(top, corner.up);
  EXPECT_NEAR(top, (6000 - 20 / 0.75) * 1.25, 1e-6);
}

TEST(ObstaclesOn, LevelLinesOfAPlanAreNone) {
  RoofFace storey = Face("P", {{0, 0, 2500}, {9000, 0, 2500}, {9000, 7000, 2500}, {0, 7000, 2500}});
  storey.isFlatKind = true;
  EXPECT_THAT(On({storey}), IsEmpty());
}

// Parallel to the roof, 200 mm above it.
RoofFace Skin(const char* layer, double high) {
  RoofFace skin = Face(
      "S", {{0, 0, 200}, {10000, 0, 200}, {10000, high, 200 + 0.75 * high}, {0, high, 200 + 0.75 * high}});
  skin.layer = layer;
  return skin;
}

TEST(ObstaclesOn, UpperSkinOfTheRoofIsNoneAndAPanelIsOne) {
  EXPECT_THAT(On({Skin("TILES", 7500)}), IsEmpty());
  EXPECT_THAT(On({Skin("ROOF", 2000)}), IsEmpty());
  EXPECT_EQ(On({Skin("PANELS", 5000)}).size(), 1U);
}

// 9 m high, from x = 2000 and y = 1000 on.
std::vector<Wall> Shaft() {
  const auto wall = [](double x, double y, double u, double v) {
    return Wall{"W", "SHAFT", {{x, y, 0}, {u, v, 0}, {u, v, 9000}, {x, y, 9000}}};
  };
  return {wall(2000, 1000, 6000, 1000), wall(6000, 1000, 6000, 5000), wall(6000, 5000, 2000, 5000),
          wall(2000, 5000, 2000, 1000)};
}

TEST(ObstaclesOn, TopThatStandingWallsBearCoversTheRoof) {
  const RoofFace top =
      Face("T", {{2000, 1000, 9000}, {6000, 1000, 9000}, {6000, 5000, 9000}, {2000, 5000, 9000}});
  EXPECT_EQ(On({top}, Shaft()).size(), 5U);
  EXPECT_THAT(On({top}), IsEmpty());
  const RoofFace wider =
      Face("T", {{1000, 0, 9000}, {7000, 0, 9000}, {7000, 6000, 9000}, {1000, 6000, 9000}});
  EXPECT_EQ(On({wider}, Shaft()).size(), 4U);
}

TEST(ObstaclesOn, RoofThatGoesThroughThePlaneBeyondTheAreaIsNone) {
  // Falls to the south, 3.5 m above the roof at y = 8000, and through its plane at y = 12667.
  const RoofFace over =
      Face("O", {{0, 7000, 9750}, {9000, 7000, 9750}, {9000, 20000, 9750}, {0, 20000, 9750}});
  EXPECT_THAT(On({over}), IsEmpty());
}

TEST(ObstaclesOn, FaceThatRisesTwiceAboveTheRoofLeavesItFreeBetween) {
  // A front at y = 4000, where the roof is 3000 high, with two gables that rise to 5000.
  const Wall front{"F",
                   "FRONT",
                   {{1000, 4000, 0},
                    {9000, 4000, 0},
                    {9000, 4000, 2000},
                    {8000, 4000, 5000},
                    {7000, 4000, 2000},
                    {3000, 4000, 2000},
                    {2000, 4000, 5000},
                    {1000, 4000, 2000}}};
  const auto found = On({}, {front});
  ASSERT_EQ(found.size(), 2U);
  for (const Obstacle& gable : found) {
    for (const SlopePoint& corner : gable.footprint)
      EXPECT_TRUE(corner.across < 2700 || corner.across > 7300);
  }
}

Obstacle Square(const char* face, const char* layer, double across) {
  return {face, layer, {{across, 0}, {across + 1000, 0}, {across + 1000, 1000}, {across, 1000}}};
}

TEST(ObstacleWords, FacesOfALayerAreToldTogether) {
  const std::vector<Obstacle> obstacles = {Square("1", "CHIMNEY", 0), Square("2", "CHIMNEY", 200),
                                           Square("3", "WALL", 900)};
  EXPECT_THAT(ObstacleWords(obstacles, {500, 1500, 500, 2500}, 0, TOLERANCE, {1000}),
              ElementsAre("it meets faces 1 and 2 of layer CHIMNEY by 0.500 m",
                          "it meets face 3 of layer WALL by 0.500 m"));
}

TEST(ObstacleWords, ManyFacesAreNotAllNamed) {
  const std::vector<Obstacle> obstacles(6, Square("1", "A", 0));
  EXPECT_THAT(ObstacleWords(obstacles, {500, 1500, 0, 1000}, 0, TOLERANCE, {1000}),
              ElementsAre("it meets faces 1, 1, 1 and 3 more of layer A by 0.500 m"));
}

TEST(ObstacleWords, WhatIsNearerThanTheClearanceIsToldWithItsDistance) {
  const std::vector<Obstacle> obstacles = {Square("1", "A", 0)};
  EXPECT_THAT(ObstacleWords(obstacles, {1100, 2000, 0, 1000}, 0, TOLERANCE, {1000}), IsEmpty());
  EXPECT_THAT(
      ObstacleWords(obstacles, {1100, 2000, 0, 1000}, 200, TOLERANCE, {1000}),
      ElementsAre("it comes nearer than its clearance of 0.200 m to face 1 of layer A, 0.100 m away"));
  EXPECT_THAT(ObstacleWords(obstacles, {1200, 2000, 0, 1000}, 200, TOLERANCE, {1000}), IsEmpty());
}

TEST(ObstacleWords, LengthsMayBeFeetAndInches) {
  EXPECT_THAT(ObstacleWords({Square("1", "A", 0)}, {746, 2000, 0, 1000}, 0, TOLERANCE,
                            {1000, LengthStyle::FeetAndInches}),
              ElementsAre("it meets face 1 of layer A by 10\""));
}

TEST(WayWords, SayTheDirectionFromBelowTheEaves) {
  EXPECT_EQ(WayWords({-400, 0}, {1000}), "0.400 m to the left");
  EXPECT_EQ(WayWords({400, 0}, {1000}), "0.400 m to the right");
  EXPECT_EQ(WayWords({0, 400}, {1000}), "0.400 m up the slope");
  EXPECT_EQ(WayWords({0, -400}, {1000}), "0.400 m down the slope");
}

}  // namespace
}  // namespace teskarlt
