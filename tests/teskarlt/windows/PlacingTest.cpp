// PlacingTest.cpp - words for a place on a roof, on plain roofs that fall in any direction.
#include <cmath>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/Placing.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using geometry::Vec3;
using testing::HasSubstr;

constexpr double TOLERANCE = 1.0;  // drawings are in millimetres

// A roof 8 m wide whose slope is 5 m long: 4 m in the plan, rising from 2.5 m by 3 m. Its left lower corner
// stands at (1 m, 2 m), and it is turned about that by some degrees.
class PlainRoof {
 public:
  explicit PlainRoof(double degrees) : turn_(degrees / 180.0 * 3.141592653589793) {}

  // Millimetres from the left edge and up the slope from the eaves.
  Vec3 At(double across, double up) const {
    const double y = 0.8 * up;
    return {1000 + across * std::cos(turn_) - y * std::sin(turn_),
            2000 + across * std::sin(turn_) + y * std::cos(turn_), 2500 + 0.6 * up};
  }

  Outline Frame(double left, double bottom, double width = 800, double length = 1200) const {
    return {At(left, bottom), At(left, bottom + length), At(left + width, bottom + length),
            At(left + width, bottom)};
  }

  Roofs Drawn() const { return Drawn({{0, 0}, {8000, 0}, {8000, 5000}, {0, 5000}}); }

  Roofs Drawn(const std::vector<std::array<double, 2>>& corners) const {
    std::vector<Vec3> points;
    points.reserve(corners.size());
    for (const auto& [across, up] : corners)
      points.push_back(At(across, up));
    return {{MakeRoofFace(points, TOLERANCE).value()}, TOLERANCE};
  }

 private:
  double turn_;
};

MeasuredRoof MeasuredOn(const Roofs& roofs) {
  return MeasuredOn(WindowOrder{}, OnFace(roofs.Faces()[0], roofs), roofs);
}

// The way of a frame of 800 by 1200 that is drawn 1 m from the left edge and 2 m up, to the place of the
// words.
SlopePoint WayOn(const PlainRoof& roof, const Placing& placing, const KnownPlace& known = {},
                 const std::map<int, Outline>& windows = {}) {
  const auto outlineOf = [&](int number) {
    const auto found = windows.find(number);
    return found == windows.end() ? std::nullopt : std::optional(found->second);
  };
  return WayToPlace(placing, MeasuredOn(roof.Drawn()), roof.Frame(1000, 2000), known, outlineOf);
}

void ExpectWay(const SlopePoint& way, double across, double up) {
  EXPECT_NEAR(way.across, across, 1e-6);
  EXPECT_NEAR(way.up, up, 1e-6);
}

const KnownPlace AT_POINT{.isPoint = true};

class PlacingTurned : public testing::TestWithParam<double> {
 protected:
  const PlainRoof roof{GetParam()};
};

TEST_P(PlacingTurned, EavesAndVergeAreMeasuredAlongTheRoof) {
  ExpectWay(WayOn(roof, {.fromEaves = 0.5, .fromVerge = 0.3}), 300 - 1000, 500 - 2000);
}

TEST_P(PlacingTurned, RidgeAndRightVergeAreMeasuredToTheOtherEdgesOfTheFrame) {
  ExpectWay(WayOn(roof, {.fromRidge = 0.5, .fromRightVerge = 0.3}), 8000 - 300 - 1800, 5000 - 500 - 3200);
}

TEST_P(PlacingTurned, SillAndHeadAreHeightsOfTheFramesEdges) {
  // The frame rises by 0.6 of its length: 3.1 m is 1 m up, 4.9 m 4 m up the slope.
  ExpectWay(WayOn(roof, {.sill = 3.1}, AT_POINT), 0, 1000 - 2000);
  ExpectWay(WayOn(roof, {.head = 4.9}, AT_POINT), 0, 4000 - 3200);
}

TEST_P(PlacingTurned, CentreIsTheMiddleOfTheRoof) {
  ExpectWay(WayOn(roof, {.isCentred = true}, AT_POINT), 4000 - 1400, 0);
}

TEST_P(PlacingTurned, OverAPointIsOnItsAxis) {
  const Vec3 door = roof.At(6000, -3000);
  ExpectWay(WayOn(roof, {.over = PlanPoint{door.x, door.y, ""}}, AT_POINT), 6000 - 1400, 0);
}

TEST_P(PlacingTurned, BetweenIsTheMiddleOfTheGapAndInLineWithTheFirst) {
  // From 2.5 to 6 m the roof is free.
  const std::map<int, Outline> windows = {{3, roof.Frame(6000, 1000)}, {7, roof.Frame(500, 300, 2000)}};
  ExpectWay(WayOn(roof, {.between = {{3, 7}}}, {}, windows), 4250 - 1400, 1000 - 2000);
  ExpectWay(WayOn(roof, {.between = {{3, 7}}}, AT_POINT, windows), 4250 - 1400, 0);
}

TEST_P(PlacingTurned, AlignLinesUpAnEdgeOrTheAxis) {
  const std::map<int, Outline> windows = {{3, roof.Frame(6000, 1000, 1000, 2000)}};
  ExpectWay(WayOn(roof, {.align = 3}, AT_POINT, windows), 0, 1000 - 2000);
  ExpectWay(WayOn(roof, {.align = 3, .edge = AlignedEdge::Top}, AT_POINT, windows), 0, 3000 - 3200);
  ExpectWay(WayOn(roof, {.align = 3, .edge = AlignedEdge::Axis}, AT_POINT, windows), 6500 - 1400, 0);
}

TEST_P(PlacingTurned, SnapMovesToTheNearestStepFromLeftVergeAndEaves) {
  const auto none = [](int) { return std::nullopt; };
  const MeasuredRoof measured = MeasuredOn(roof.Drawn());
  ExpectWay(WayToPlace({.snap = 0.05}, measured, roof.Frame(1013, 2038), AT_POINT, none), -13, 12);
}

INSTANTIATE_TEST_SUITE_P(Directions, PlacingTurned,
                         testing::Values(0.0, 30.0, 90.0, 137.5, 180.0, 250.0, 315.0));

TEST(Placing, OfAHipTheVergesAreThoseAtTheHeightOfTheWindow) {
  // The right edge leans in by 4 m on 5 m: at the frame's top, 3.2 m up, it lies at 8 - 0.8 x 3.2 = 5.44 m.
  const PlainRoof roof(30);
  const MeasuredRoof hip = MeasuredOn(roof.Drawn({{0, 0}, {8000, 0}, {4000, 5000}, {0, 5000}}));
  const auto none = [](int) { return std::nullopt; };
  const Outline frame = roof.Frame(1000, 2000);
  EXPECT_NEAR(WayToPlace({.fromRightVerge = 0.1}, hip, frame, AT_POINT, none).across, 5440 - 100 - 1800,
              0.01);
  EXPECT_NEAR(WayToPlace({.isCentred = true}, hip, frame, AT_POINT, none).across, 2720 - 1400, 0.01);
}

TEST(Placing, WordsThatContradictAreRefused) {
  const PlainRoof roof(0);
  EXPECT_EQ(RefusalOf([&] { WayOn(roof, {.fromEaves = 1, .sill = 3}, AT_POINT); }),
            "--from-eaves and --sill both say how far up the slope the window goes; leave one out");
  EXPECT_THAT(RefusalOf([&] { WayOn(roof, {.fromVerge = 1, .isCentred = true}, AT_POINT); }),
              HasSubstr("--from-verge and --centre both say how far along the eaves"));
  EXPECT_THAT(RefusalOf([&] { WayOn(roof, {.head = 3}, {.isHeight = true}); }),
              HasSubstr("--head and an edge's height"));
  EXPECT_THAT(RefusalOf([&] { WayOn(roof, {.edge = AlignedEdge::Top}, AT_POINT); }),
              HasSubstr("add --align"));
}

TEST(Placing, WhatNothingSaysIsAskedFor) {
  const PlainRoof roof(0);
  EXPECT_THAT(RefusalOf([&] { WayOn(roof, {.isCentred = true}); }), HasSubstr("say how far up the slope"));
  EXPECT_THAT(RefusalOf([&] { WayOn(roof, {.fromEaves = 1}); }), HasSubstr("say how far along the eaves"));
  EXPECT_EQ(RefusalOf([&] { WayOn(roof, {.isCentred = true}, {.isHeight = true}); }), "");
}

TEST(Placing, WindowThatThereIsNotIsRefused) {
  EXPECT_THAT(RefusalOf([] { WayOn(PlainRoof(0), {.align = 9}, AT_POINT); }),
              HasSubstr("--align 9: the drawing shows no window of that number"));
}

TEST(Placing, PlaceAboveTheRoofHasNoVerge) {
  EXPECT_THAT(RefusalOf([] { WayOn(PlainRoof(0), {.fromEaves = 6, .isCentred = true}); }),
              HasSubstr("the window would lie above or below its roof, whose slope is 5.000 m long"));
}

TEST(Placing, PlaneWithoutBoundsHasHeightsAndNoEdges) {
  const PlainRoof roof(0);
  const MeasuredRoof plane = MeasuredOn(
      WindowOrder{}, OnPlane({roof.At(0, 0), roof.At(900, 0), roof.At(0, 900)}), Roofs({}, TOLERANCE));
  const auto none = [](int) { return std::nullopt; };
  const Outline frame = roof.Frame(1000, 2000);
  EXPECT_NEAR(WayToPlace({.sill = 3.1}, plane, frame, AT_POINT, none).up, -1000, 1e-6);
  EXPECT_THAT(RefusalOf([&] { WayToPlace({.fromEaves = 1}, plane, frame, AT_POINT, none); }),
              HasSubstr("--from-eaves: the roof is a plane without that edge"));
  EXPECT_THAT(RefusalOf([&] { WayToPlace({.isCentred = true}, plane, frame, AT_POINT, none); }),
              HasSubstr("--centre: the roof is a plane without that edge"));
}

TEST(Placing, FlatRoofHasNoHeights) {
  const Roofs roofs(
      {MakeRoofFace({{0, 0, 3000}, {8000, 0, 3000}, {8000, 5000, 3000}, {0, 5000, 3000}}, TOLERANCE).value()},
      TOLERANCE);
  const Outline frame{{{0, 0, 3000}, {0, 1200, 3000}, {800, 1200, 3000}, {800, 0, 3000}}};
  const auto none = [](int) { return std::nullopt; };
  EXPECT_THAT(RefusalOf([&] { WayToPlace({.sill = 3}, MeasuredOn(roofs), frame, AT_POINT, none); }),
              HasSubstr("a flat roof has one height only"));
  ExpectWay(WayToPlace({.fromEaves = 1, .fromVerge = 2}, MeasuredOn(roofs), frame, {}, none), 2000, 1000);
}

}  // namespace
}  // namespace teskarlt
