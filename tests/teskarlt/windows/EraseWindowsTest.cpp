// EraseWindowsTest.cpp - windows that are taken out of a drawing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/EraseWindows.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

constexpr WorkingUnit MILLIMETRES{1000, 1.0};

// Erases window 1 and gives how many entities went.
std::size_t EraseOne(const WindowModule& module, dxf::Document& drawing) {
  return EraseWindows(module, drawing, {.numbers = {{1, 1}}}, MILLIMETRES, false).front().entities;
}

// Windows 1 and 2, of which the second is 1.14 m wide.
dxf::Document HouseWithTwo(const WindowModule& module) {
  dxf::Document drawing = House();
  WindowInserter inserter(module, drawing, Millimetres());
  inserter.Insert(OrderAt(2000, 2000));
  WindowOrder wide = OrderAt(5000, 2000);
  wide.settings = {{"width", "1.14"}};
  inserter.Insert(wide);
  return Reloaded(drawing);
}

TEST(EraseWindows, AllEntitiesOfTheWindowGo) {
  const WindowModule module;
  dxf::Document drawing = HouseWithWindow();
  const std::size_t entities = drawing.Entities().size();
  EXPECT_EQ(EraseOne(module, drawing), entities - 1);  // all but the roof
  EXPECT_EQ(Reloaded(drawing).Entities().size(), 1U);
}

TEST(EraseWindows, DrawingWithoutWindowsIsRefused) {
  const WindowModule module;
  dxf::Document drawing = House();
  EXPECT_EQ(RefusalOf([&] { EraseOne(module, drawing); }), "house.dxf holds no roof window");
  EXPECT_FALSE(drawing.IsChanged());
}

TEST(EraseWindows, WindowWithPartOfACopyIsRefused) {
  const WindowModule module;
  dxf::Document drawing = HouseWithCopy();
  drawing.RemoveEntity(drawing.Entities().back());
  drawing = Reloaded(drawing);
  EXPECT_NE(RefusalOf([&] { EraseOne(module, drawing); }).find("cannot be told from a part of a copy"),
            std::string::npos);
  EXPECT_FALSE(drawing.IsChanged());
}

TEST(EraseWindows, AllWindowsOfARangeGo) {
  const WindowModule module;
  dxf::Document drawing = HouseWithTwo(module);
  const auto erased = EraseWindows(module, drawing, {.numbers = {{1, 9}}}, MILLIMETRES, false);
  EXPECT_EQ(erased.size(), 2U);
  EXPECT_EQ(Reloaded(drawing).Entities().size(), 1U);  // the roof
}

TEST(EraseWindows, WindowsThatMeetTheConditionGo) {
  const WindowModule module;
  dxf::Document drawing = HouseWithTwo(module);
  EraseWindows(module, drawing, {.where = WindowCondition("width>1")}, MILLIMETRES, false);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), testing::ElementsAre(1));
}

}  // namespace
}  // namespace teskarlt
