// LabelsTest.cpp - where tags, dimensions and falls come to stand.
#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/plot/Labels.h"
#include "tests/teskarlt/plot/Notes.h"

namespace teskarlt::plot {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

// At 1:50 a metre is 20 mm: the roof lies from (0, 100) to (200, 0) of the paper.
PlacedLabels Placed(const PlanNotes& notes, double scale = 50, LengthStyle lengths = LengthStyle::Metres) {
  LabelGround ground{&notes, {scale, {0, 0, 0}, {0, 100}}, {-50, -50, 250, 150}, {}, lengths};
  ground.footprints.reserve(notes.windows.size());
  for (const PlanWindow& window : notes.windows) {
    ground.footprints.push_back({ground.map.Of(window.frame[0]), ground.map.Of(window.frame[1]),
                                 ground.map.Of(window.frame[2]), ground.map.Of(window.frame[3])});
  }
  return PlaceLabels(ground);
}

PlanNotes NotesWith(std::vector<PlanWindow> windows) {
  return {{SouthRoof()}, std::move(windows)};
}

std::vector<Quad> RoomOf(const PlacedLabels& labels) {
  std::vector<Quad> quads;
  for (const PlacedTag& tag : labels.tags)
    quads.push_back(QuadOf(tag.box));
  for (const PlacedFall& fall : labels.falls)
    quads.push_back(QuadAround(fall.middle, {1, 0}, {TextWidth(fall.text, FALL_SIZE), FALL_SIZE}));
  for (const PlacedDimension& dimension : labels.dimensions) {
    quads.push_back(QuadAround(dimension.middle, dimension.along,
                               {TextWidth(dimension.text, DIMENSION_SIZE), DIMENSION_SIZE}));
  }
  return quads;
}

TEST(Labels, DimensionsTellTheWayAlongTheSlopeAndToTheNearerVerge) {
  const PlacedLabels labels = Placed(NotesWith({WindowAt(2, 1, "W01", 1)}));
  ASSERT_THAT(labels.dimensions, SizeIs(2));
  EXPECT_EQ(labels.dimensions[0].text, "1.414");  // 1 m in the plan at 45 degrees
  EXPECT_NEAR(LengthOf(labels.dimensions[0].line), 20, 1e-9);
  EXPECT_EQ(labels.dimensions[1].text, "2.000");
  EXPECT_NEAR(LengthOf(labels.dimensions[1].line), 40, 1e-9);
}

TEST(Labels, DimensionsAreInFeetWhereAsked) {
  const PlacedLabels labels = Placed(NotesWith({WindowAt(2, 1, "W01", 1)}), 50, LengthStyle::FeetAndInches);
  EXPECT_EQ(labels.dimensions[1].text, FeetInchesText(2));
}

TEST(Labels, WindowWithoutARoofHasATagAlone) {
  PlanNotes notes = NotesWith({WindowAt(2, 1, "W01", 1)});
  notes.windows[0].roof.reset();
  const PlacedLabels labels = Placed(notes);
  EXPECT_THAT(labels.dimensions, IsEmpty());
  ASSERT_THAT(labels.tags, SizeIs(1));
  EXPECT_EQ(labels.tags[0].text, "W01");
}

TEST(Labels, LeaderEndsAtTheWindow) {
  const PlacedLabels labels = Placed(NotesWith({WindowAt(2, 1, "W01", 1)}));
  ASSERT_THAT(labels.tags, SizeIs(1));
  const PaperPoint end = labels.tags[0].leader.to;  // the window lies from (40, 60) to (60, 80)
  EXPECT_NEAR(std::max({40 - end.x, end.x - 60, 60 - end.y, end.y - 80}), 0.3, 1e-9);
}

TEST(Labels, WindowThatHasATagInTheDrawingGetsNoSecondOne) {
  PlanWindow window = WindowAt(2, 2, "W01", 1);
  window.hasTag = true;
  const PlacedLabels labels = Placed(NotesWith({window}));
  EXPECT_THAT(labels.tags, IsEmpty());
  EXPECT_THAT(labels.dimensions, SizeIs(2));
}

TEST(Labels, NothingHidesAnything) {
  std::vector<PlanWindow> windows;
  windows.reserve(6);
  for (int i = 0; i < 6; ++i)
    windows.push_back(WindowAt(0.5 + 1.5 * i, 1 + 0.5 * (i % 2), "W0" + std::to_string(i + 1), i + 1));
  const PlanNotes notes = NotesWith(windows);
  const PlacedLabels labels = Placed(notes);
  EXPECT_THAT(labels.tags, SizeIs(6));
  std::vector<Quad> quads = RoomOf(labels);
  for (const PlanWindow& window : notes.windows) {
    const PaperPoint corner{window.frame[0].x * 20, 100 - window.frame[0].y * 20};
    quads.push_back(QuadOf({corner.x, corner.y - 20, corner.x + 20, corner.y}));
  }
  for (std::size_t i = 0; i < quads.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_FALSE(Overlap(quads[i], quads[j])) << i << " and " << j;
  }
}

TEST(Labels, DimensionRunsBelowANeighbourInItsWay) {
  // The second window's way to the left verge is blocked by the first; the right one is farther but free.
  const PlacedLabels labels = Placed(NotesWith({WindowAt(1, 2, "W01", 1), WindowAt(3, 2, "W02", 2)}));
  const auto isToTheVerge = [](const PlacedDimension& dimension) { return dimension.text == "3.000"; };
  const auto found = std::find_if(labels.dimensions.begin(), labels.dimensions.end(), isToTheVerge);
  ASSERT_NE(found, labels.dimensions.end());
  EXPECT_GT(LengthOf(found->extension), 3);
}

TEST(Labels, FallPointsDownTheSlopeAndTellsThePitch) {
  const PlacedLabels labels = Placed(NotesWith({}));
  ASSERT_THAT(labels.falls, SizeIs(1));
  EXPECT_EQ(labels.falls[0].text, "R1  45°");
  EXPECT_NEAR(DirectionOf(labels.falls[0].arrow).y, 1, 1e-9);  // to the south, down on paper
  EXPECT_EQ(labels.withoutRoom, 0);
}

TEST(Labels, FallToTheEastHasItsTextBesideTheArrow) {
  PlanNotes notes = NotesWith({});
  const double root = 0.70710678118654757;
  notes.roofs[0].frame = {{0, 0, 0}, {0, 1, 0}, {-root, 0, root}};
  notes.roofs[0].rings = {{{0, 0}, {4, 0}, {4, -8}, {0, -8}}};  // 4 m along y, 5.657 m along x
  const PlacedLabels labels = Placed(notes);
  ASSERT_THAT(labels.falls, SizeIs(1));
  EXPECT_NEAR(DirectionOf(labels.falls[0].arrow).x, 1, 1e-9);
  const Quad text = QuadAround(labels.falls[0].middle, {1, 0}, {TextWidth("R1  45°", FALL_SIZE), FALL_SIZE});
  EXPECT_FALSE(Overlap(text, StripOf(labels.falls[0].arrow, 0.5)));
}

TEST(Labels, FallOfARoofThatIsNotSeenIsLeftOut) {
  PlanNotes notes = NotesWith({});
  notes.roofs[0].isShown = false;
  EXPECT_THAT(Placed(notes).falls, IsEmpty());
}

TEST(Labels, WhatHasNoRoomIsCounted) {
  const PlacedLabels labels = Placed(NotesWith({}), 5000);  // the roof is 2 mm wide
  EXPECT_THAT(labels.falls, IsEmpty());
  EXPECT_EQ(labels.withoutRoom, 1);
}

}  // namespace
}  // namespace teskarlt::plot
