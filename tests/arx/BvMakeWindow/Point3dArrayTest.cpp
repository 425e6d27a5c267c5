// Point3dArrayTest.cpp - growth, copying and failure of the point array.
#include <gtest/gtest.h>

#include "arx/BvMakeWindow/Point3dArray.h"
#include "tests/support/CountingHeap.h"

namespace brevanta {
namespace {

class Point3dArrayTest : public testing::Test {
 protected:
  void SetUp() override {
    counting_heap::Reset();
    blocksBefore_ = counting_heap::LiveBlocks();
  }
  void TearDown() override { EXPECT_EQ(counting_heap::LiveBlocks(), blocksBefore_) << "blocks left behind"; }

  // Points (0, 0, 0), (1, 0, 0), (2, 0, 0) ...
  static void Fill(Point3dArray& points, int count) {
    for (int k = 0; k < count; ++k)
      points.Append({static_cast<double>(k), 0, 0});
  }
  static std::string Xs(const Point3dArray& points) {
    std::string text;
    for (int k = 0; k < points.Length(); ++k)
      text += std::to_string(static_cast<int>(points[k].x)) + " ";
    return text;
  }

 private:
  std::size_t blocksBefore_ = 0;
};

TEST_F(Point3dArrayTest, NewArrayOwnsNothing) {
  const Point3dArray points(0, 8);
  EXPECT_EQ(points.Capacity(), 0);
  EXPECT_EQ(points.Length(), 0);
  EXPECT_EQ(points.GrowStep(), 8);
  EXPECT_EQ(counting_heap::Allocations(), 0);
}

TEST_F(Point3dArrayTest, InitialCapacityIsAllocatedAtOnce) {
  const Point3dArray points(5, 8);
  EXPECT_EQ(points.Capacity(), 5);
  EXPECT_EQ(points.Length(), 0);
  EXPECT_EQ(counting_heap::Allocations(), 1);
}

TEST_F(Point3dArrayTest, NegativeInitialCapacityIsNone) {
  const Point3dArray points(-1, 8);
  EXPECT_EQ(points.Capacity(), 0);
  EXPECT_EQ(counting_heap::Allocations(), 0);
}

TEST_F(Point3dArrayTest, FailedInitialAllocationLeavesTheArrayEmpty) {
  counting_heap::FailAllocation(1);
  const Point3dArray points(5, 8);
  EXPECT_EQ(points.Capacity(), 0);
  EXPECT_EQ(points.Length(), 0);
}

TEST_F(Point3dArrayTest, StorageIsOneBlockWithTheCountInFront) {
  Point3dArray points(5, 8);
  points.Append({1, 2, 3});
  const auto* count = reinterpret_cast<const std::int64_t*>(&points.First()) - 1;
  EXPECT_EQ(counting_heap::BlockSize(count), 8U + 5 * 24);
  EXPECT_EQ(*count, 5);
}

TEST_F(Point3dArrayTest, FirstAppendGrowsToTheStep) {
  Point3dArray points(0, 8);
  EXPECT_EQ(points.Append({1, 2, 3}), 0);
  EXPECT_EQ(points.Capacity(), 8);
  EXPECT_EQ(points.Length(), 1);
  EXPECT_EQ(points[0].z, 3);
}

TEST_F(Point3dArrayTest, AppendGivesTheIndexOfTheNewElement) {
  Point3dArray points;
  Fill(points, 3);
  EXPECT_EQ(points.Append({7, 7, 7}), 3);
}

TEST_F(Point3dArrayTest, FullArrayDoubles) {
  Point3dArray points(0, 8);
  Fill(points, 8);
  EXPECT_EQ(points.Capacity(), 8);
  points.Append({8, 0, 0});
  EXPECT_EQ(points.Capacity(), 16);
  EXPECT_EQ(Xs(points), "0 1 2 3 4 5 6 7 8 ");
}

TEST_F(Point3dArrayTest, GrowthIsNeverLessThanTheStep) {
  Point3dArray points(3, 100);
  Fill(points, 4);
  EXPECT_EQ(points.Capacity(), 103);
}

TEST_F(Point3dArrayTest, StorageBelow64KiBDoublesForTheLastTime) {
  Point3dArray points(2730, 8);  // 2730 * 24 = 65520
  Fill(points, 2731);
  EXPECT_EQ(points.Capacity(), 5460);
}

TEST_F(Point3dArrayTest, StorageFrom64KiBOnGrowsBy2730) {
  Point3dArray points(2731, 8);  // 2731 * 24 = 65544
  Fill(points, 2732);
  EXPECT_EQ(points.Capacity(), 5461);
}

TEST_F(Point3dArrayTest, LargeStepBeatsTheLinearGrowth) {
  Point3dArray points(2731, 4000);
  Fill(points, 2732);
  EXPECT_EQ(points.Capacity(), 6731);
}

TEST_F(Point3dArrayTest, AppendingAnOwnElementOfAFullArrayStoresItsValue) {
  Point3dArray points(0, 8);
  Fill(points, 8);
  points.Append(points[5]);
  EXPECT_EQ(points[8].x, 5);
}

TEST_F(Point3dArrayTest, InsertingMovesTheElementsBehindUp) {
  Point3dArray points;
  Fill(points, 4);
  points.InsertAt(1, {9, 0, 0});
  EXPECT_EQ(Xs(points), "0 9 1 2 3 ");
}

TEST_F(Point3dArrayTest, InsertingAnOwnElementInFrontOfItselfStoresItsValue) {
  Point3dArray points;
  Fill(points, 4);
  points.InsertAt(0, points[3]);
  EXPECT_EQ(Xs(points), "3 0 1 2 3 ");
}

TEST_F(Point3dArrayTest, InsertingIntoAFullArrayGrowsIt) {
  Point3dArray points(4, 8);
  Fill(points, 4);
  points.InsertAt(0, {9, 0, 0});
  EXPECT_EQ(points.Capacity(), 12);
  EXPECT_EQ(Xs(points), "9 0 1 2 3 ");
}

TEST_F(Point3dArrayTest, LengthZeroKeepsTheStorage) {
  Point3dArray points;
  Fill(points, 3);
  points.SetLength(0);
  EXPECT_EQ(points.Length(), 0);
  EXPECT_EQ(points.Capacity(), 8);
}

TEST_F(Point3dArrayTest, NegativeLengthIsZero) {
  Point3dArray points;
  Fill(points, 3);
  points.SetLength(-3);
  EXPECT_EQ(points.Length(), 0);
  EXPECT_EQ(points.Capacity(), 8);
}

TEST_F(Point3dArrayTest, LengthBeyondTheCapacityGrowsByTheGrowthAmount) {
  Point3dArray points(10, 8);
  points.SetLength(11);
  EXPECT_EQ(points.Length(), 11);
  EXPECT_EQ(points.Capacity(), 20);
}

TEST_F(Point3dArrayTest, LengthBeyondTheGrowthAmountIsTakenExactly) {
  Point3dArray points(10, 8);
  points.SetLength(50);
  EXPECT_EQ(points.Length(), 50);
  EXPECT_EQ(points.Capacity(), 50);
}

TEST_F(Point3dArrayTest, NewElementsAreTheOrigin) {
  Point3dArray points;
  points.SetLength(2);
  EXPECT_EQ(points[1].x, 0);
  EXPECT_EQ(points[1].y, 0);
  EXPECT_EQ(points[1].z, 0);
}

TEST_F(Point3dArrayTest, SmallerCapacityCutsTheLength) {
  Point3dArray points;
  Fill(points, 5);
  points.SetCapacity(3);
  EXPECT_EQ(points.Capacity(), 3);
  EXPECT_EQ(Xs(points), "0 1 2 ");
}

TEST_F(Point3dArrayTest, CapacityZeroReleasesTheStorage) {
  Point3dArray points;
  Fill(points, 5);
  points.SetCapacity(0);
  EXPECT_EQ(points.Capacity(), 0);
  EXPECT_EQ(points.Length(), 0);
  EXPECT_EQ(counting_heap::Releases(), 1);
}

TEST_F(Point3dArrayTest, SameCapacityKeepsTheBlock) {
  Point3dArray points(5, 8);
  points.SetCapacity(5);
  EXPECT_EQ(counting_heap::Allocations(), 1);
  EXPECT_EQ(counting_heap::Releases(), 0);
}

TEST_F(Point3dArrayTest, FailedGrowthLeavesTheArrayEmpty) {
  Point3dArray points;
  Fill(points, 8);
  counting_heap::FailAllocation(1);
  points.Append({8, 0, 0});
  EXPECT_EQ(points.Capacity(), 0);
  EXPECT_EQ(points.Length(), 0);
}

TEST_F(Point3dArrayTest, FailedLengthLeavesTheArrayEmpty) {
  Point3dArray points;
  Fill(points, 8);
  counting_heap::FailAllocation(1);
  points.SetLength(9);
  EXPECT_EQ(points.Capacity(), 0);
  EXPECT_EQ(points.Length(), 0);
}

TEST_F(Point3dArrayTest, ArrayWorksAgainAfterAFailedGrowth) {
  Point3dArray points;
  Fill(points, 8);
  counting_heap::FailAllocation(1);
  points.Append({8, 0, 0});
  Fill(points, 2);
  EXPECT_EQ(Xs(points), "0 1 ");
}

TEST_F(Point3dArrayTest, OverflowingCapacityFailsInsteadOfWrapping) {
  Point3dArray points;
  Fill(points, 3);
  points.SetCapacity(-1);
  EXPECT_EQ(points.Capacity(), 0);
  EXPECT_EQ(points.Length(), 0);
}

}  // namespace
}  // namespace brevanta
