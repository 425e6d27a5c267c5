// MoveOrderTest.cpp - what users say of windows that move.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/windows/MoveOrder.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

TEST(MoveOrder, PlaceIsSaidByAPointARoofOrWords) {
  WindowOrder order;
  EXPECT_THAT(MoveMistake(order), HasSubstr("say where the windows go: --by or --to"));
  order.placing.isCentred = true;
  EXPECT_EQ(MoveMistake(order), "");
  EXPECT_EQ(MoveMistake(OrderAt(1, 2)), "");
}

TEST(MoveOrder, WayAndPlaceContradictEachOther) {
  WindowOrder order;
  order.by = SlopeMove{0.2, 0};
  EXPECT_EQ(MoveMistake(order), "");
  order.placing.snap = 0.05;
  EXPECT_EQ(MoveMistake(order), "");
  order.placing.isCentred = true;
  EXPECT_THAT(MoveMistake(order), HasSubstr("--by says how far the windows go"));
}

}  // namespace
}  // namespace teskarlt
