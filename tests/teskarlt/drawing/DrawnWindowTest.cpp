// DrawnWindowTest.cpp - windows read back from the extended data of their entities.
#include <algorithm>

#include <gtest/gtest.h>

#include "teskarlt/drawing/DrawnWindow.h"
#include "tests/teskarlt/drawing/Drawings.h"
#include "tests/teskarlt/drawing/InsertedWindow.h"

namespace teskarlt {
namespace {

std::string Point(double x, double y, double z) {
  return "1011\n" + std::to_string(x) + "\n1021\n" + std::to_string(y) + "\n1031\n" + std::to_string(z) +
         "\n";
}

std::string Element(int number) {
  return "1001\nTK_LT_ELEM\n1000\nTKBRVA\n1071\n" + std::to_string(number) + "\n";
}

// The description of a window in millimetres, 1.4 x `width` / 1000 m.
std::string Description(const std::string& width = "940.0") {
  return "1001\nTK_LT_DESC\n1070\n1\n1040\n1400.0\n1041\n" + width +
         "\n1042\n100.0\n1000\nMaker\n1000\nThird\n1000\nBI\n1070\n-1\n1040\n80.0\n1040\n3900."
         "0\n1070\n1\n1070\n2\n"
         "1070\n1\n" +
         Point(4000, 2000, 3900) + Point(1, 2, 3) + "1040\n1.5\n1040\n0.25\n1040\n100.0\n1040\n35.0\n" +
         Point(1, 1, 1) + Point(2, 2, 2) + Point(3, 3, 3) + Point(4, 4, 4) + Point(5, 5, 5) + Point(6, 6, 6) +
         "1000\nSecond\n";
}

std::string Line(const std::string& data) {
  return "0\nLINE\n8\n0\n10\n0.0\n20\n0.0\n11\n1.0\n21\n0.0\n" + data;
}
std::string Face(const std::string& data) {
  return "0\n3DFACE\n8\n0\n10\n0.0\n20\n0.0\n30\n0.0\n" + data;
}

TEST(FindWindows, EveryItemOfTheDescriptionComesBack) {
  const dxf::Document drawing = Drawing("", Line(Element(7) + Description()));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  const DrawnWindow& window = windows[0];
  EXPECT_EQ(window.number, 7);
  EXPECT_TRUE(window.isComplete);
  EXPECT_EQ(window.params.length, 1.4);
  EXPECT_EQ(window.params.width, 0.94);
  EXPECT_EQ(window.params.frameWidth, 0.1);
  EXPECT_EQ(window.params.frameDepth, 0.08);
  EXPECT_EQ(window.params.lowerEdgeHeight, 3.9);
  EXPECT_EQ(window.params.layerThickness, 0.1);
  EXPECT_EQ(window.params.pitch, 35);
  EXPECT_EQ(window.params.rotation, 1.5);
  EXPECT_EQ(window.params.rotation2, 0.25);
}

TEST(FindWindows, TextsAndChoicesComeBackInTheirPlaces) {
  const dxf::Document drawing = Drawing("", Line(Element(7) + Description()));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_EQ(windows[0].text1, "Maker");
  EXPECT_EQ(windows[0].text2, "Second");
  EXPECT_EQ(windows[0].text3, "Third");
  EXPECT_EQ(windows[0].openingCode, "BI");
  EXPECT_EQ(windows[0].params.drawOpeningSymbol, -1);
  EXPECT_EQ(windows[0].params.heightReference, 1);
  EXPECT_EQ(windows[0].params.widthAnchor, 2);
  EXPECT_EQ(windows[0].params.roofBuildUp, 1);
}

TEST(FindWindows, PlanePointsComeBackInPairs) {
  const dxf::Document drawing = Drawing("", Line(Element(7) + Description()));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_EQ(windows[0].params.storedPoint.y, 2000);
  EXPECT_EQ(windows[0].params.insertionPoint.z, 3);
  EXPECT_EQ(windows[0].params.secondPlanePoints[1].x, 3);
  EXPECT_EQ(windows[0].params.roofPlanePoints[2].x, 6);
}

TEST(FindWindows, EntitiesWithTheSameDataAreOneWindow) {
  const dxf::Document drawing =
      Drawing("", Face(Element(1) + Description()) + Line(Element(2) + Description()) +
                      Line(Element(1) + Description()) + Line(""));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 2U);
  EXPECT_EQ(windows[0].number, 1);
  EXPECT_EQ(windows[0].entities.size(), 2U);
  EXPECT_EQ(windows[0].faces, 1U);
  EXPECT_EQ(windows[1].number, 2);
  EXPECT_EQ(NumbersOf(drawing, windows).Free(), 3);
}

TEST(FindWindows, SameNumberWithAnotherDescriptionIsAnotherWindow) {
  const dxf::Document drawing =
      Drawing("", Line(Element(1) + Description()) + Line(Element(1) + Description("1140.0")));
  EXPECT_EQ(FindWindows(drawing, MILLIMETRES).size(), 2U);
}

TEST(FindWindows, DescriptionThatIsCutShortIsNotComplete) {
  const dxf::Document drawing = Drawing("", Line(Element(3) + "1001\nTK_LT_DESC\n1070\n1\n1040\n1400.0\n"));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_EQ(windows[0].number, 3);
  EXPECT_FALSE(windows[0].isComplete);
}

TEST(FindWindows, ItemThatIsNoNumberMakesTheDescriptionIncomplete) {
  const dxf::Document drawing = Drawing("", Line(Element(3) + Description("nan")));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_EQ(windows[0].number, 3);
  EXPECT_FALSE(windows[0].isComplete);
}

TEST(FindWindows, NumberOutOfRangeIsNone) {
  const std::string element = "1001\nTK_LT_ELEM\n1000\nTKBRVA\n1071\n99999999999\n";
  const dxf::Document drawing = Drawing("", Line(element + Description()));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_EQ(windows[0].number, 0);
  EXPECT_FALSE(windows[0].isComplete);
}

TEST(FindWindows, ForeignDataUnderOtherNamesIsNoWindow) {
  const dxf::Document drawing = Drawing("", Line("1001\nOTHER\n1000\nTKBRVA\n1071\n5\n"));
  EXPECT_TRUE(FindWindows(drawing, MILLIMETRES).empty());
}

TEST(FindWindows, ForeignDataBesideOursDoesNotMatter) {
  const dxf::Document drawing =
      Drawing("", Line("1001\nOTHER\n1040\n9.0\n" + Element(1) + Description() + "1001\nLAST\n1000\nx\n"));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_TRUE(windows[0].isComplete);
  EXPECT_EQ(windows[0].params.length, 1.4);
}

TEST(FindWindows, MarkIsThatOfAnyEntityAndTellsNoWindowsApart) {
  const std::string ours = Element(7) + Description();
  const dxf::Document drawing = Drawing("", Line(ours) + Line(ours + "1001\nTK_LT_MARK\n1000\nW07\n") +
                                                Line(ours) + Line(Element(8) + Description()));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 2U);
  EXPECT_EQ(windows[0].mark, "W07");
  EXPECT_EQ(windows[0].entities.size(), 3U);
  EXPECT_EQ(windows[1].mark, "");
}

// --- Copies that other programs made ---

Entities Joined(Entities first, const Entities& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST(FindWindows, ForeignDataOfOneEntityLeavesItWithItsWindow) {
  const std::string ours = Element(7) + Description();
  const dxf::Document drawing =
      Drawing("", Line(ours) + Line(ours + "1001\nOTHER\n1070\n5\n") + Line("1001\nOTHER\n1070\n5\n" + ours));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_EQ(windows[0].entities.size(), 3U);
}

TEST(FindWindows, CopiesBehindTheirModelAreWindowsOfTheirOwn) {
  const Entities model = Insert().entities;  // 17 faces, 16 lines
  const dxf::Document drawing =
      DrawingOf(Joined(Joined(model, Changed(model, Move(2000, 0, 0))), Changed(model, Move(4000, 0, 0))));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 3U);
  for (std::size_t i = 0; i < windows.size(); ++i) {
    EXPECT_EQ(windows[i].faces, 17U);
    EXPECT_EQ(windows[i].entities.size(), 33U);
    EXPECT_NEAR(ShapeOf(drawing, windows[i]).outline[0].x, 4500 + 2000 * static_cast<double>(i), 1e-6);
  }
}

TEST(FindWindows, CopiesOfWindowsWithoutFacesAreTold) {
  const Entities model = Insert({{"bodyAsFaces", "0"}, {"drawOpeningSymbol", "0"}}).entities;
  const dxf::Document drawing = DrawingOf(Joined(model, Changed(model, Move(2000, 0, 0))));
  EXPECT_EQ(FindWindows(drawing, MILLIMETRES).size(), 2U);
}

TEST(FindWindows, CopyInAnotherOrderIsAWindowOfItsOwn) {
  const Entities model = Insert().entities;
  Entities copy = Changed(model, Move(2000, 0, 0));
  std::reverse(copy.begin(), copy.end());
  const dxf::Document drawing = DrawingOf(Joined(model, copy));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 2U);
  EXPECT_EQ(windows[1].faces, 17U);
  EXPECT_NEAR(ShapeOf(drawing, windows[1]).outline[0].x, 6500, 1e-6);
}

TEST(FindWindows, CopyInAnotherOrderInTheSamePlaceStaysWithItsModel) {
  const Entities model = Insert().entities;
  Entities copy = model;
  std::reverse(copy.begin(), copy.end());
  const dxf::Document drawing = DrawingOf(Joined(model, copy));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_TRUE(HasMoreThanOneWindow(windows[0]));
  EXPECT_EQ(EntityMismatch(windows[0]),
            "it has 34 faces and 32 lines, and should have 0, 17 or 21 faces and 16 lines");
}

TEST(FindWindows, CopyWithALineMoreThanItsModelStaysWithIt) {
  const Entities model = Insert().entities;
  const dxf::Document drawing = DrawingOf(Joined(Joined(model, model), {model.back()}));
  EXPECT_EQ(FindWindows(drawing, MILLIMETRES).size(), 1U);
}

TEST(FindWindows, CopiesThatLackFacesAsTheirModelDoesStayWithIt) {
  const Entities damaged = Without(Insert().entities, 0, 5);
  const dxf::Document drawing = DrawingOf(Joined(damaged, damaged));
  EXPECT_EQ(FindWindows(drawing, MILLIMETRES).size(), 1U);
}

TEST(FindWindows, PartOfACopyStaysWithItsModel) {
  const Entities model = Insert().entities;
  const dxf::Document drawing = DrawingOf(Joined(model, Without(model, 32)));
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_TRUE(HasMoreThanOneWindow(windows[0]));
}

TEST(FindWindows, WindowsComeInTheOrderOfTheirFirstEntities) {
  const Entities first = Insert({{"markerValue", "2"}}).entities;
  const Entities second = Insert({{"markerValue", "1"}}).entities;
  // The first window's copy lies behind the second window.
  const dxf::Document drawing = DrawingOf(Joined(Joined(first, second), Changed(first, Move(2000, 0, 0))));
  std::vector<std::int32_t> numbers;
  for (const DrawnWindow& window : FindWindows(drawing, MILLIMETRES))
    numbers.push_back(window.number);
  EXPECT_EQ(numbers, (std::vector<std::int32_t>{2, 1, 2}));
}

// --- Counts of entities ---

TEST(EntityMismatch, EveryWindowOfTheModuleIsWhole) {
  for (const char* code : {"", "B", "C", "D", "E", "BCDE", "EIREOL"}) {
    for (const char* symbol : {"0", "1"}) {
      const dxf::Document drawing =
          DrawingOf(Insert({{"openingCode", code}, {"drawOpeningSymbol", symbol}}).entities);
      EXPECT_EQ(EntityMismatch(FindWindows(drawing, MILLIMETRES).at(0)), "") << code << symbol;
    }
  }
}

TEST(EntityMismatch, SkirtAndMissingFacesAreWhole) {
  for (const Answers& answers : {Answers{{"skirtHeight", "0.1"}}, Answers{{"bodyAsFaces", "0"}}}) {
    const dxf::Document drawing = DrawingOf(Insert(answers).entities);
    EXPECT_EQ(EntityMismatch(FindWindows(drawing, MILLIMETRES).at(0)), "");
  }
}

TEST(HasMoreThanOneWindow, OneWindowHasNot) {
  const dxf::Document whole = DrawingOf(Insert({{"skirtHeight", "0.1"}}).entities);
  EXPECT_FALSE(HasMoreThanOneWindow(FindWindows(whole, MILLIMETRES).at(0)));
}

// --- Single entities ---

TEST(NumberTagOf, IsWhereTheNumberStands) {
  const dxf::Document drawing = Drawing("", Line(Element(70000) + Description()) + Line(""));
  EXPECT_EQ(NumberTagOf(drawing, drawing.Entities()[0]).value().value, "70000");
  EXPECT_FALSE(NumberTagOf(drawing, drawing.Entities()[1]).has_value());
}

TEST(NumberTagOf, NumberBeforeTheMarkIsNotTheWindows) {
  const dxf::Document drawing = Drawing("", Line("1001\nTK_LT_ELEM\n1071\n5\n1000\nTKBRVA\n"));
  EXPECT_FALSE(NumberTagOf(drawing, drawing.Entities()[0]).has_value());
}

TEST(IsWindowEntity, OnlyTheMarkOfTheElementCounts) {
  const dxf::Document drawing = Drawing(
      "", Line(Element(1)) + Line(Description()) + Line("1001\nTK_LT_DESC\n1000\nTKBRVA\n") + Line(""));
  std::vector<bool> are;
  for (const dxf::Entity& entity : drawing.Entities())
    are.push_back(IsWindowEntity(drawing, entity));
  EXPECT_EQ(are, (std::vector<bool>{true, false, false, false}));
}

TEST(FindWindows, OtherEntitiesWithAWindowsDataAreNoParts) {
  const std::string text = "0\nTEXT\n8\n0\n10\n0.0\n20\n0.0\n40\n1.0\n1\nnote\n" + Element(1) + Description();
  const dxf::Document drawing = Drawing("", Line(Element(1) + Description()) + text);
  const auto windows = FindWindows(drawing, MILLIMETRES);
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_EQ(windows[0].entities.size(), 1U);
}

}  // namespace
}  // namespace teskarlt
