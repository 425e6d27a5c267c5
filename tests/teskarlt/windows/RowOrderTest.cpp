// RowOrderTest.cpp - what users say of rows.
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/windows/RowOrder.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

TEST(RowOrder, CountIsFromOneToAThousand) {
  EXPECT_EQ(ParseRowCount("5"), 5);
  for (const char* text : {"0", "-1", "1001", "two", ""})
    EXPECT_THAT(RefusalOf([&] { ParseRowCount(text); }), HasSubstr("from 1 to 1000")) << text;
}

TEST(RowOrder, PointIsTheFirstWindowUnlessSaidOtherwise) {
  EXPECT_EQ(PlaceOfPoint({}), RowPlace::First);
  EXPECT_EQ(PlaceOfPoint({.from = "centre"}), RowPlace::Middle);
  EXPECT_EQ(PlaceOfPoint({.from = "right"}), RowPlace::Last);
  EXPECT_EQ(PlaceOfPoint({.isColumn = true, .from = "top"}), RowPlace::Last);
}

TEST(RowOrder, WordsOfARowAreNotThoseOfAColumn) {
  EXPECT_EQ(RefusalOf([] { PlaceOfPoint({.from = "top"}); }),
            "--row-from top: the point of a row is its left, centre or right");
  EXPECT_EQ(RefusalOf([] { PlaceOfPoint({.isColumn = true, .from = "left"}); }),
            "--row-from left: the point of a column is its bottom, centre or top");
}

TEST(RowOrder, RowNeedsOneDistance) {
  EXPECT_THAT(RefusalOf([] { CheckRow({.count = 3}); }), HasSubstr("either --spacing"));
  EXPECT_THAT(RefusalOf([] { CheckRow({.count = 3, .spacing = 1.2, .gap = 0.1}); }), HasSubstr("either"));
  EXPECT_EQ(RefusalOf([] { CheckRow({.count = 3, .gap = 0.1}); }), "");
}

TEST(RowOrder, WordsOfARowWithoutOneAreRefused) {
  EXPECT_EQ(RefusalOf([] { CheckRow({}); }), "");
  EXPECT_THAT(RefusalOf([] { CheckRow({.gap = 0.1}); }), HasSubstr("--row N says of how many windows"));
}

}  // namespace
}  // namespace teskarlt
