// WindowUnitTest.cpp - the unit in which windows were drawn.
#include <gtest/gtest.h>

#include "teskarlt/drawing/WindowUnit.h"
#include "tests/teskarlt/drawing/InsertedWindow.h"

namespace teskarlt {
namespace {

TEST(UnitOfWindows, IsThatOfTheGlassWhateverTheSizes) {
  for (const char* depth : {"0.04", "0.08", "0.3"}) {
    const Answers answers = {{"frameDepth", depth}, {"skirtHeight", "0.1"}};
    EXPECT_EQ(UnitOfWindows(DrawingOf(Insert(answers).entities)), &UnitByName("mm")) << depth;
  }
}

TEST(UnitOfWindows, FollowsADrawingThatWasScaled) {
  const Entities metres = Changed(Insert().entities, Scale(0.001, 0.001, 0.001));
  EXPECT_EQ(UnitOfWindows(DrawingOf(metres)), &UnitByName("m"));
  const double inch = 1 / 25.4;
  const Entities inches = Changed(Insert().entities, Scale(inch, inch, inch));
  EXPECT_EQ(UnitOfWindows(DrawingOf(inches)), &UnitByName("in"));
}

TEST(UnitOfWindows, SurveyFeetCountAsFeet) {
  const double foot = 3937.0 / 1'200'000.0;  // a millimetre in US survey feet
  const Entities feet = Changed(Insert().entities, Scale(foot, foot, foot));
  EXPECT_EQ(UnitOfWindows(DrawingOf(feet)), &UnitByName("ft"));
}

TEST(UnitOfWindows, IsNotTold) {
  EXPECT_EQ(UnitOfWindows(DrawingOf({})), nullptr);
  EXPECT_EQ(UnitOfWindows(DrawingOf(Insert({{"bodyAsFaces", "0"}}).entities)), nullptr);
  Entities two = Insert().entities;
  const Entities scaled = Changed(Insert({{"markerValue", "2"}}).entities, Scale(0.1, 0.1, 0.1));
  two.insert(two.end(), scaled.begin(), scaled.end());
  EXPECT_EQ(UnitOfWindows(DrawingOf(two)), nullptr) << "they differ";
}

}  // namespace
}  // namespace teskarlt
