// UnitChoiceTest.cpp - the unit in which a drawing is worked on.
#include <gtest/gtest.h>

#include "teskarlt/windows/UnitChoice.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

TEST(ChooseUnit, HeaderIsTakenAtItsWord) {
  dxf::Document drawing = House();
  const UnitChoice choice = ChooseUnit(drawing, {});
  EXPECT_EQ(choice.unit.name, "mm");
  EXPECT_EQ(choice.warning, "");
}

TEST(ChooseUnit, ForcedUnitGoesBeforeTheHeaderWithAWarning) {
  dxf::Document drawing = House();
  const UnitChoice choice = ChooseUnit(drawing, {"m", true});
  EXPECT_EQ(choice.unit.perMetre, 1);
  EXPECT_EQ(choice.warning, "house.dxf says that its unit is millimetres ($INSUNITS 4); --units m is taken");
}

TEST(ChooseUnit, ForcedUnitThatTheDrawingSaysTooIsNoWarning) {
  dxf::Document drawing = House();
  EXPECT_EQ(ChooseUnit(drawing, {"mm", true}).warning, "");
}

}  // namespace
}  // namespace teskarlt
