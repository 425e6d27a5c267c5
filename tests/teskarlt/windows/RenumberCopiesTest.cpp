// RenumberCopiesTest.cpp - numbers of windows and of their copies.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/windows/RenumberCopies.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

using testing::ElementsAre;

TEST(RenumberCopies, CopyGetsANumberOfItsOwn) {
  dxf::Document drawing = HouseWithCopy();
  EXPECT_THAT(NumbersIn(drawing), ElementsAre(1, 1));
  const std::vector<Renumbered> changes = RenumberCopies(drawing);
  ASSERT_EQ(changes.size(), 1U);
  EXPECT_EQ(changes[0].from, 1);
  EXPECT_EQ(changes[0].to, 2);
  EXPECT_NEAR(changes[0].place.x, 4000, 1e-6);
  EXPECT_THAT(NumbersIn(Reloaded(drawing)), ElementsAre(1, 2));
}

TEST(RenumberCopies, WindowWithANumberOfItsOwnKeepsIt) {
  dxf::Document drawing = HouseWithWindow();
  EXPECT_TRUE(RenumberCopies(drawing).empty());
  EXPECT_FALSE(drawing.IsChanged());
}

}  // namespace
}  // namespace teskarlt
