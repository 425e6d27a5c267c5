// UnitsTest.cpp - the unit of a drawing.
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/Units.h"
#include "tests/teskarlt/drawing/Drawings.h"
#include "tests/teskarlt/drawing/InsertedWindow.h"

namespace teskarlt {
namespace {

dxf::Document InUnits(int insUnits) {
  return Drawing("  9\n$INSUNITS\n 70\n" + std::to_string(insUnits) + "\n", "");
}

std::string RefusalOfUnit(const dxf::Document& drawing, const AskedUnit& asked) {
  try {
    UnitOf(drawing, asked);
    return {};
  } catch (const Error& error) {
    return error.what();
  }
}

TEST(UnitOf, HeaderDecides) {
  EXPECT_EQ(UnitOf(InUnits(4)).perMetre, 1000);
  EXPECT_EQ(UnitOf(InUnits(5)).perMetre, 100);
  EXPECT_EQ(UnitOf(InUnits(14)).perMetre, 10);
  EXPECT_EQ(UnitOf(InUnits(6)).perMetre, 1);
}

TEST(UnitOf, OptionThatDiffersFromTheHeaderIsRefusedUnlessForced) {
  const dxf::Document drawing = InUnits(4);
  EXPECT_EQ(UnitOf(drawing, {"mm"}).perMetre, 1000);
  EXPECT_EQ(RefusalOfUnit(drawing, {"m"}),
            "--units m: test.dxf says that its unit is mm ($INSUNITS 4); leave --units out, or add "
            "--force-units if the drawing is wrong");
  EXPECT_EQ(UnitOf(drawing, {"m", true}).perMetre, 1);
}

TEST(UnitOf, DrawingWithoutUnitNeedsTheOption) {
  EXPECT_THROW(UnitOf(InUnits(0)), Error);
  EXPECT_THROW(UnitOf(Drawing("", "")), Error);
  EXPECT_EQ(UnitOf(InUnits(0), {"cm"}).perMetre, 100);
}

TEST(UnitOf, WindowsTellTheUnitOfADrawingWithoutOne) {
  dxf::Document drawing = DrawingOf(Insert().entities);
  const std::string text = drawing.Serialize();
  const std::string stated = "$INSUNITS\n 70\n4\n";
  ASSERT_NE(text.find(stated), std::string::npos);
  std::string unitless = text;
  unitless.replace(text.find(stated), stated.size(), "$INSUNITS\n 70\n0\n");
  drawing = dxf::Document::FromText("test.dxf", std::move(unitless));
  EXPECT_EQ(UnitOf(drawing).name, "mm");
  EXPECT_EQ(RefusalOfUnit(drawing, {"cm"}),
            "--units cm: test.dxf holds windows drawn in mm; leave --units out, or add --force-units if the "
            "drawing is wrong");
}

TEST(UnitOf, InchesHaveNoWholeNumberAMetre) {
  EXPECT_THROW(UnitOf(InUnits(1)), Error);
  EXPECT_THROW(UnitOf(InUnits(1), {"mm"}), Error);
  EXPECT_EQ(UnitOf(InUnits(1), {"mm", true}).perMetre, 1000);
}

TEST(UnitByName, UnknownNameIsAnError) {
  EXPECT_THROW(UnitByName("parsec"), Error);
}

}  // namespace
}  // namespace teskarlt
