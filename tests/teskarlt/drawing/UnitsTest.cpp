// UnitsTest.cpp - the unit of a drawing.
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/Units.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

dxf::Document InUnits(int insUnits) {
  return Drawing("  9\n$INSUNITS\n 70\n" + std::to_string(insUnits) + "\n", "");
}

TEST(UnitOf, HeaderDecides) {
  EXPECT_EQ(UnitOf(InUnits(4), "").perMetre, 1000);
  EXPECT_EQ(UnitOf(InUnits(5), "").perMetre, 100);
  EXPECT_EQ(UnitOf(InUnits(14), "").perMetre, 10);
  EXPECT_EQ(UnitOf(InUnits(6), "").perMetre, 1);
}

TEST(UnitOf, OptionGoesBeforeTheHeader) {
  EXPECT_EQ(UnitOf(InUnits(4), "m").perMetre, 1);
}

TEST(UnitOf, DrawingWithoutUnitNeedsTheOption) {
  EXPECT_THROW(UnitOf(InUnits(0), ""), Error);
  EXPECT_THROW(UnitOf(Drawing("", ""), ""), Error);
  EXPECT_EQ(UnitOf(InUnits(0), "cm").perMetre, 100);
}

TEST(UnitOf, InchesHaveNoWholeNumberAMetre) {
  EXPECT_THROW(UnitOf(InUnits(1), ""), Error);
}

TEST(UnitByName, UnknownNameIsAnError) {
  EXPECT_THROW(UnitByName("parsec"), Error);
}

}  // namespace
}  // namespace teskarlt
