// WindowShapeTest.cpp - the shape of windows that stand where they were inserted, and of those that were
// changed since.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/teskarlt/drawing/InsertedWindow.h"

namespace teskarlt {
namespace {

using geometry::Vec3;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double SAME = 1e-6;                // millimetres
constexpr double PITCH = 36.86989764584402;  // degrees, of the slope that rises 3 in 4
constexpr double WIDTH = 1000;               // of the windows, millimetres
constexpr double LENGTH = 2000;
constexpr Vec3 START{4500, 2000, 1500};        // half the width beside the point (5, 2) m
constexpr Vec3 UPPER_START{4500, 3600, 2700};  // 2 m up the slope: 1.6 m along y, 1.2 m up
constexpr Vec3 UPPER_END{5500, 3600, 2700};
constexpr Vec3 END{5500, 2000, 1500};

void ExpectPoint(const Vec3& actual, const Vec3& expected) {
  EXPECT_NEAR(actual.x, expected.x, SAME);
  EXPECT_NEAR(actual.y, expected.y, SAME);
  EXPECT_NEAR(actual.z, expected.z, SAME);
}

// On the slope, centred at its point.
void ExpectOutlineOnSlope(const WindowShape& shape, const Motion& since = {}) {
  ExpectPoint(shape.outline[0], since(START));
  ExpectPoint(shape.outline[1], since(UPPER_START));
  ExpectPoint(shape.outline[2], since(UPPER_END));
  ExpectPoint(shape.outline[3], since(END));
}

Entities WindowOf(const Answers& answers = {}, const Place& place = OnSlope()) {
  return Insert(answers, place).entities;
}

const Answers WITHOUT_BODY = {{"bodyAsFaces", "0"}};
const Answers WITHOUT_SYMBOL = {{"drawOpeningSymbol", "0"}};
const Answers OPENING_ONLY = {{"bodyAsFaces", "0"}, {"drawOpeningSymbol", "0"}};

// --- Where the outline lies, whatever was drawn ---

TEST(WindowShape, OutlineRunsUpTheSlopeFromTheStartOfTheLowerEdge) {
  ExpectOutlineOnSlope(ShapeFrom(WindowOf()));
}

TEST(WindowShape, OutlineIsThatOfTheFaces) {
  ExpectOutlineOnSlope(ShapeFrom(WindowOf(WITHOUT_SYMBOL)));
}

TEST(WindowShape, OutlineIsThatOfTheSymbolWithoutFaces) {
  ExpectOutlineOnSlope(ShapeFrom(WindowOf(WITHOUT_BODY)));
}

// Only the upper edge is drawn; the opening is longer than the window wherever it is not cut square to the
// roof.
TEST(WindowShape, OutlineFollowsFromAnOpeningHoweverItIsCut) {
  for (const char* reference : {"0", "1", "2", "3"}) {
    Answers answers = OPENING_ONLY;
    answers["heightReference"] = reference;
    answers["layerThickness"] = "0.2";
    SCOPED_TRACE(reference);
    ExpectOutlineOnSlope(ShapeFrom(WindowOf(answers)));
  }
}

TEST(WindowShape, OutlineFollowsFromAnOpeningWithoutARoofLayer) {
  Answers answers = OPENING_ONLY;
  answers["layerThickness"] = "0";
  ExpectOutlineOnSlope(ShapeFrom(WindowOf(answers)));
}

TEST(WindowShape, OutlineLiesOnTheRoofWhenTheUndersidePlacesTheWindow) {
  for (const char* reference : {"0", "1", "2", "3"}) {
    for (Answers answers : {Answers{}, WITHOUT_SYMBOL, OPENING_ONLY}) {
      answers.insert({{"roofBuildUp", "0"}, {"layerThickness", "0.2"}, {"heightReference", reference}});
      const WindowShape shape = ShapeFrom(WindowOf(answers));
      // z = 0.75 y on the roof
      EXPECT_NEAR(shape.outline[0].z, 0.75 * shape.outline[0].y, SAME) << reference;
      EXPECT_NEAR(shape.length, LENGTH, SAME) << reference;
    }
  }
}

TEST(WindowShape, WindowStartsOrEndsAtItsPointByItsAnchor) {
  EXPECT_NEAR(ShapeFrom(WindowOf({{"widthAnchor", "1"}})).outline[0].x, 5000, SAME);
  EXPECT_NEAR(ShapeFrom(WindowOf({{"widthAnchor", "2"}})).outline[0].x, 4000, SAME);
}

TEST(WindowShape, SlopeOffsetMovesTheOutlineUpTheSlope) {
  const WindowShape shape = ShapeFrom(WindowOf({{"roofBuildUp", "2"}, {"slopeOffset", "0.5"}}));
  ExpectPoint(shape.outline[0], {4500, 2400, 1800});  // 0.5 m: 0.4 m along y, 0.3 m up
}

TEST(WindowShape, SkirtLeavesTheOutlineOnTheRoof) {
  ExpectOutlineOnSlope(ShapeFrom(WindowOf({{"skirtHeight", "0.05"}})));
}

TEST(WindowShape, DirectionsAndPitchAreThoseOfTheSlope) {
  const WindowShape shape = ShapeFrom(WindowOf());
  ExpectPoint(shape.Across(), {1, 0, 0});
  ExpectPoint(shape.Up(), {0, 0.8, 0.6});
  ExpectPoint(shape.Normal(), {0, -0.6, 0.8});
  EXPECT_NEAR(shape.Pitch(), PITCH, SAME);
}

// --- Sizes ---

TEST(WindowShape, SizesAreDrawnWithBodyAndSymbol) {
  const WindowShape shape =
      ShapeFrom(WindowOf({{"frameWidth", "0.125"}, {"frameDepth", "0.05"}, {"skirtHeight", "0.25"}}));
  EXPECT_NEAR(shape.width, WIDTH, SAME);
  EXPECT_NEAR(shape.length, LENGTH, SAME);
  EXPECT_NEAR(shape.frameWidth.value(), 125, SAME);
  EXPECT_NEAR(shape.frameDepth.value(), 50, SAME);
  EXPECT_NEAR(shape.skirtHeight.value(), 250, SAME);
  EXPECT_FALSE(shape.layerThickness.has_value());
}

TEST(WindowShape, FacesAloneTellTheFrame) {
  for (const char* skirt : {"0", "0.25"}) {
    Answers answers = WITHOUT_SYMBOL;
    answers.insert({{"frameWidth", "0.125"}, {"frameDepth", "0.05"}, {"skirtHeight", skirt}});
    const WindowShape shape = ShapeFrom(WindowOf(answers));
    EXPECT_NEAR(shape.frameWidth.value(), 125, SAME) << skirt;
    EXPECT_NEAR(shape.frameDepth.value(), 50, SAME) << skirt;
    EXPECT_NEAR(shape.skirtHeight.value(), std::stod(skirt) * 1000, SAME);
  }
}

TEST(WindowShape, SymbolAloneTellsFrameAndSkirtButNoDepth) {
  Answers answers = WITHOUT_BODY;
  answers.insert({{"frameWidth", "0.125"}, {"skirtHeight", "0.25"}});
  const WindowShape shape = ShapeFrom(WindowOf(answers));
  EXPECT_NEAR(shape.frameWidth.value(), 125, SAME);
  EXPECT_NEAR(shape.skirtHeight.value(), 250, SAME);
  EXPECT_FALSE(shape.frameDepth.has_value());
}

TEST(WindowShape, OpeningTellsTheLayerAndNothingOfTheFrame) {
  for (const char* reference : {"0", "1", "2", "3"}) {
    Answers answers = OPENING_ONLY;
    answers.insert({{"layerThickness", "0.2"}, {"heightReference", reference}});
    const WindowShape shape = ShapeFrom(WindowOf(answers));
    EXPECT_NEAR(shape.layerThickness.value(), 200, SAME) << reference;
    EXPECT_FALSE(shape.frameWidth.has_value());
    EXPECT_FALSE(shape.frameDepth.has_value());
    EXPECT_FALSE(shape.skirtHeight.has_value());
  }
}

// --- Windows that were changed ---

TEST(WindowShape, OutlineGoesWhereTheWindowWasMovedAndTurned) {
  const Motion motion = Turn(75).Then(Move(3000, -2000, 500));
  for (const Answers& answers : {Answers{}, WITHOUT_BODY, WITHOUT_SYMBOL, OPENING_ONLY}) {
    const WindowShape shape = ShapeFrom(Changed(WindowOf(answers), motion));
    ExpectOutlineOnSlope(shape, motion);
    EXPECT_FALSE(shape.isMirrored);
  }
}

TEST(WindowShape, MirroredWindowStartsOnTheOtherSide) {
  const WindowShape shape = ShapeFrom(Changed(WindowOf(), Mirror()));
  ExpectOutlineOnSlope(shape, Mirror());
  EXPECT_TRUE(shape.isMirrored);
  ExpectPoint(shape.Across(), {-1, 0, 0});
  ExpectPoint(shape.Normal(), {0, -0.6, 0.8});  // upwards all the same
}

TEST(WindowShape, MirroringTwiceIsTurning) {
  const Motion alongBoth = Scale(-1, -1, 1);
  EXPECT_FALSE(ShapeFrom(Changed(WindowOf(), alongBoth)).isMirrored);
}

TEST(WindowShape, EverySizeGrowsWithAScaledWindow) {
  const WindowShape shape = ShapeFrom(Changed(WindowOf({{"skirtHeight", "0.05"}}), Scale(2, 2, 2)));
  EXPECT_NEAR(shape.width, 2 * WIDTH, SAME);
  EXPECT_NEAR(shape.length, 2 * LENGTH, SAME);
  EXPECT_NEAR(shape.frameWidth.value(), 200, SAME);
  EXPECT_NEAR(shape.frameDepth.value(), 160, SAME);
  EXPECT_NEAR(shape.skirtHeight.value(), 100, SAME);
  EXPECT_FALSE(shape.isLeaning);
}

TEST(WindowShape, FrameOfDifferentSidesHasNoWidth) {
  const WindowShape shape = ShapeFrom(Changed(WindowOf(), Scale(2, 1, 1)));
  EXPECT_NEAR(shape.width, 2 * WIDTH, SAME);
  EXPECT_FALSE(shape.frameWidth.has_value());
}

TEST(WindowShape, LeaningBodyIsTold) {
  const Motion steeper = Scale(1, 1, 1.3);
  EXPECT_FALSE(ShapeFrom(WindowOf()).isLeaning);
  EXPECT_TRUE(ShapeFrom(Changed(WindowOf(), steeper)).isLeaning);
  Answers withSkirt = WITHOUT_BODY;
  withSkirt["skirtHeight"] = "0.25";  // without faces the symbol shows how the skirt stands
  EXPECT_TRUE(ShapeFrom(Changed(WindowOf(withSkirt), steeper)).isLeaning);
  EXPECT_FALSE(ShapeFrom(Changed(WindowOf(WITHOUT_BODY), steeper)).isLeaning);
}

TEST(WindowShape, PitchIsTheOneThatIsDrawn) {
  // 1.3 times 3 in 4: atan(0.975)
  EXPECT_NEAR(ShapeFrom(Changed(WindowOf(), Scale(1, 1, 1.3))).Pitch(), 44.27477570094075, SAME);
}

// --- Flat roofs ---

TEST(WindowShape, FlatWindowLiesAlongTheXAxis) {
  const Answers answers = {{"heightReference", "0"}};
  const WindowShape shape = ShapeFrom(WindowOf(answers, OnSlopeOf(0)));
  ExpectPoint(shape.Across(), {1, 0, 0});
  ExpectPoint(shape.Up(), {0, 1, 0});
  EXPECT_EQ(shape.Pitch(), 0);
}

TEST(WindowShape, FlatWindowMayBeMovedAndMirroredButNotTurned) {
  const Entities window = WindowOf({{"heightReference", "0"}}, OnSlopeOf(0));
  EXPECT_THAT(RefusedShape(Changed(window, Move(10, 20, 30))), IsEmpty());
  EXPECT_THAT(RefusedShape(Changed(window, Mirror())), IsEmpty());
  EXPECT_THAT(RefusedShape(Changed(window, Turn(180))), HasSubstr("turned on a flat roof"));
  EXPECT_THAT(RefusedShape(Changed(window, Turn(5))), HasSubstr("turned on a flat roof"));
}

TEST(WindowShape, FlatOpeningTellsLengthAndLayer) {
  for (const char* reference : {"0", "3"}) {  // the others would be infinitely long
    Answers answers = OPENING_ONLY;
    answers.insert({{"heightReference", reference}, {"layerThickness", "0.2"}});
    const WindowShape shape = ShapeFrom(WindowOf(answers, OnSlopeOf(0)));
    EXPECT_NEAR(shape.length, LENGTH, SAME) << reference;
    EXPECT_NEAR(shape.layerThickness.value(), 200, SAME) << reference;
  }
}

// --- What is no roof window any more ---

TEST(WindowShape, ShearedWindowIsNoRectangle) {
  Motion shear;
  shear.x = {1, 0.5, 0};
  EXPECT_THAT(RefusedShape(Changed(WindowOf(), shear)), HasSubstr("no rectangle"));
}

TEST(WindowShape, WindowThatWasSqueezedToALineIsRefused) {
  EXPECT_THAT(RefusedShape(Changed(WindowOf(), Scale(0, 1, 1))), HasSubstr("squeezed to a line"));
}

TEST(WindowShape, LowerEdgeMustStayHorizontal) {
  // About the y axis: x rises by 0.3 a unit.
  Motion tilted;
  tilted.x = {0.9539392014169457, 0, 0.3};
  tilted.z = {-0.3, 0, 0.9539392014169457};
  EXPECT_THAT(RefusedShape(Changed(WindowOf(), tilted)), HasSubstr("not horizontal"));
}

TEST(WindowShape, WindowMustNotStandUpright) {
  EXPECT_THAT(RefusedShape(Changed(WindowOf(), Tilt(90 - PITCH))), HasSubstr("upright"));
}

TEST(WindowShape, WindowMustNotFallTowardsItsUpperEdge) {
  EXPECT_THAT(RefusedShape(Changed(WindowOf(), Tilt(-2 * PITCH))), HasSubstr("upside down"));
}

TEST(WindowShape, BodyMustStandAboveTheRoof) {
  // Mirrored at the plane of the roof's pitch: the body hangs below.
  const Motion atSlope = Tilt(-PITCH).Then(Scale(1, 1, -1)).Then(Tilt(PITCH));
  EXPECT_THAT(RefusedShape(Changed(WindowOf(), atSlope)), HasSubstr("upside down"));
}

// --- Parts ---

TEST(WindowShape, EveryPartThatLeavesTheOthersIsNoticed) {
  const Entities window = WindowOf({{"skirtHeight", "0.05"}, {"openingCode", "BCDE"}});
  for (std::size_t part = 0; part < window.size(); ++part)
    EXPECT_THAT(RefusedShape(PartChanged(window, part, Move(0, 0, 200))), HasSubstr("moved apart")) << part;
}

TEST(WindowShape, FaceThatLeavesTheOthersIsNoticedWithoutASymbol) {
  const Entities window = WindowOf(WITHOUT_SYMBOL);
  for (std::size_t face = 4; face < 17; ++face)
    EXPECT_THAT(RefusedShape(PartChanged(window, face, Move(0, 0, 200))), HasSubstr("moved apart")) << face;
}

TEST(WindowShape, BodyThatWasMirroredWithinItsFrameIsNoticed) {
  const Entities window = WindowOf();
  const Motion aboutItsMiddle = Move(-5000, 0, 0).Then(Mirror()).Then(Move(5000, 0, 0));
  Entities changed = window;
  for (std::size_t face = 0; face < 17; ++face)
    changed = PartChanged(changed, face, aboutItsMiddle);
  EXPECT_THAT(RefusedShape(changed), HasSubstr("moved apart"));
}

TEST(WindowShape, OpeningThatIsNotClosedIsNoticed) {
  const Entities window = WindowOf(OPENING_ONLY);
  for (std::size_t line = 0; line < 4; ++line)
    EXPECT_THAT(RefusedShape(PartChanged(window, line, Move(0, 0, 200))), HasSubstr("moved apart")) << line;
}

TEST(WindowShape, PartsMayLieAsFarApartAsOtherProgramsRound) {
  const Entities window = WindowOf();
  EXPECT_THAT(RefusedShape(PartChanged(window, 17, Move(0, 0, 0.5))), IsEmpty());
}

}  // namespace
}  // namespace teskarlt
