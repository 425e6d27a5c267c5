// UnitsTest.cpp - the unit of a drawing.
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/UnitProposal.h"
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
            "--units m: test.dxf says that its unit is millimetres ($INSUNITS 4); leave --units out, or add "
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
            "--units cm: test.dxf holds windows drawn in millimetres; leave --units out, or add "
            "--force-units if the "
            "drawing is wrong");
}

TEST(UnitOf, UnitWithoutAWholeNumberAMetreIsWorkedOnInMillimetres) {
  const DrawingUnit& inch = UnitOf(InUnits(1));
  EXPECT_EQ(inch.name, "in");
  EXPECT_EQ(inch.working.perMetre, 1000);
  EXPECT_EQ(inch.working.perDrawingUnit, 25.4);
  EXPECT_DOUBLE_EQ(UnitOf(InUnits(21)).working.perDrawingUnit, 1'200'000.0 / 3937.0) << "US survey feet";
}

TEST(UnitOf, UnitWithAWholeNumberAMetreIsWorkedOnInItself) {
  for (const int metric : {4, 5, 6, 12, 13, 14}) {
    const DrawingUnit& unit = UnitOf(InUnits(metric));
    EXPECT_EQ(unit.working.perDrawingUnit, 1.0) << unit.name;
    EXPECT_EQ(unit.working.perMetre, unit.perMetre) << unit.name;
  }
}

TEST(UnitOf, UnitsOfAstronomersAreRefused) {
  EXPECT_EQ(RefusalOfUnit(InUnits(19), {}),
            "test.dxf: roof windows cannot be drawn in the drawing's unit ($INSUNITS 19); if it is drawn in "
            "another unit, say so with --units and --force-units, as in --units mm --force-units");
  EXPECT_EQ(UnitOf(InUnits(19), {"mm", true}).name, "mm");
}

TEST(UnitOf, SurveyFeetMayBeSaidWhereWindowsTellFeet) {
  const StatedUnit feet{&UnitByName("ft"), "holds windows drawn in ft", true};
  EXPECT_TRUE(feet.Agrees(UnitByName("us-ft")));
  EXPECT_FALSE(feet.Agrees(UnitByName("in")));
}

TEST(UnitOf, UnknownUnitIsProposedByTheSizeOfTheRoof) {
  const std::string slope =
      "0\n3DFACE\n8\nROOF\n10\n0\n20\n0\n30\n0\n11\n12000\n21\n0\n31\n0\n12\n12000\n22\n9000\n"
      "32\n5000\n13\n0\n23\n9000\n33\n5000\n";
  EXPECT_EQ(
      RefusalOfUnit(Drawing("", slope), {}),
      "test.dxf: the drawing does not say its unit ($INSUNITS); a roof of 12000 by 9000: millimetres? say "
      "--units mm");
  EXPECT_EQ(
      RefusalOfUnit(Drawing("", ""), {}),
      "test.dxf: the drawing does not say its unit ($INSUNITS); say it with --units, as in --units mm, m, "
      "in or ft");
}

TEST(LikelyUnit, FollowsFromTheSizeOfARoof) {
  EXPECT_EQ(LikelyUnit(12, false).name, "m");
  EXPECT_EQ(LikelyUnit(900, false).name, "cm");
  EXPECT_EQ(LikelyUnit(9000, false).name, "mm");
  EXPECT_EQ(LikelyUnit(0.012, false).name, "km");
  EXPECT_EQ(LikelyUnit(1.2e7, false).name, "um");
}

TEST(LikelyUnit, IsInFeetAndInchesWhereTheDrawingCountsInThem) {
  EXPECT_EQ(LikelyUnit(40, true).name, "ft");
  EXPECT_EQ(LikelyUnit(480, true).name, "in");
  EXPECT_EQ(LikelyUnit(12000, true).name, "mm") << "12000 inches would be a roof of 305 m";
}

TEST(KnownUnit, IsNoneWhereNothingTellsIt) {
  EXPECT_EQ(KnownUnit(InUnits(0)), nullptr);
  EXPECT_EQ(KnownUnit(InUnits(19)), nullptr) << "light years";
  EXPECT_EQ(KnownUnit(InUnits(1)), &UnitByName("in"));
  EXPECT_THROW(KnownUnit(InUnits(1), {"mm"}), Error);
}

TEST(ToleranceToLookWith, IsAMillimetreOfTheUnitOrOfTheProposedOne) {
  const std::string slope =
      "0\n3DFACE\n8\nROOF\n10\n0\n20\n0\n30\n0\n11\n12\n21\n0\n31\n0\n12\n12\n22\n9\n"
      "32\n5\n13\n0\n23\n9\n33\n5\n";
  EXPECT_EQ(ToleranceToLookWith(Drawing("", slope), UNSTATED), 0.001);  // 12 by 9 metres
  EXPECT_EQ(ToleranceToLookWith(Drawing("", slope), UnitByName("mm")), 1.0);
}

TEST(UnitByName, TakesWords) {
  EXPECT_EQ(UnitByName("inches").name, "in");
  EXPECT_EQ(UnitByName("Foot").name, "ft");
  EXPECT_EQ(UnitByName("metre").name, "m");
  EXPECT_EQ(UnitByName("US-FT").insUnits, 21);
}

TEST(UnitByName, UnknownNameIsAnError) {
  EXPECT_THROW(UnitByName("parsec"), Error);
}

}  // namespace
}  // namespace teskarlt
