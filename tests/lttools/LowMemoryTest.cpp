// LowMemoryTest.cpp - each allocation of the support library
// fails in turn; on the good path every block is released.
#include <cstdint>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "lttools/SUPP.h"
#include "lttools/resrel.h"
#include "platform/Heap.h"
#include "tests/support/CountingHeap.h"

namespace lttools {
namespace {

using counting_heap::FailAllocation;
using counting_heap::LiveBlocks;

constexpr std::int32_t GROWTH = 10;

std::string LowMemoryReport(const char* file, int line) {
  return "\n\nFATAL ERROR on line " + std::to_string(line) + " of '" + file +
         "'\n  'Low memory'\n\nABORTING EXECUTION\n";
}

struct Numbers {
  std::int32_t count = 0;
  std::int32_t capacity = 0;
  void* storage = nullptr;
};

void AppendWithFailure(int allocation) {
  Numbers numbers;
  const std::int32_t value = 1;
  FailAllocation(allocation);
  ArrayAppend(numbers.count, numbers.capacity, GROWTH, numbers.storage, sizeof value, &value);
}

void InsertWithFailure(int allocation) {
  Numbers numbers;
  const std::int32_t value = 1;
  FailAllocation(allocation);
  ArrayInsertAt(numbers.count, numbers.capacity, GROWTH, numbers.storage, sizeof value, 0, &value);
}

void CreateWithFailure() {
  Numbers numbers;
  std::int32_t growth = 0;
  FailAllocation(1);
  ArrayCreate(numbers.storage, numbers.count, numbers.capacity, growth, 4, nullptr, 0, 5, GROWTH);
}

void ResizeWithFailure() {
  Numbers numbers;
  FailAllocation(1);
  ArrayResize(5, 4, numbers.capacity, numbers.storage);
}

void DupWithFailure() {
  FailAllocation(1);
  DupSubstring("abc", 3);
}

void SplitWithFailure(int allocation, const char* text = "a;b") {
  TextList fields;
  FailAllocation(allocation);
  SplitFields(text, ";", fields);
}

// Variables far enough apart to be groups of their own.
void PushWithFailure(int allocation, int pushes) {
  struct alignas(16) Resource {
    void* pointer = nullptr;
  };
  static Resource resources[32];
  FailAllocation(allocation);
  for (int i = 0; i < pushes; ++i)
    ResPush(&resources[i].pointer, RES_HEAP_BLOCK);
}

TEST(LowMemoryDeathTest, AppendReportsTheLineOfTheElementCopy) {
  EXPECT_EXIT(AppendWithFailure(1), testing::ExitedWithCode(1), LowMemoryReport("resrel", 159));
}

TEST(LowMemoryDeathTest, AppendReportsTheLineOfTheStorage) {
  EXPECT_EXIT(AppendWithFailure(2), testing::ExitedWithCode(1), LowMemoryReport("resrel", 172));
}

TEST(LowMemoryDeathTest, InsertReportsTheLineOfTheElementCopy) {
  EXPECT_EXIT(InsertWithFailure(1), testing::ExitedWithCode(1), LowMemoryReport("resrel", 201));
}

TEST(LowMemoryDeathTest, InsertReportsTheLineOfTheStorage) {
  EXPECT_EXIT(InsertWithFailure(2), testing::ExitedWithCode(1), LowMemoryReport("resrel", 210));
}

TEST(LowMemoryDeathTest, CreateReportsItsLine) {
  EXPECT_EXIT(CreateWithFailure(), testing::ExitedWithCode(1), LowMemoryReport("resrel", 263));
}

TEST(LowMemoryDeathTest, ResizeReportsItsLine) {
  EXPECT_EXIT(ResizeWithFailure(), testing::ExitedWithCode(1), LowMemoryReport("resrel", 296));
}

TEST(LowMemoryDeathTest, DupSubstringReportsItsLine) {
  EXPECT_EXIT(DupWithFailure(), testing::ExitedWithCode(1), LowMemoryReport("SUPP", 98));
}

TEST(LowMemoryDeathTest, SplittingIsFatalAtEachOfItsAllocations) {
  EXPECT_EXIT(SplitWithFailure(1), testing::ExitedWithCode(1), LowMemoryReport("SUPP", 98));
  EXPECT_EXIT(SplitWithFailure(2), testing::ExitedWithCode(1), LowMemoryReport("resrel", 159));
  EXPECT_EXIT(SplitWithFailure(3), testing::ExitedWithCode(1), LowMemoryReport("resrel", 172));
  EXPECT_EXIT(SplitWithFailure(4), testing::ExitedWithCode(1), LowMemoryReport("SUPP", 98));
}

// Ten copies and the two blocks of the first growth; then the eleventh copy and the second growth.
TEST(LowMemoryDeathTest, ListOfFieldsGrowsByTen) {
  EXPECT_EXIT(SplitWithFailure(13, ";;;;;;;;;;"), testing::ExitedWithCode(1), LowMemoryReport("SUPP", 98));
  EXPECT_EXIT(SplitWithFailure(14, ";;;;;;;;;;"), testing::ExitedWithCode(1), LowMemoryReport("resrel", 159));
}

TEST(LowMemoryDeathTest, ResourceStackGrowsByTwenty) {
  EXPECT_EXIT(PushWithFailure(1, 1), testing::ExitedWithCode(1), LowMemoryReport("resrel", 159));
  EXPECT_EXIT(PushWithFailure(2, 1), testing::ExitedWithCode(1), LowMemoryReport("resrel", 172));
  EXPECT_EXIT((PushWithFailure(3, 20), std::exit(7)), testing::ExitedWithCode(7), "");
  EXPECT_EXIT(PushWithFailure(3, 21), testing::ExitedWithCode(1), LowMemoryReport("resrel", 159));
}

TEST(Heap, EveryBlockOfASplitIsReleased) {
  const std::size_t before = LiveBlocks();
  {
    TextList fields;
    SplitFields("a;b;;c;d;e;f;g;h;i;j;k;l", ";", fields);
    SplitFields("a  b", " ", fields);
    EXPECT_GT(LiveBlocks(), before);
  }
  EXPECT_EQ(LiveBlocks(), before);
}

TEST(Heap, EveryBlockOfAnArrayIsReleased) {
  const std::size_t before = LiveBlocks();
  Numbers numbers;
  for (std::int32_t i = 0; i < 100; ++i)
    ArrayInsertAt(numbers.count, numbers.capacity, GROWTH, numbers.storage, sizeof i, 0, &i);
  EXPECT_EQ(LiveBlocks(), before + 1);
  HeapRelease(numbers.storage);
  EXPECT_EQ(LiveBlocks(), before);
}

}  // namespace
}  // namespace lttools
