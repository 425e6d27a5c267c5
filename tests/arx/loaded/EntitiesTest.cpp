// EntitiesTest.cpp - every value of every entity that the built module hands to its host.
#include <algorithm>
#include <map>
#include <ostream>

#include "tests/arx/loaded/StandAloneHost.h"
#include "tests/support/RoundRecord.h"

namespace {

using namespace window_of_three;  // NOLINT(google-build-using-namespace): its numbers are the tests' subject

using OutsideEntities = StandAloneHost;

// Up the slope and down again around an outline.
void AppendAround(const std::string& layer, const Corners& corners, std::vector<NodeList>& lines) {
  for (std::size_t k = 0; k < 4; ++k)
    lines.push_back(Line(layer, corners[k], corners[(k + 1) % 4]));
}

std::vector<NodeList> LinesFrom(std::size_t first) {
  const auto lines = recording_host::Lines();
  return {lines.begin() + static_cast<std::ptrdiff_t>(std::min(first, lines.size())), lines.end()};
}

TEST_F(OutsideEntities, BodyHasSeventeenFaces) {
  Insert();
  EXPECT_EQ(recording_host::Faces().size(), 17U);
  EXPECT_EQ(FirstDifference(Body(), recording_host::Faces()), "");
}

TEST_F(OutsideEntities, BodyWithASkirtHasTwentyOneFaces) {
  record().skirtHeight = 1;
  Insert();
  EXPECT_EQ(recording_host::Faces().size(), 21U);
  EXPECT_EQ(FirstDifference(BodyWithSkirt(), recording_host::Faces()), "");
}

TEST_F(OutsideEntities, FaceHasFortyGroupsAndOneMoreWithAColour) {
  Insert();
  EXPECT_EQ(recording_host::Faces()[0].size(), 40U);
  EXPECT_EQ(recording_host::Faces()[16].size(), 41U);
  EXPECT_EQ(recording_host::Lines()[0].size(), 37U);
}

TEST_F(OutsideEntities, WithoutFacesOnlyLinesAreMade) {
  record().bodyAsFaces = 0;
  Insert();
  EXPECT_EQ(recording_host::Faces().size(), 0U);
  EXPECT_EQ(recording_host::Lines().size(), 7U);
}

TEST_F(OutsideEntities, WithoutTheSymbolTheOpeningIsOutlinedAndCrossed) {
  Insert();
  std::vector<NodeList> expected;
  AppendAround(OPENING_LAYER, OUTER, expected);  // no layer: the opening is the outer outline
  expected.push_back(Line(OPENING_LAYER, OUTER[1], OUTER[2]));
  expected.push_back(Line(OPENING_LAYER, OUTER[1], OUTER[3]));
  expected.push_back(Line(OPENING_LAYER, OUTER[2], OUTER[0]));
  EXPECT_EQ(FirstDifference(expected, recording_host::Lines()), "");
}

// The record's switch goes into the extended data of every entity.
void SetSwitch(std::int64_t value, std::vector<NodeList>& entities) {
  for (NodeList& entity : entities)
    entity[entity.size() - 31 + 12] = node_list::Integer(1070, value);
}

void SetCode(const std::string& code, std::vector<NodeList>& entities) {
  for (NodeList& entity : entities)
    entity[entity.size() - 31 + 11] = node_list::Text(1000, code);
}

TEST_F(OutsideEntities, WithTheSymbolTheOuterOutlineFollowsIt) {
  for (const std::int32_t symbol : {-1, 1, 2}) {
    recording_host::Reset();
    record().drawOpeningSymbol = symbol;
    Insert();
    std::vector<NodeList> expected;
    AppendAround(OUTLINE_LAYER, OUTER, expected);
    SetSwitch(symbol, expected);
    EXPECT_EQ(FirstDifference(expected, LinesFrom(10)), "") << symbol;
  }
}

TEST_F(OutsideEntities, SymbolStartsWithFrameAndSash) {
  record().drawOpeningSymbol = 1;
  round_record::SetText("", record().openingCode);
  Insert();
  std::vector<NodeList> expected = {
      Line(SYMBOL_LAYER, OUTER[1], OUTER[0]), Line(SYMBOL_LAYER, OUTER[0], OUTER[3]),
      Line(SYMBOL_LAYER, OUTER[3], OUTER[2]), Line(SYMBOL_LAYER, OUTER[2], OUTER[1])};
  AppendAround(SYMBOL_LAYER, INNER, expected);
  AppendAround(OUTLINE_LAYER, OUTER, expected);
  SetSwitch(1, expected);
  SetCode("", expected);
  EXPECT_EQ(FirstDifference(expected, recording_host::Lines()), "");
}

TEST_F(OutsideEntities, SkirtLiftsTheSymbolButNotThePlanOutline) {
  record().drawOpeningSymbol = 1;
  record().skirtHeight = 1;
  Insert();
  std::vector<NodeList> symbol = {Line(SYMBOL_LAYER, SKIRT_OUTER[1], SKIRT_OUTER[0])};
  std::vector<NodeList> outline = {Line(OUTLINE_LAYER, OUTER[0], OUTER[1])};
  SetSwitch(1, symbol);
  SetSwitch(1, outline);
  EXPECT_EQ(FirstDifference(symbol, {recording_host::Lines()[0]}), "");
  EXPECT_EQ(FirstDifference(outline, {recording_host::Lines()[10]}), "");
}

// Where the marks run: 0 to 3 are the sash's corners, two digits the middle of the side between them.
const std::map<std::string, Point>& Places() {
  static const std::map<std::string, Point> places = {
      {"0", INNER[0]},          {"1", INNER[1]},           {"2", INNER[2]},          {"3", INNER[3]},
      {"01", {1080, 1990, 60}}, {"12", {1152, 1950, 114}}, {"23", {1080, 1910, 60}}, {"30", {1008, 1950, 6}}};
  return places;
}

struct Mark {
  const char* from;
  const char* to;
  bool dashed;
};

struct Coded {
  const char* code;
  std::vector<Mark> marks;
};

void PrintTo(const Coded& p, std::ostream* out) {
  *out << "code \"" << p.code << '"';
}

const std::vector<Mark> B = {{"0", "12", false}, {"12", "3", false}};
const std::vector<Mark> B_DASHED = {{"0", "12", true}, {"12", "3", true}};
const std::vector<Mark> C = {{"1", "30", false}, {"30", "2", false}};
const std::vector<Mark> C_DASHED = {{"1", "30", true}, {"30", "2", true}};
const std::vector<Mark> D = {
    {"01", "12", true}, {"12", "23", true}, {"23", "30", false}, {"30", "01", false}};
const std::vector<Mark> E_LEFT = {{"0", "23", false}, {"23", "1", false}};
const std::vector<Mark> E_LEFT_DASHED = {{"0", "23", true}, {"23", "1", true}};
const std::vector<Mark> E_RIGHT = {{"2", "01", false}, {"01", "3", false}};
const std::vector<Mark> E_RIGHT_DASHED = {{"2", "01", true}, {"01", "3", true}};

const std::vector<Coded> CODES = {
    {"", {}},
    {"X", {}},
    {"I", {}},
    {"B", B},
    {"BI", B_DASHED},
    {"BO", B},
    {"C", C},
    {"CI", C_DASHED},
    {"CO", C},
    {"D", D},
    {"DI", D},
    {"E", E_LEFT},
    {"EL", E_LEFT},
    {"ER", E_RIGHT},
    {"EI", E_LEFT_DASHED},
    {"EIL", E_LEFT_DASHED},
    {"EIR", E_RIGHT_DASHED},
    {"EO", E_LEFT},
    {"EOL", E_LEFT},
    {"EOR", E_RIGHT},
    {"ERI", E_RIGHT_DASHED},
    {"ERO", E_RIGHT},
    {"ELI", E_LEFT_DASHED},
    {"ELO", E_LEFT},
    {"BC", {B[0], B[1], C[0], C[1]}},
    {"CIBO", {B[0], B[1], C_DASHED[0], C_DASHED[1]}},
    {"EIRBODCI",
     {B[0], B[1], C_DASHED[0], C_DASHED[1], D[0], D[1], D[2], D[3], E_RIGHT_DASHED[0], E_RIGHT_DASHED[1]}},
};

class OutsideSymbols : public StandAloneHost, public testing::WithParamInterface<Coded> {};

TEST_P(OutsideSymbols, HaveTheMarksOfTheirCode) {
  record().drawOpeningSymbol = 1;
  round_record::SetText(GetParam().code, record().openingCode);
  Insert();
  std::vector<NodeList> expected;
  for (const Mark& mark : GetParam().marks) {
    const Point& from = Places().at(mark.from);
    const Point& to = Places().at(mark.to);
    expected.push_back(mark.dashed ? LineOfType(SYMBOL_LAYER, "DASHED", from, to)
                                   : Line(SYMBOL_LAYER, from, to));
  }
  AppendAround(OUTLINE_LAYER, OUTER, expected);
  SetSwitch(1, expected);
  SetCode(GetParam().code, expected);
  EXPECT_EQ(FirstDifference(expected, LinesFrom(8)), "") << GetParam().code;
}

INSTANTIATE_TEST_SUITE_P(All, OutsideSymbols, testing::ValuesIn(CODES));

}  // namespace
