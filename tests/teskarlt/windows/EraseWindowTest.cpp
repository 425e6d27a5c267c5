// EraseWindowTest.cpp - windows that are taken out of a drawing.
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
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

TEST(EraseWindow, DrawingWithoutWindowsIsRefused) {
  const WindowModule module;
  dxf::Document drawing = House();
  EXPECT_EQ(RefusalOf([&] { EraseWindow(module, drawing, 1, false); }), "house.dxf holds no roof window");
  EXPECT_FALSE(drawing.IsChanged());
}

}  // namespace
}  // namespace teskarlt
