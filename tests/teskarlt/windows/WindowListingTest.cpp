// WindowListingTest.cpp - the windows of a drawing as they are told to people.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/windows/WindowInserter.h"
#include "teskarlt/windows/WindowListing.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(ListWindows, WindowsComeByTheirNumbers) {
  const WindowModule module;
  dxf::Document drawing = House();
  WindowInserter inserter(module, drawing, Millimetres());
  WindowOrder second = OrderAt(2000, 2000);
  second.settings = {{"markerValue", "7"}};
  WindowOrder first = OrderAt(5000, 2000);
  first.settings = {{"markerValue", "3"}};
  inserter.Insert(second);
  inserter.Insert(first);
  const dxf::Document reloaded = Reloaded(drawing);
  const std::vector<ListedWindow> listed = ListWindows(reloaded, Millimetres().working);
  ASSERT_EQ(listed.size(), 2U);
  EXPECT_EQ(listed[0].window.number, 3);
  EXPECT_EQ(listed[1].window.number, 7);
  EXPECT_THAT(listed[0].reading.notes, IsEmpty());
}

TEST(ListWindows, NoteTellsOfNumberThatStandsTwice) {
  const dxf::Document drawing = HouseWithCopy();
  const std::vector<ListedWindow> listed = ListWindows(drawing, Millimetres().working);
  ASSERT_EQ(listed.size(), 2U);
  EXPECT_THAT(listed[0].reading.notes, IsEmpty());
  EXPECT_THAT(listed[1].reading.notes, ElementsAre(HasSubstr("teskarlt renumber gives it one of its own")));
}

TEST(ListWindows, NoteTellsWhyWindowCannotBeChanged) {
  dxf::Document drawing = HouseWithWindow();
  drawing.RemoveEntity(drawing.Entities().back());
  const dxf::Document damaged = Reloaded(drawing);
  const std::vector<ListedWindow> listed = ListWindows(damaged, Millimetres().working);
  ASSERT_EQ(listed.size(), 1U);
  EXPECT_THAT(listed[0].reading.notes, ElementsAre(HasSubstr("it cannot be changed: ")));
}

}  // namespace
}  // namespace teskarlt
