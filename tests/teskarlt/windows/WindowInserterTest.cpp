// WindowInserterTest.cpp - windows that come into a drawing, and those that do not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/WindowInserter.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class WindowInserterTest : public testing::Test {
 protected:
  WindowModule module;
  dxf::Document drawing = House();
  WindowInserter inserter{module, drawing, Millimetres()};
};

TEST_F(WindowInserterTest, WindowGoesOntoTheFaceAtItsPoint) {
  const PlacedWindow window = inserter.Insert(OrderAt(4000, 2000));
  ASSERT_TRUE(window.face);
  EXPECT_EQ(window.face->layer, "ROOF");
  EXPECT_NEAR(window.record.pitch, 45, 1e-9);
  EXPECT_NEAR(window.record.storedPoint.z, 2000, 1e-6);  // at 45 degrees as high as far from the eaves
  EXPECT_TRUE(window.misfits.empty());
}

TEST_F(WindowInserterTest, EntitiesThatAreToldStandInTheDrawing) {
  const PlacedWindow window = inserter.Insert(OrderAt(4000, 2000));
  EXPECT_EQ(Reloaded(drawing).Entities().size(), drawing.Entities().size() + window.faces + window.lines);
}

TEST_F(WindowInserterTest, EachWindowGetsTheNextNumber) {
  EXPECT_EQ(inserter.Insert(OrderAt(2000, 2000)).record.markerValue, 1);
  EXPECT_EQ(inserter.Insert(OrderAt(6000, 2000)).record.markerValue, 2);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(1, 2));
}

TEST_F(WindowInserterTest, SettingsGoIntoTheRecord) {
  WindowOrder order = OrderAt(4000, 2000);
  order.settings = {{"width", "0.5"}, {"width", "0.78"}, {"text1", "north"}};
  const PlacedWindow window = inserter.Insert(order);
  EXPECT_EQ(window.record.width, 0.78);
  EXPECT_STREQ(window.record.text1, "north");
}

TEST_F(WindowInserterTest, OverlappingWindowIsToldAsAMisfit) {
  inserter.Insert(OrderAt(4000, 2000));
  EXPECT_THAT(inserter.Insert(OrderAt(4100, 2000)).misfits, ElementsAre(HasSubstr("overlaps window 1")));
}

TEST_F(WindowInserterTest, StrictOrderLeavesNoTraceOfAMisfit) {
  inserter.Insert(OrderAt(4000, 2000));
  const std::string before = drawing.Serialize();
  WindowOrder order = OrderAt(4100, 2000);
  order.isStrict = true;
  EXPECT_THAT(RefusalOf([&] { inserter.Insert(order); }), HasSubstr("--strict: the window is refused; "));
  EXPECT_EQ(drawing.Serialize(), before);
  EXPECT_EQ(inserter.Insert(OrderAt(6000, 2000)).record.markerValue, 2);  // the number is free again
}

TEST_F(WindowInserterTest, PlaneOfTheUsersOwnNeedsNoFace) {
  WindowOrder order = OrderAt(20000, 2000);
  order.roof = {{0, 0, 0}, {1000, 0, 0}, {0, 1000, 1000}};
  const PlacedWindow window = inserter.Insert(order);
  EXPECT_FALSE(window.face);
  EXPECT_NEAR(window.record.pitch, 45, 1e-9);
}

TEST_F(WindowInserterTest, RefusalOfTheDialogLeavesTheDrawingAsItWas) {
  const std::string before = drawing.Serialize();
  WindowOrder order = OrderAt(4000, 2000);
  order.settings = {{"width", "-1"}};
  EXPECT_THAT(RefusalOf([&] { inserter.Insert(order); }), HasSubstr("width"));
  EXPECT_EQ(drawing.Serialize(), before);
}

}  // namespace
}  // namespace teskarlt
