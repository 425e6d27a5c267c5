// PlanIndexTest.cpp - boxes in the plan are all found, and no others.
#include <random>

#include <gtest/gtest.h>

#include "teskarlt/drawing/PlanIndex.h"

namespace teskarlt {
namespace {

using Numbers = std::vector<std::size_t>;

TEST(PlanIndex, WithoutBoxesFindsNothing) {
  EXPECT_EQ(PlanIndex({}).Touching({0, 0, 9, 9}), Numbers());
}

TEST(PlanIndex, EdgesBelongToABox) {
  const PlanIndex index({{0, 0, 1, 1}, {1, 1, 2, 2}, {3, 0, 4, 1}});
  EXPECT_EQ(index.Touching({1, 1, 1, 1}), (Numbers{0, 1}));
  EXPECT_EQ(index.Touching({2.5, 0, 2.9, 9}), Numbers());
}

// 3000 boxes in a few places far from each other, as houses in a town; enough for three levels of nodes.
std::vector<PlanBox> Town() {
  std::mt19937 random(7);
  const auto upTo = [&](double most) { return std::uniform_real_distribution<double>(0, most)(random); };
  std::vector<PlanBox> boxes;
  for (int i = 0; i < 3000; ++i) {
    const double x = 1000.0 * (i % 5) + upTo(20);
    const double y = 700.0 * (i % 3) + upTo(20);
    boxes.push_back({x, y, x + upTo(5), y + upTo(5)});
  }
  return boxes;
}

TEST(PlanIndex, FindsWhatASearchOfAllFinds) {
  const std::vector<PlanBox> boxes = Town();
  const PlanIndex index(boxes);
  for (std::size_t asked = 0; asked < boxes.size(); asked += 50) {
    Numbers all;
    for (std::size_t i = 0; i < boxes.size(); ++i)
      if (Touch(boxes[i], boxes[asked])) all.push_back(i);
    EXPECT_EQ(index.Touching(boxes[asked]), all) << "box " << asked;
  }
}

}  // namespace
}  // namespace teskarlt
