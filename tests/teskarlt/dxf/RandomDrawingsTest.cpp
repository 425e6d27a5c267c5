// RandomDrawingsTest.cpp - whatever a file holds, it is refused with a message or kept byte for byte.
#include <random>

#include "teskarlt/dxf/NewDrawing.h"
#include "tests/teskarlt/dxf/SmallDrawings.h"

namespace teskarlt::dxf {
namespace {

constexpr int ROUNDS = 3000;

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t limit) {
  return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
}

const char* const LINES[] = {"0",        "  0",      "2",      "5",        "67",      "70",       "100",
                             "105",      "999",      "1001",   "-3",       "SECTION", "ENDSEC",   "HEADER",
                             "TABLES",   "ENTITIES", "TABLE",  "ENDTAB",   "LAYER",   "EOF",      "LINE",
                             "POLYLINE", "VERTEX",   "SEQEND", "$ACADVER", "AC1015",  "9",        "$HANDSEED",
                             "FF",       "odd",      "",       " ",        "1",       "\x81\xFF", "99999999"};

std::string Soup(Random& random) {
  std::string soup = Below(random, 2) == 0 ? Tags("0|SECTION|2|ENTITIES") : Tags("0|SECTION");
  const std::size_t lines = Below(random, 60);
  for (std::size_t line = 0; line < lines; ++line) {
    soup += LINES[Below(random, std::size(LINES))];
    soup += Below(random, 4) == 0 ? "\r\n" : "\n";
  }
  return soup + (Below(random, 2) == 0 ? Tags("0|ENDSEC|0|EOF") : "");
}

// A good drawing with some bytes changed, cut out or cut off.
std::string Damaged(const std::string& good, Random& random) {
  std::string text = good;
  for (std::size_t change = 1 + Below(random, 4); change > 0 && !text.empty(); --change) {
    const std::size_t at = Below(random, text.size());
    switch (Below(random, 3)) {
      case 0:
        text[at] = static_cast<char>(Below(random, 256));
        break;
      case 1:
        text.erase(at, Below(random, 20));
        break;
      default:
        text.resize(at);
    }
  }
  return text;
}

void AddPoint(Document& drawing) {
  using namespace std::string_view_literals;
  const TypedTag groups[] = {{0, "POINT"sv},    {100, "AcDbEntity"sv},  {8, "Roof"sv},
                             {6, "DASHED"sv},   {100, "AcDbPoint"sv},   {10, Point{1, 2, 3}},
                             {1001, "TK_LT"sv}, {1070, std::int64_t{1}}};
  drawing.AddEntity(groups);
}

// Loads, compares, edits and loads the result again. Gives whether the text was a drawing.
bool TryDrawing(const std::string& text) {
  std::string edited;
  try {
    Document drawing = Parsed(text);
    EXPECT_EQ(drawing.Serialize(), text);
    for (const Entity& entity : drawing.Entities())
      drawing.RemoveEntity(entity);
    AddPoint(drawing);
    edited = drawing.Serialize();
  } catch (const Error& error) {
    EXPECT_STRNE(error.what(), "");
    return false;
  }
  EXPECT_EQ(Parsed(edited).Entities().size(), 1U) << text;
  return true;
}

TEST(RandomDrawings, TagSoup) {
  Random random(1);
  int good = 0;
  for (int round = 0; round < ROUNDS; ++round)
    good += TryDrawing(Soup(random)) ? 1 : 0;
  EXPECT_GT(good, 0);
}

TEST(RandomDrawings, DamagedDrawings) {
  Random random(2);
  const std::string r12 = NewDrawing({VERSION_R12, UNITS_METRES, {"A"}, {"APP"}});
  const std::string r2000 = NewDrawing({VERSION_R2000, UNITS_METRES, {"A"}, {"APP"}});
  int good = 0;
  for (int round = 0; round < ROUNDS; ++round)
    good += TryDrawing(Damaged(round % 2 == 0 ? r12 : r2000, random)) ? 1 : 0;
  EXPECT_GT(good, ROUNDS / 20);
  EXPECT_LT(good, ROUNDS);
}

TEST(RandomDrawings, EveryCutOfADrawingIsNoticed) {
  const std::string text = NewDrawing({VERSION_R2000, UNITS_METRES, {}, {}});
  for (std::size_t length = 0; length + 1 < text.size(); ++length)
    ASSERT_NE(LoadError(text.substr(0, length)), "") << length;
}

}  // namespace
}  // namespace teskarlt::dxf
