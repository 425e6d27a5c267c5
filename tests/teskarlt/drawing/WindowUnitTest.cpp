// WindowUnitTest.cpp - the unit in which windows were drawn.
#include <gtest/gtest.h>

#include "teskarlt/drawing/WindowUnit.h"
#include "tests/teskarlt/drawing/InsertedWindow.h"

namespace teskarlt {
namespace {

TEST(UnitFactorOfWindows, IsThatOfTheGlassWhateverTheSizes) {
  for (const char* depth : {"0.04", "0.08", "0.3"}) {
    const Answers answers = {{"frameDepth", depth}, {"skirtHeight", "0.1"}};
    EXPECT_EQ(UnitFactorOfWindows(DrawingOf(Insert(answers).entities)), UNITS_PER_METRE) << depth;
  }
}

TEST(UnitFactorOfWindows, FollowsADrawingThatWasScaledToMetres) {
  const Entities metres = Changed(Insert().entities, Scale(0.001, 0.001, 0.001));
  EXPECT_EQ(UnitFactorOfWindows(DrawingOf(metres)), 1);
}

TEST(UnitFactorOfWindows, IsNotTold) {
  EXPECT_EQ(UnitFactorOfWindows(DrawingOf({})), std::nullopt);
  EXPECT_EQ(UnitFactorOfWindows(DrawingOf(Insert({{"bodyAsFaces", "0"}}).entities)), std::nullopt);
  Entities two = Insert().entities;
  const Entities scaled = Changed(Insert({{"markerValue", "2"}}).entities, Scale(0.1, 0.1, 0.1));
  two.insert(two.end(), scaled.begin(), scaled.end());
  EXPECT_EQ(UnitFactorOfWindows(DrawingOf(two)), std::nullopt) << "they differ";
}

}  // namespace
}  // namespace teskarlt
