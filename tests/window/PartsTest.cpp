// PartsTest.cpp - a window has the entities that are counted for it, in their order.
#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RoundRecord.h"
#include "window/Choices.h"
#include "window/Parts.h"

namespace brevanta {
namespace {

using node_list::NodeList;

std::vector<NodeList> EntitiesOf(WindowParams params) {
  recording_host::Reset();
  CbvMakeWindow maker;
  maker.hostTable = recording_host::Table();
  EXPECT_EQ(maker.Make(&params, 1), MAKE_DONE);
  return recording_host::Entities();
}

std::size_t Count(const std::vector<NodeList>& entities, const std::string& type) {
  return static_cast<std::size_t>(
      std::count_if(entities.begin(), entities.end(),
                    [&](const NodeList& entity) { return node_list::TextOf(entity, 0) == type; }));
}

WindowParams WithSymbol(const char* code) {
  WindowParams params = round_record::OnSlope();
  params.drawOpeningSymbol = OPENING_SYMBOL;
  round_record::SetText(code, params.openingCode);
  return params;
}

TEST(Parts, EveryOpeningCodeHasItsLines) {
  for (const char* code : {"", "B", "CI", "D", "ER", "BCDE", "DD", "BOELI"})
    EXPECT_EQ(Count(EntitiesOf(WithSymbol(code)), "LINE"), LineCount(true, code)) << code;
}

TEST(Parts, WindowWithoutASymbolHasTheLinesOfTheOpening) {
  EXPECT_EQ(Count(EntitiesOf(round_record::OnSlope()), "LINE"), LineCount(false, "D"));
  EXPECT_EQ(LineCount(false, "D"), LINES_OF_OPENING);
}

TEST(Parts, BodyHasItsFacesWithAndWithoutASkirt) {
  WindowParams params = round_record::OnSlope();
  EXPECT_EQ(Count(EntitiesOf(params), "3DFACE"), FACES_WITHOUT_SKIRT);
  params.skirtHeight = 1;
  EXPECT_EQ(Count(EntitiesOf(params), "3DFACE"), FACES_WITH_SKIRT);
  params.bodyAsFaces = LINES_ONLY;
  EXPECT_EQ(Count(EntitiesOf(params), "3DFACE"), 0U);
}

TEST(Parts, OnlyTheseCountsOfFacesAreThoseOfAWindow) {
  for (const std::size_t faces : {0U, 17U, 21U})
    EXPECT_TRUE(IsFaceCount(faces)) << faces;
  for (const std::size_t faces : {1U, 4U, 16U, 18U, 34U})
    EXPECT_FALSE(IsFaceCount(faces)) << faces;
}

TEST(Parts, PaneIsTheLastFaceAndHasItsColour) {
  const std::vector<NodeList> entities = EntitiesOf(round_record::OnSlope());
  for (std::size_t i = 0; i < FACES_WITHOUT_SKIRT; ++i) {
    const bool isGlass = std::any_of(entities[i].begin(), entities[i].end(), [](const node_list::Node& node) {
      return node.code == 62 && std::get<std::int64_t>(node.value) == GLASS_COLOUR;
    });
    EXPECT_EQ(isGlass, i + 1 == FACES_WITHOUT_SKIRT) << i;
  }
}

}  // namespace
}  // namespace brevanta
