// GrowableArrayTest.cpp - appending, inserting, removing, creating and resizing.
#include <array>
#include <cstdint>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lttools/resrel.h"
#include "platform/Heap.h"

namespace lttools {
namespace {

using testing::ElementsAre;

// An array of 32-bit numbers as a user of the library keeps it.
struct Numbers {
  std::int32_t count = 0;
  std::int32_t capacity = 0;
  void* storage = nullptr;

  Numbers() = default;
  Numbers(const Numbers&) = delete;
  Numbers& operator=(const Numbers&) = delete;
  ~Numbers() { HeapRelease(storage); }

  std::int32_t* Data() const { return static_cast<std::int32_t*>(storage); }
  std::vector<std::int32_t> Values() const { return {Data(), Data() + count}; }
  std::int32_t Append(std::int32_t value) {
    return ArrayAppend(count, capacity, 10, storage, sizeof value, &value);
  }
  std::int32_t InsertAt(std::int32_t index, std::int32_t value) {
    return ArrayInsertAt(count, capacity, 10, storage, sizeof value, index, &value);
  }
  std::int32_t RemoveAt(std::int32_t index) {
    return ArrayRemoveAt(count, storage, sizeof(std::int32_t), index);
  }
};

TEST(ArrayAppend, FirstElementMakesRoomForOneGrowthStep) {
  Numbers numbers;
  EXPECT_EQ(numbers.Append(7), 0);
  EXPECT_EQ(numbers.count, 1);
  EXPECT_EQ(numbers.capacity, 10);
}

TEST(ArrayAppend, EleventhElementGrowsTheRoomToTwenty) {
  Numbers numbers;
  for (std::int32_t i = 0; i < 10; ++i)
    numbers.Append(i);
  EXPECT_EQ(numbers.capacity, 10);
  EXPECT_EQ(numbers.Append(10), 10);
  EXPECT_EQ(numbers.capacity, 20);
  EXPECT_THAT(numbers.Values(), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
}

TEST(ArrayAppend, ElementInsideTheArraySurvivesTheMoveOfTheStorage) {
  Numbers numbers;
  for (std::int32_t i = 0; i < 10; ++i)
    numbers.Append(100 + i);
  ArrayAppend(numbers.count, numbers.capacity, 10, numbers.storage, sizeof(std::int32_t), numbers.Data() + 3);
  EXPECT_EQ(numbers.Values().back(), 103);
}

TEST(ArrayInsertAt, LaterElementsMoveUpAndTheOldCountIsReturned) {
  Numbers numbers;
  numbers.Append(1);
  numbers.Append(2);
  numbers.Append(3);
  EXPECT_EQ(numbers.InsertAt(1, 9), 3);
  EXPECT_THAT(numbers.Values(), ElementsAre(1, 9, 2, 3));
}

TEST(ArrayInsertAt, IndexEqualToTheCountAppends) {
  Numbers numbers;
  EXPECT_EQ(numbers.InsertAt(0, 5), 0);
  EXPECT_EQ(numbers.InsertAt(1, 6), 1);
  EXPECT_THAT(numbers.Values(), ElementsAre(5, 6));
}

TEST(ArrayInsertAt, FullArrayGrowsByItsStep) {
  Numbers numbers;
  for (std::int32_t i = 0; i < 10; ++i)
    numbers.Append(i);
  numbers.InsertAt(0, 99);
  EXPECT_EQ(numbers.capacity, 20);
  EXPECT_THAT(numbers.Values(), ElementsAre(99, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9));
}

TEST(ArrayInsertAt, ElementInsideTheArrayIsCopiedBeforeTheMove) {
  Numbers numbers;
  numbers.Append(1);
  numbers.Append(2);
  ArrayInsertAt(numbers.count, numbers.capacity, 10, numbers.storage, sizeof(std::int32_t), 0,
                numbers.Data() + 1);
  EXPECT_THAT(numbers.Values(), ElementsAre(2, 1, 2));
}

TEST(ArrayInsertAtDeathTest, IndexAboveTheCountIsFatal) {
  Numbers numbers;
  numbers.Append(1);
  EXPECT_EXIT(numbers.InsertAt(2, 9), testing::ExitedWithCode(1),
              "FATAL ERROR on line 197 of 'resrel'\n  'Index outside range'\n\nABORTING EXECUTION\n");
}

TEST(ArrayRemoveAt, FirstOfThreeLeavesTheOthersInFront) {
  Numbers numbers;
  numbers.Append(1);
  numbers.Append(2);
  numbers.Append(3);
  EXPECT_EQ(numbers.RemoveAt(0), 2);
  EXPECT_THAT(numbers.Values(), ElementsAre(2, 3));
  EXPECT_EQ(numbers.capacity, 10);
}

TEST(ArrayRemoveAt, IndexEqualToTheCountIsLetThroughAndDropsTheLast) {
  Numbers numbers;
  numbers.Append(1);
  numbers.Append(2);
  EXPECT_EQ(numbers.RemoveAt(2), 1);
  EXPECT_THAT(numbers.Values(), ElementsAre(1));
}

TEST(ArrayRemoveAtDeathTest, IndexAboveTheCountIsFatal) {
  Numbers numbers;
  numbers.Append(1);
  EXPECT_EXIT(numbers.RemoveAt(2), testing::ExitedWithCode(1),
              "FATAL ERROR on line 233 of 'resrel'\n  'Index outside range'\n\nABORTING EXECUTION\n");
}

TEST(ArrayCreate, HoldsTheInitialElementsInTheInitialRoom) {
  Numbers numbers;
  std::int32_t growth = 0;
  const std::array<std::int32_t, 3> initial{4, 5, 6};
  EXPECT_EQ(ArrayCreate(numbers.storage, numbers.count, numbers.capacity, growth, sizeof(std::int32_t),
                        initial.data(), 3, 8, 5),
            3);
  EXPECT_THAT(numbers.Values(), ElementsAre(4, 5, 6));
  EXPECT_EQ(numbers.capacity, 8);
  EXPECT_EQ(growth, 5);
}

TEST(ArrayCreate, EmptyArrayStillHasABlock) {
  Numbers numbers;
  std::int32_t growth = 0;
  EXPECT_EQ(ArrayCreate(numbers.storage, numbers.count, numbers.capacity, growth, sizeof(std::int32_t),
                        nullptr, 0, 0, 10),
            0);
  EXPECT_NE(numbers.storage, nullptr);
  EXPECT_EQ(numbers.Append(1), 0);
}

TEST(ArrayCreate, NegativeRoomIsTheSmallestBlock) {
  Numbers numbers;
  std::int32_t growth = 0;
  EXPECT_EQ(ArrayCreate(numbers.storage, numbers.count, numbers.capacity, growth, sizeof(std::int32_t),
                        nullptr, 0, -3, 10),
            0);
  EXPECT_NE(numbers.storage, nullptr);
  EXPECT_EQ(numbers.capacity, -3);
}

TEST(ArrayRemoveAt, EmptyArrayCountsBelowZero) {
  Numbers numbers;
  EXPECT_EQ(numbers.RemoveAt(0), -1);
}

TEST(ArrayResize, GivesTheNewRoomAndKeepsCountAndElements) {
  Numbers numbers;
  numbers.Append(1);
  numbers.Append(2);
  EXPECT_EQ(ArrayResize(40, sizeof(std::int32_t), numbers.capacity, numbers.storage), 40);
  EXPECT_EQ(numbers.capacity, 40);
  EXPECT_THAT(numbers.Values(), ElementsAre(1, 2));
}

TEST(ArrayResize, ShrinkingDoesNotAdjustTheCount) {
  Numbers numbers;
  for (std::int32_t i = 0; i < 5; ++i)
    numbers.Append(i);
  EXPECT_EQ(ArrayResize(2, sizeof(std::int32_t), numbers.capacity, numbers.storage), 2);
  EXPECT_EQ(numbers.count, 5);
}

}  // namespace
}  // namespace lttools
