// BandListsTest.cpp - shapes of a picture by the bands that they reach into.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/preview/BandLists.h"

namespace teskarlt::preview {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Ten bands of height 10.
BandLists TenBands() {
  return {10, 10.0};
}

TEST(BandLists, ShapeIsInTheBandsThatItReachesInto) {
  BandLists lists = TenBands();
  lists.Add(15, 25);
  EXPECT_THAT(lists.In(0), IsEmpty());
  EXPECT_THAT(lists.In(1), ElementsAre(0));
  EXPECT_THAT(lists.In(2), ElementsAre(0));
  EXPECT_THAT(lists.In(3), IsEmpty());
}

TEST(BandLists, TallAndLowShapesOfABandComeInTheOrderTheyWereAdded) {
  BandLists lists = TenBands();
  lists.Add(51, 52);
  lists.Add(-5, 200);  // into all bands
  lists.Add(55, 56);
  EXPECT_THAT(lists.In(5), ElementsAre(0, 1, 2));
  EXPECT_THAT(lists.In(9), ElementsAre(1));
}

TEST(BandLists, ShapesAboveAndBelowThePictureAreInNone) {
  BandLists lists = TenBands();
  lists.Add(-20, -1);
  lists.Add(101, 102);
  for (std::size_t band = 0; band < 10; ++band)
    EXPECT_THAT(lists.In(band), IsEmpty());
}

TEST(BandLists, ShapeOnTheRimOfThePictureIsInTheBandThere) {
  BandLists lists = TenBands();
  lists.Add(-3, 0);
  lists.Add(100, 100);
  EXPECT_THAT(lists.In(0), ElementsAre(0));
  EXPECT_THAT(lists.In(9), ElementsAre(1));
}

}  // namespace
}  // namespace teskarlt::preview
