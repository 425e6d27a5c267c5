// EraseWindowTest.cpp - windows that are taken out of a drawing.
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/windows/EraseWindow.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

TEST(EraseWindow, AllEntitiesOfTheWindowGo) {
  const WindowModule module;
  dxf::Document drawing = HouseWithWindow();
  const std::size_t entities = drawing.Entities().size();
  EXPECT_EQ(EraseWindow(module, drawing, 1, false), entities - 1);  // all but the roof
  EXPECT_EQ(Reloaded(drawing).Entities().size(), 1U);
}

TEST(EraseWindow, NumberOfTheHighestWindowIsNotGivenAgain) {
  const WindowModule module;
  dxf::Document drawing = HouseWithWindow();
  EraseWindow(module, drawing, 1, false);
  drawing = Reloaded(drawing);
  EXPECT_EQ(NumbersOf(drawing, FindWindows(drawing, 1000)).Free(), 2);
}

TEST(EraseWindow, DrawingWithoutWindowsIsRefused) {
  const WindowModule module;
  dxf::Document drawing = House();
  EXPECT_EQ(RefusalOf([&] { EraseWindow(module, drawing, 1, false); }), "house.dxf holds no roof window");
  EXPECT_FALSE(drawing.IsChanged());
}

TEST(EraseWindow, WindowWithPartOfACopyIsRefused) {
  const WindowModule module;
  dxf::Document drawing = HouseWithCopy();
  drawing.RemoveEntity(drawing.Entities().back());
  drawing = Reloaded(drawing);
  EXPECT_NE(
      RefusalOf([&] { EraseWindow(module, drawing, 1, false); }).find("cannot be told from a part of a copy"),
      std::string::npos);
  EXPECT_FALSE(drawing.IsChanged());
}

}  // namespace
}  // namespace teskarlt
