// ReadScheduleTest.cpp - the roof windows of a drawing as a schedule.
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/dxf/tags/Units.h"
#include "teskarlt/windows/ReadSchedule.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using schedule::Schedule;
using schedule::ScheduleRow;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double ROUNDING = 1e-9;
const double HALF_ROOT = std::sqrt(0.5);  // rise and run of a length along a slope of 45 degrees

Schedule Read(const dxf::Document& drawing) {
  return ReadSchedule(drawing, Millimetres(), 1.0);
}

// House with a window as ordered, whose lower edge stands at (4, 2, 2) m.
Schedule ScheduleWith(const std::vector<FieldSetting>& settings) {
  const WindowModule module;
  dxf::Document drawing = House();
  WindowOrder order = OrderAt(4000, 2000);
  order.settings = settings;
  WindowInserter(module, drawing, Millimetres()).Insert(order);
  return Read(Reloaded(drawing));
}

TEST(ReadSchedule, RowTellsWhatIsToBeOrdered) {
  const Schedule schedule = ScheduleWith({{"text1", "Cloudworks"},
                                          {"text2", "CW 78x140"},
                                          {"text3", "top-hung window"},
                                          {"width", "0.78"},
                                          {"frameWidth", "0.06"},
                                          {"openingCode", "BO"}});
  ASSERT_THAT(schedule.rows, SizeIs(1));
  const ScheduleRow& row = schedule.rows[0];
  EXPECT_EQ(row.mark, "W01");
  EXPECT_EQ(row.number, 1.0);
  EXPECT_EQ(row.maker, "Cloudworks");
  EXPECT_EQ(row.key, "CW 78x140");
  EXPECT_EQ(row.text, "top-hung window");
  EXPECT_EQ(row.openingCode, "BO");
  EXPECT_NEAR(*row.width, 0.78, ROUNDING);
  EXPECT_NEAR(*row.length, 1.4, ROUNDING);
  EXPECT_NEAR(*row.frameWidth, 0.06, ROUNDING);
  EXPECT_NEAR(*row.frameDepth, 0.08, ROUNDING);
  EXPECT_NEAR(*row.glassArea, 0.66 * 1.28, ROUNDING);  // less twice 0.06
  EXPECT_NEAR(*row.frameArea, 0.78 * 1.4 - 0.66 * 1.28, ROUNDING);
  EXPECT_THAT(row.notes, IsEmpty());
}

TEST(ReadSchedule, RowTellsWhereTheWindowStands) {
  const Schedule schedule = ScheduleWith({});
  EXPECT_EQ(schedule.file, "house.dxf");
  EXPECT_TRUE(schedule.hasUnit);
  const ScheduleRow& row = schedule.rows.at(0);
  EXPECT_EQ(row.roof, "R1");
  EXPECT_EQ(row.layer, "ROOF");
  EXPECT_EQ(row.compass, "S");
  EXPECT_EQ(row.windowLayers, "ROOF_WINDOW_BODY, ROOF_WINDOW_OUTLINE, ROOF_WINDOW_SYMBOL");
  EXPECT_NEAR(*row.pitch, 45.0, 1e-6);
  EXPECT_NEAR(*row.sill, 2.0, ROUNDING);
  EXPECT_NEAR(*row.head, 2.0 + 1.4 * HALF_ROOT, ROUNDING);
  // The roof rises 6 m; along the slope that is 6 m / HALF_ROOT.
  EXPECT_NEAR(*row.toEaves, 2.0 / HALF_ROOT, ROUNDING);
  EXPECT_NEAR(*row.toRidge, 4.0 / HALF_ROOT - 1.4, ROUNDING);
}

TEST(ReadSchedule, WindowOnGivenPlaneHasNoRoof) {
  const WindowModule module;
  dxf::Document drawing = DrawingWithFaces({});
  WindowOrder order = OrderAt(4000, 2000);
  order.roof = {{0, 0, 0}, {8000, 0, 0}, {0, 6000, 6000}};
  WindowInserter(module, drawing, Millimetres()).Insert(order);
  const dxf::Document reloaded = Reloaded(drawing);
  const ScheduleRow row = Read(reloaded).rows.at(0);
  EXPECT_EQ(row.roof, "");
  EXPECT_EQ(row.layer, "");
  EXPECT_FALSE(row.toEaves.has_value());
  EXPECT_FALSE(row.toRidge.has_value());
  EXPECT_EQ(row.compass, "S");
  EXPECT_NEAR(*row.sill, 2.0, ROUNDING);
}

TEST(ReadSchedule, WindowThatLostPartsHasNoHeightsButANote) {
  dxf::Document drawing = HouseWithWindow();
  drawing.RemoveEntity(drawing.Entities().back());
  const dxf::Document damaged = Reloaded(drawing);
  const ScheduleRow row = Read(damaged).rows.at(0);
  EXPECT_NEAR(*row.width, 0.94, ROUNDING);
  EXPECT_EQ(row.roof, "R1");
  EXPECT_FALSE(row.sill.has_value());
  EXPECT_FALSE(row.toEaves.has_value());
  EXPECT_THAT(row.notes, HasSubstr("it cannot be changed"));
}

TEST(ReadSchedule, WindowWithDamagedDescriptionHasItsMarkAlone) {
  std::string text = HouseWithWindow().Serialize();
  const std::string length = "1040\n1400.0\n";
  for (std::size_t at = text.find(length); at != std::string::npos; at = text.find(length, at))
    text.replace(at, length.size(), "1040\nxyz\n");
  const dxf::Document damaged = dxf::Document::FromText("house.dxf", text);
  const ScheduleRow row = Read(damaged).rows.at(0);
  EXPECT_EQ(row.mark, "W01");
  EXPECT_FALSE(row.isRead);
  EXPECT_FALSE(row.width.has_value());
  EXPECT_THAT(row.notes, HasSubstr("its description is damaged"));
}

TEST(ReadSchedule, LengthsOfDrawingWithoutUnitAreThoseOfTheDrawing) {
  const dxf::Document drawing = HouseWithWindow();
  const Schedule schedule = ReadSchedule(drawing, UNSTATED, 1.0);
  EXPECT_FALSE(schedule.hasUnit);
  const ScheduleRow& row = schedule.rows.at(0);
  EXPECT_NEAR(*row.width, 940.0, 1e-6);
  EXPECT_NEAR(*row.sill, 2000.0, 1e-6);
  EXPECT_NEAR(*row.toEaves, 2000.0 / HALF_ROOT, 1e-6);
}

}  // namespace
}  // namespace teskarlt
