// WindowsInAnyUnitTest.cpp - the same roof in every unit gets the same window.
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "geometry/Vectors.h"
#include "teskarlt/drawing/WindowParts.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/Units.h"
#include "teskarlt/windows/EraseWindows.h"
#include "teskarlt/windows/RefitWindows.h"
#include "teskarlt/windows/RenumberCopies.h"
#include "teskarlt/windows/WindowEditor.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using geometry::Vec3;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double SAME = 1e-6;  // millimetres
const std::vector<std::string> NAMES = {"mm",  "cm",  "dm",       "m",     "dam",   "hm",   "km",
                                        "um",  "nm",  "angstrom", "in",    "ft",    "yd",   "mi",
                                        "mil", "uin", "us-in",    "us-ft", "us-yd", "us-mi"};

double MillimetresPer(const DrawingUnit& unit) {
  return dxf::MillimetresPer(unit.insUnits);
}

std::vector<Vec3> ScaledBy(double factor, std::vector<Vec3> corners) {
  for (Vec3& corner : corners)
    corner = {corner.x * factor, corner.y * factor, corner.z * factor};
  return corners;
}

WindowSelection NumberOne() {
  return {.numbers = {{1, 1}}};
}

// The roof of House, in another unit.
dxf::Document HouseIn(const DrawingUnit& unit) {
  return DrawingWithFaces({ScaledBy(1.0 / MillimetresPer(unit), RoofAt(0))}, unit.insUnits);
}

WindowOrder OrderIn(const DrawingUnit& unit, double xMillimetres, double yMillimetres) {
  WindowOrder order;
  order.at = PlanPoint{xMillimetres / MillimetresPer(unit), yMillimetres / MillimetresPer(unit), "point"};
  return order;
}

// The points of the entities, in millimetres.
std::vector<Vec3> PointsOf(const dxf::Document& drawing, const DrawingUnit& unit) {
  std::vector<Vec3> points;
  for (const dxf::Entity& entity : drawing.Entities()) {
    const dxf::Entity* const part = &entity;
    const WindowParts parts = ReadParts(drawing, {&part, 1}, {1, MillimetresPer(unit)});
    for (const auto* corners : {&parts.faces, &parts.lines})
      if (!corners->empty()) points.insert(points.end(), corners->front().begin(), corners->front().end());
  }
  return points;
}

class WindowsInAnyUnit : public testing::TestWithParam<std::string> {
 protected:
  WindowsInAnyUnit() {
    WindowInserter(module, drawing, unit).Insert(OrderIn(unit, 4000, 2000));
    drawing = Reloaded(drawing);
  }

  DrawnWindow Only() const {
    const std::vector<DrawnWindow> windows = FindWindows(drawing, unit.working);
    EXPECT_EQ(windows.size(), 1U);
    return windows.at(0);
  }

  const DrawingUnit& unit = UnitByName(GetParam());
  WindowModule module;
  dxf::Document drawing = HouseIn(unit);
};

TEST_P(WindowsInAnyUnit, EntitiesLieWhereThoseInMillimetresDo) {
  const std::vector<Vec3> expected = PointsOf(HouseWithWindow(), Millimetres());
  const std::vector<Vec3> points = PointsOf(drawing, unit);
  ASSERT_EQ(points.size(), expected.size());
  for (std::size_t i = 0; i < points.size(); ++i)
    EXPECT_LE(Distance(points[i], expected[i]), SAME) << i;
}

TEST_P(WindowsInAnyUnit, DescriptionIsReadBackInMetres) {
  const DrawnWindow window = Only();
  EXPECT_NEAR(window.params.width, 0.94, 1e-12);
  EXPECT_NEAR(window.params.frameDepth, 0.08, 1e-12);
  EXPECT_NEAR(window.params.lowerEdgeHeight, 2, 1e-9);  // at 45 degrees as high as far from the eaves
  const WindowReading reading = ReadWindow(drawing, window);
  EXPECT_THAT(reading.notes, IsEmpty());
  EXPECT_EQ(reading.obstacle, "");
}

TEST_P(WindowsInAnyUnit, EditOfNothingLeavesTheBytes) {
  const std::string before = drawing.Serialize();
  EXPECT_FALSE(WindowEditor(module, drawing, unit, NumberOne(), false).Edit({}).front().isRewritten);
  EXPECT_EQ(drawing.Serialize(), before);
}

TEST_P(WindowsInAnyUnit, EditChangesWhatItSaysAlone) {
  WindowOrder order;
  order.settings = {{"width", "1.2"}};
  const EditedWindow edited = WindowEditor(module, drawing, unit, NumberOne(), false).Edit(order).front();
  ASSERT_EQ(edited.changes.size(), 1U);
  EXPECT_EQ(edited.changes[0]->name, "width");
  drawing = Reloaded(drawing);
  EXPECT_NEAR(Only().params.width, 1.2, 1e-12);
}

TEST_P(WindowsInAnyUnit, EraseLeavesTheEntitiesOfBefore) {
  EraseWindows(module, drawing, NumberOne(), IN_DRAWING_UNITS, false);
  EXPECT_EQ(Reloaded(drawing).Entities().size(), 1U);
}

TEST_P(WindowsInAnyUnit, RefitPutsTheWindowOntoTheRisenRoof) {
  drawing.RemoveEntity(drawing.Entities().front());
  const dxf::Document risen =
      DrawingWithFaces({ScaledBy(1.0 / MillimetresPer(unit), RoofAt(500))}, unit.insUnits);
  std::string text = drawing.Serialize();
  const std::string roof(risen.Entities().front().text);
  text.insert(text.find("ENTITIES\n") + std::string("ENTITIES\n").size(), roof);
  drawing = dxf::Document::FromText("house.dxf", std::move(text));
  const RefitReport report = RefitWindows(module, drawing, unit, {});
  ASSERT_EQ(report.refitted.size(), 1U);
  EXPECT_NEAR(Rise(report.refitted[0]), 0.5, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Units, WindowsInAnyUnit, testing::ValuesIn(NAMES), [](const auto& unit) {
  std::string name = unit.param;
  name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
  return name;
});

TEST(WindowsInInches, PointsOfSettingsAreInInches) {
  const DrawingUnit& inches = UnitByName("in");
  const WindowModule module;
  dxf::Document drawing = HouseIn(inches);
  WindowOrder order = OrderIn(inches, 2540, 2540);
  order.settings = {{"roofPlanePoints", "0,0,0;100,0,0;0,100,100"}, {"storedPoint", "1,2,3"}};
  const PlacedWindow window = WindowInserter(module, drawing, inches).Insert(order);
  EXPECT_NEAR(window.record.roofPlanePoints[2].z, 2540, SAME);
  EXPECT_NEAR(window.record.storedPoint.y, 50.8, SAME);
}

TEST(WindowsInInches, CopiesAreTold) {
  const DrawingUnit& inches = UnitByName("in");
  const WindowModule module;
  dxf::Document drawing = HouseIn(inches);
  WindowInserter(module, drawing, inches).Insert(OrderIn(inches, 4000, 2000));
  const std::string text = drawing.Serialize();
  const std::size_t begin = text.find("ENTITIES\n") + std::string("ENTITIES\n").size();
  std::string twice = text;
  const std::size_t end = text.find("  0\nENDSEC", begin);
  drawing = dxf::Document::FromText("house.dxf", twice.insert(end, text.substr(begin, end - begin)));
  EXPECT_EQ(RenumberCopies(drawing).size(), 1U);
}

TEST(WindowsInInches, PointBesideTheRoofIsToldInInches) {
  const DrawingUnit& inches = UnitByName("in");
  const WindowModule module;
  dxf::Document drawing =
      DrawingWithFaces({{{0, 0, 0}, {400, 0, 0}, {400, 200, 100}, {0, 200, 100}}}, inches.insUnits);
  const std::string refusal =
      RefusalOf([&] { WindowInserter(module, drawing, inches).Insert(OrderAt(500, 100)); });
  EXPECT_THAT(refusal, HasSubstr("the roofs lie within x 0 to 400, y 0 to 200"));
}

}  // namespace
}  // namespace teskarlt
