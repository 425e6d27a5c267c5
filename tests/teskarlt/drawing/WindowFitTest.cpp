// WindowFitTest.cpp - outlines of windows, what they overlap and how much of them lies on a roof.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/drawing/WindowFit.h"
#include "window/Choices.h"

namespace teskarlt {
namespace {

using brevanta::RecordPoint;
using brevanta::WindowParams;
using geometry::Vec3;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double TOLERANCE = 1.0;  // millimetres

// A point of a plane that rises 3 in 4 along y, from height `z` at y = 0; metres to millimetres.
RecordPoint OnSlope(double x, double y, double z = 0.0) {
  return {x * 1000, y * 1000, (z + 0.75 * y) * 1000};
}

Vec3 Corner(double x, double y) {
  const RecordPoint p = OnSlope(x, y);
  return {p.x, p.y, p.z};
}

// 1 m wide and 2 m long, in the plan 1.6 m; its lower edge's centre at (x, y) of the slope.
WindowParams Window(double x, double y, double z = 0.0) {
  WindowParams record{};
  record.width = 1.0;
  record.length = 2.0;
  record.roofBuildUp = brevanta::BUILD_UP_PLAIN;
  record.heightReference = 1;
  record.unitFactor = 1000;
  record.storedPoint = OnSlope(x, y, z);
  record.roofPlanePoints[0] = OnSlope(0, 0, z);
  record.roofPlanePoints[1] = OnSlope(10, 0, z);
  record.roofPlanePoints[2] = OnSlope(0, 10, z);
  return record;
}

void ExpectLowerLeft(const WindowParams& record, double x, double y) {
  const Outline outline = OutlineOf(record);
  const Vec3 expected = Corner(x, y);
  EXPECT_NEAR(outline[0].x, expected.x, 1e-6);
  EXPECT_NEAR(outline[0].y, expected.y, 1e-6);
  EXPECT_NEAR(outline[0].z, expected.z, 1e-6);
}

bool DoOverlap(const WindowParams& a, const WindowParams& b) {
  return Overlap(OutlineOf(a), OutlineOf(b), TOLERANCE);
}

// The slope from x = 0 to `width` and y = 0 to 10.
Roofs Slope(double width) {
  return {{*MakeRoofFace({Corner(0, 0), Corner(width, 0), Corner(width, 10), Corner(0, 10)}, TOLERANCE)},
          TOLERANCE};
}

TEST(OutlineOf, RunsFromTheLowerLeftCornerUpTheSlope) {
  const Outline outline = OutlineOf(Window(5, 2));
  ExpectLowerLeft(Window(5, 2), 4.5, 2);
  EXPECT_NEAR(outline[1].y, 3600, 1e-6);
  EXPECT_NEAR(outline[1].z, 2700, 1e-6);
  EXPECT_NEAR(outline[2].x, 5500, 1e-6);
  EXPECT_NEAR(outline[3].y, 2000, 1e-6);
}

TEST(OutlineOf, AnchorsAtTheStartAndAtTheEnd) {
  WindowParams record = Window(5, 2);
  record.widthAnchor = brevanta::ANCHOR_START;
  ExpectLowerLeft(record, 5, 2);
  record.widthAnchor = brevanta::ANCHOR_END;
  ExpectLowerLeft(record, 4, 2);
}

TEST(OutlineOf, OffsetMovesTheWindowUpTheSlope) {
  WindowParams record = Window(5, 2);
  record.roofBuildUp = brevanta::BUILD_UP_SLOPE_OFFSET;
  record.slopeOffset = 0.5;
  ExpectLowerLeft(record, 4.5, 2.4);
}

TEST(OutlineOf, WindowPlacedByTheUndersideLiesOnTheRoof) {
  for (const std::int32_t reference : {0, 1, 2, 3}) {
    WindowParams record = Window(5, 2);
    record.roofBuildUp = brevanta::BUILD_UP_SECOND_PLANE;
    record.heightReference = reference;
    record.layerThickness = 0.2;
    for (int i = 0; i < 3; ++i) {
      const RecordPoint& p = record.roofPlanePoints[i];
      record.secondPlanePoints[i] = {p.x, p.y + 120, p.z - 160};
    }
    const bool isSquare = reference == 0 || reference == 2;
    record.storedPoint = isSquare ? RecordPoint{5000, 2120, 1340} : RecordPoint{5000, 2000, 1250};
    ExpectLowerLeft(record, 4.5, 2);
  }
}

TEST(Overlap, TouchingEdgesAreNone) {
  EXPECT_FALSE(DoOverlap(Window(5, 2), Window(6, 2)));
  EXPECT_FALSE(DoOverlap(Window(5, 2), Window(5, 3.6)));
}

TEST(Overlap, BeginsBeyondTheTolerance) {
  EXPECT_FALSE(DoOverlap(Window(5, 2), Window(5.9995, 2)));
  EXPECT_TRUE(DoOverlap(Window(5, 2), Window(5.998, 2)));
  EXPECT_TRUE(DoOverlap(Window(5, 2), Window(5.5, 3.5)));
}

TEST(Overlap, WindowsOfDifferentPlanesDoNot) {
  EXPECT_FALSE(DoOverlap(Window(5, 2), Window(5, 2, 1.0)));
}

TEST(CoveredPart, IsThePartOnTheFacesOfTheWindowsPlane) {
  EXPECT_NEAR(CoveredPart(OutlineOf(Window(5, 2)), Slope(10)), 1.0, 1e-12);
  EXPECT_NEAR(CoveredPart(OutlineOf(Window(5, 2)), Slope(5)), 0.5, 1e-12);
  EXPECT_EQ(CoveredPart(OutlineOf(Window(5, 2, 1.0)), Slope(10)), 0.0);
}

TEST(UnevennessIn, IsMeasuredWhereTheWindowLies) {
  // Two faces of 100 m by 10 m, of which the second rises by 120 mm. The best fit rises half as much and lies
  // 30 mm above their common edge.
  const Roofs roofs({*MakeRoofFace({{0, 0, 0}, {1e5, 0, 0}, {1e5, 1e4, 0}, {0, 1e4, 0}}, TOLERANCE),
                     *MakeRoofFace({{0, 1e4, 0}, {1e5, 1e4, 0}, {1e5, 2e4, 120}, {0, 2e4, 120}}, TOLERANCE)},
                    TOLERANCE);
  const auto unevenness = [&](double y) {
    const auto corner = [](double x, double up) { return Vec3{x, up, 30 + (up - 1e4) * 0.006}; };
    return UnevennessIn({corner(0, y), corner(0, y + 1000), corner(1000, y + 1000), corner(1000, y)}, roofs);
  };
  EXPECT_NEAR(unevenness(9500), 30, 0.1);  // over the edge, an end of which it covers
  EXPECT_NEAR(unevenness(4500), 3, 0.1);   // at 5 m the plane passes through the first face
}

TEST(WindowFit, NamesTheWindowsThatAreOverlapped) {
  const Roofs none({}, TOLERANCE);
  WindowFit fit(none);
  for (int number = 1; number <= 4; ++number)
    fit.Add(number, OutlineOf(Window(2.0 * number, 2)));
  EXPECT_THAT(fit.Misfits(Window(3, 2), OutlineOf(Window(3, 2))), IsEmpty());
  EXPECT_THAT(fit.Misfits(Window(6.1, 3), OutlineOf(Window(6.1, 3))),
              ElementsAre("it overlaps window 3 by 0.750 m; the nearest free place is 0.750 m up the slope"));
}

TEST(WindowFit, RemovedWindowIsNotMet) {
  const Roofs none({}, TOLERANCE);
  WindowFit fit(none);
  const Outline place = OutlineOf(Window(3, 2));
  fit.Add(1, place);
  fit.Add(2, place);
  fit.Remove(1, place);
  fit.Remove(7, place);
  EXPECT_FALSE(fit.OutlineOf(1));
  EXPECT_THAT(fit.Misfits(Window(3, 2), place),
              ElementsAre("it overlaps window 2 by 1.000 m; the nearest free place is 1.000 m to the left"));
}

TEST(WindowFit, WideWindowIsFoundFromItsFarEnd) {
  const Roofs none({}, TOLERANCE);
  WindowFit fit(none);
  WindowParams wide = Window(0, 2);
  wide.width = 50;
  fit.Add(1, OutlineOf(wide));
  for (int number = 2; number <= 5; ++number)
    fit.Add(number, OutlineOf(Window(2.0 * number, 8)));
  EXPECT_THAT(fit.Misfits(Window(24, 2), OutlineOf(Window(24, 2))),
              ElementsAre("it overlaps window 1 by 1.500 m; the nearest free place is 1.500 m to the right"));
}

// A wall across the slope at `x` metres, 1 m long from y on, that rises 2 m above it.
Wall WallAt(double x, double y) {
  const Vec3 low = Corner(x, y);
  const Vec3 high = Corner(x, y + 1);
  return {"2F", "CHIMNEY", {low, high, Moved(high, {0, 0, 1}, 2000), Moved(low, {0, 0, 1}, 2000)}};
}

std::vector<std::string> MisfitsBeside(const Wall& wall, const WindowParams& record, double clearance = 0) {
  const Roofs roofs({*MakeRoofFace({Corner(0, 0), Corner(10, 0), Corner(10, 10), Corner(0, 10)}, TOLERANCE)},
                    TOLERANCE, IN_DRAWING_UNITS, {}, {wall});
  return WindowFit(roofs).Misfits(record, OutlineOf(record), {.clearance = clearance});
}

TEST(WindowFit, ObstacleIsNamedWithTheNearestFreePlace) {
  // The frame reaches from 4.5 to 5.5 m.
  EXPECT_THAT(
      MisfitsBeside(WallAt(5.3, 2.5), Window(5, 2)),
      ElementsAre(
          "it meets face 2F of layer CHIMNEY by 0.200 m; the nearest free place is 0.200 m to the left"));
  EXPECT_THAT(MisfitsBeside(WallAt(5.5, 2.5), Window(5, 2)), IsEmpty());
  EXPECT_THAT(MisfitsBeside(WallAt(5.3, 3.6), Window(5, 2)), IsEmpty());
}

TEST(WindowFit, FreePlaceLiesOnTheRoof) {
  // 0.3 m to the left, the frame would pass the verge.
  EXPECT_THAT(
      MisfitsBeside(WallAt(0.9, 2.5), Window(0.7, 2)),
      ElementsAre(
          "it meets face 2F of layer CHIMNEY by 0.300 m; the nearest free place is 0.700 m to the right"));
}

TEST(WindowFit, ClearanceIsKeptToObstaclesEdgesAndWindows) {
  EXPECT_THAT(
      MisfitsBeside(WallAt(5.6, 2.5), Window(5, 2), 0.2),
      ElementsAre("it comes nearer than its clearance of 0.200 m to face 2F of layer CHIMNEY, 0.100 m away; "
                  "the nearest free place is 0.100 m to the left"));
  EXPECT_THAT(MisfitsBeside(WallAt(8, 2.5), Window(0.65, 2), 0.2),
              ElementsAre("it comes nearer than its clearance of 0.200 m to the left verge, 0.150 m away"));
  const Roofs roofs = Slope(10);
  WindowFit fit(roofs);
  fit.Add(1, OutlineOf(Window(5, 2)));
  const WindowParams beside = Window(6.1, 2);
  EXPECT_THAT(fit.Misfits(beside, OutlineOf(beside), {.clearance = 0.2}),
              ElementsAre("it comes nearer than its clearance of 0.200 m to window 1, 0.100 m away; "
                          "the nearest free place is 0.100 m to the right"));
  EXPECT_THAT(fit.Misfits(beside, OutlineOf(beside), {.clearance = 0.1}), IsEmpty());
}

// The one that stands there goes from 10 to 50 m along the eaves and from 1.25 to 12.25 m up the slope.
TEST(WindowFit, FreePlaceMoreThanTenMetresAwayIsNotTold) {
  const Roofs roofs = Slope(60);
  WindowFit fit(roofs);
  WindowParams wide = Window(30, 1);
  wide.width = 40;
  wide.length = 11;
  fit.Add(1, OutlineOf(wide));
  EXPECT_THAT(fit.Misfits(Window(30, 4), OutlineOf(Window(30, 4))),
              ElementsAre("it overlaps window 1 by 5.750 m"));
  EXPECT_THAT(fit.Misfits(Window(13, 4), OutlineOf(Window(13, 4))),
              ElementsAre("it overlaps window 1 by 3.500 m; the nearest free place is 3.500 m to the left"));
}

TEST(WindowFit, RoofThatWasRaisedIsNamedAndNotMet) {
  const Roofs roofs = Slope(10);
  const WindowParams record = Window(5, 2, -0.15);
  EXPECT_THAT(WindowFit(roofs).Misfits(record, OutlineOf(record)),
              ElementsAre("it lies on no roof face; roof R1 lies 0.150 m over it"));
}

TEST(WindowFit, EdgesOfAPlaneThatTheUserGaveAreKept) {
  const Roofs none({}, TOLERANCE);
  const WindowParams record = Window(5, 2);
  const Roofs known = Slope(5.3);
  const FitRules rules{.isPlaneGiven = true,
                       .bounds = OutlineOf(known.Surfaces()[0], known.Faces(), TOLERANCE)};
  EXPECT_THAT(WindowFit(none).Misfits(record, OutlineOf(record), rules),
              ElementsAre("it passes the right verge by 0.200 m"));
}

TEST(WindowFit, PlaneThatTheUserGaveNeedsNoRoofFaceAndKnowsObstacles) {
  const WindowParams record = Window(5, 2, 0.4);
  const Roofs roofs({*MakeRoofFace({Corner(0, 0), Corner(9, 0), Corner(9, 9)}, TOLERANCE)}, TOLERANCE,
                    IN_DRAWING_UNITS, {}, {WallAt(5.3, 2.5)});
  EXPECT_THAT(
      WindowFit(roofs).Misfits(record, OutlineOf(record), {.isPlaneGiven = true}),
      ElementsAre(
          "it meets face 2F of layer CHIMNEY by 0.200 m; the nearest free place is 0.200 m to the left"));
}

TEST(WindowFit, FaceOfWindowWithASecondPlaneOfItsOwnIsNotAsked) {
  const Roofs roofs = Slope(10);
  const WindowFit fit(roofs);
  WindowParams record = Window(5, 2, 1.0);
  EXPECT_THAT(fit.Misfits(record, OutlineOf(record)), ElementsAre("it lies on no roof face"));
  record.roofBuildUp = brevanta::BUILD_UP_SECOND_PLANE;
  record.layerThickness = 0.2;
  record.secondPlanePoints[0] = OnSlope(0, 0);
  record.secondPlanePoints[1] = OnSlope(10, 0);
  record.secondPlanePoints[2] = OnSlope(0, 10, 0.5);
  EXPECT_THAT(fit.Misfits(record, OutlineOf(record)), IsEmpty());
}

}  // namespace
}  // namespace teskarlt
