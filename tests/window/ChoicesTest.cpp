// ChoicesTest.cpp - what follows from the record's choices.
#include <gtest/gtest.h>

#include "window/Choices.h"

namespace brevanta {
namespace {

WindowParams WithReveals(std::int32_t heightReference) {
  WindowParams params{};
  params.heightReference = heightReference;
  return params;
}

TEST(Choices, LowerRevealIsSquareOrPlumb) {
  for (const std::int32_t square : {REVEALS_SQUARE, REVEALS_SQUARE_AND_LEVEL}) {
    EXPECT_TRUE(HasSquareLowerReveal(WithReveals(square)));
    EXPECT_FALSE(HasPlumbLowerReveal(WithReveals(square)));
  }
  for (const std::int32_t plumb : {REVEALS_PLUMB_AND_LEVEL, REVEALS_PLUMB_AND_SQUARE}) {
    EXPECT_TRUE(HasPlumbLowerReveal(WithReveals(plumb)));
    EXPECT_FALSE(HasSquareLowerReveal(WithReveals(plumb)));
  }
}

TEST(Choices, UpperRevealIsSquareOrLevel) {
  for (const std::int32_t square : {REVEALS_SQUARE, REVEALS_PLUMB_AND_SQUARE}) {
    EXPECT_TRUE(HasSquareUpperReveal(WithReveals(square)));
    EXPECT_FALSE(HasLevelUpperReveal(WithReveals(square)));
  }
  for (const std::int32_t level : {REVEALS_PLUMB_AND_LEVEL, REVEALS_SQUARE_AND_LEVEL}) {
    EXPECT_TRUE(HasLevelUpperReveal(WithReveals(level)));
    EXPECT_FALSE(HasSquareUpperReveal(WithReveals(level)));
  }
}

TEST(Choices, AnotherHeightReferenceHasNoReveals) {
  const WindowParams params = WithReveals(4);
  EXPECT_FALSE(HasSquareLowerReveal(params) || HasPlumbLowerReveal(params));
  EXPECT_FALSE(HasSquareUpperReveal(params) || HasLevelUpperReveal(params));
}

TEST(Choices, AnyOtherAnchorCentresTheWidth) {
  WindowParams params{};
  params.widthAnchor = ANCHOR_START;
  EXPECT_EQ(HalvesBeforeAnchor(params), 0);
  params.widthAnchor = ANCHOR_END;
  EXPECT_EQ(HalvesBeforeAnchor(params), 2);
  for (const std::int32_t centred : {ANCHOR_CENTRE, 3, -1}) {
    params.widthAnchor = centred;
    EXPECT_EQ(HalvesBeforeAnchor(params), 1);
  }
}

TEST(Choices, AnyNumberButZeroDrawsTheSymbol) {
  WindowParams params{};
  EXPECT_FALSE(DrawsSymbol(params));
  for (const std::int32_t symbol : {OPENING_SYMBOL, 1, 7}) {
    params.drawOpeningSymbol = symbol;
    EXPECT_TRUE(DrawsSymbol(params));
  }
}

}  // namespace
}  // namespace brevanta
