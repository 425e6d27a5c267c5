// PartOrderTest.cpp - windows whose parts come in another order than they were drawn in.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "teskarlt/drawing/WindowParts.h"
#include "tests/teskarlt/drawing/InsertedWindow.h"
#include "window/Choices.h"

namespace teskarlt {
namespace {

constexpr double TOLERANCE = 1;  // millimetres
constexpr std::mt19937::result_type SEEDS = 20;

// Every kind of window.
const Answers KINDS[] = {
    {},
    {{"skirtHeight", "0.05"}},
    {{"bodyAsFaces", "0"}},
    {{"bodyAsFaces", "0"}, {"skirtHeight", "0.05"}},
    {{"drawOpeningSymbol", "0"}},
    {{"drawOpeningSymbol", "0"}, {"skirtHeight", "0.05"}},
    {{"drawOpeningSymbol", "0"}, {"bodyAsFaces", "0"}},
    {{"openingCode", "BCDE"}},
    {{"openingCode", "ER"}, {"width", "2"}},
};

Entities Shuffled(Entities entities, std::mt19937::result_type seed) {
  std::mt19937 random(seed);
  std::shuffle(entities.begin(), entities.end(), random);
  return entities;
}

Entities Reversed(Entities entities) {
  std::reverse(entities.begin(), entities.end());
  return entities;
}

WindowParts PartsOf(const dxf::Document& drawing) {
  std::vector<const dxf::Entity*> entities;
  for (const dxf::Entity& entity : drawing.Entities())
    entities.push_back(&entity);
  return ReadParts(drawing, entities, IN_DRAWING_UNITS);
}

bool SameCorners(const std::vector<PartCorners>& a, const std::vector<PartCorners>& b) {
  return std::equal(
      a.begin(), a.end(), b.begin(), b.end(), [](const PartCorners& one, const PartCorners& other) {
        return std::equal(one.begin(), one.end(), other.begin(), [](const auto& p, const auto& q) {
          return p.x == q.x && p.y == q.y && p.z == q.z;
        });
      });
}

// The parts of the second drawing, in order, are those of the first one as they stand.
void ExpectOrderOf(const Entities& drawn, const Entities& shuffled, bool hasSymbol) {
  const dxf::Document first = DrawingOf(drawn);
  const dxf::Document second = DrawingOf(shuffled);
  const WindowParts expected = PartsOf(first);
  WindowParts found = PartsOf(second);
  ASSERT_TRUE(PutInOrder(hasSymbol, TOLERANCE, found));
  EXPECT_TRUE(SameCorners(expected.lines, found.lines));
  EXPECT_TRUE(SameCorners(expected.faces, found.faces));
}

TEST(PartOrder, IsFoundInEveryKindOfWindow) {
  for (const Answers& kind : KINDS) {
    const InsertedWindow window = Insert(kind);
    SCOPED_TRACE(testing::PrintToString(kind));
    for (std::mt19937::result_type seed = 0; seed < SEEDS; ++seed)
      ExpectOrderOf(window.entities, Shuffled(window.entities, seed), DrawsSymbol(window.record));
  }
}

TEST(PartOrder, IsFoundInTurnedAndMirroredWindows) {
  for (const Motion& motion : {Turn(30), Mirror(), Mirror().Then(Turn(200))}) {
    const Entities drawn = Changed(Insert({{"openingCode", "BE"}}).entities, motion);
    ExpectOrderOf(drawn, Reversed(drawn), true);
  }
}

TEST(PartOrder, IsFoundOnAFlatRoof) {
  const Entities drawn = Insert({{"heightReference", "0"}}, OnSlopeOf(0)).entities;
  ExpectOrderOf(drawn, Reversed(drawn), true);
}

TEST(PartOrder, IsNotFoundWhereAPartWasMovedAway) {
  const Entities drawn = PartChanged(Insert().entities, 0, Move(0, 0, 100));
  const dxf::Document drawing = DrawingOf(Reversed(drawn));
  WindowParts parts = PartsOf(drawing);
  EXPECT_FALSE(PutInOrder(true, TOLERANCE, parts));
}

TEST(PartOrder, WindowInAnyOrderHasItsShape) {
  const WindowShape drawn = ShapeFrom(Insert().entities);
  const WindowShape shape = ShapeFrom(Reversed(Insert().entities));
  EXPECT_TRUE(
      std::equal(drawn.outline.begin(), drawn.outline.end(), shape.outline.begin(),
                 [](const auto& a, const auto& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }));
  EXPECT_EQ(shape.frameDepth, drawn.frameDepth);
  EXPECT_EQ(shape.frameWidth, drawn.frameWidth);
}

TEST(PartOrder, WindowInAnyOrderCanBeEdited) {
  for (const Answers& kind : KINDS)
    EXPECT_EQ(ReadBack(Reversed(Insert(kind).entities)).obstacle, "");
}

// --- Copies, whose entities all carry the description of their model ---

// The window and copies of it, 20 m from one to the next, turned and mirrored.
Entities WithCopies(const Answers& kind, int count) {
  Entities all;
  for (int copy = 0; copy < count; ++copy) {
    const Motion turned = copy % 2 == 0 ? Turn(20 * copy) : Mirror();
    const Entities entities = Changed(Insert(kind).entities, turned.Then(Move(20000 * copy, 0, 0)));
    all.insert(all.end(), entities.begin(), entities.end());
  }
  return all;
}

bool AreAllEditable(const dxf::Document& drawing, const std::vector<DrawnWindow>& windows) {
  return std::all_of(windows.begin(), windows.end(),
                     [&](const DrawnWindow& window) { return ReadWindow(drawing, window).obstacle.empty(); });
}

TEST(PartOrder, CopiesInAnyOrderAreWindowsOfTheirOwn) {
  for (const Answers& kind : KINDS) {
    SCOPED_TRACE(testing::PrintToString(kind));
    const dxf::Document drawing = DrawingOf(Shuffled(WithCopies(kind, 5), 1));
    const std::vector<DrawnWindow> windows = FindWindows(drawing, MILLIMETRES);
    EXPECT_EQ(windows.size(), 5U);
    EXPECT_TRUE(AreAllEditable(drawing, windows));
  }
}

TEST(PartOrder, ReversedCopiesAreWindowsOfTheirOwn) {
  const dxf::Document drawing = DrawingOf(Reversed(WithCopies({}, 3)));
  const std::vector<DrawnWindow> windows = FindWindows(drawing, MILLIMETRES);
  EXPECT_EQ(windows.size(), 3U);
  EXPECT_TRUE(AreAllEditable(drawing, windows));
}

}  // namespace
}  // namespace teskarlt
