// CaughtReportsTest.cpp - every fatal report of the support library, caught by the armed jump.
#include <csetjmp>
#include <cstdint>

#include <gtest/gtest.h>

#include "lttools/Err.h"
#include "lttools/SUPP.h"
#include "lttools/resrel.h"
#include "platform/Heap.h"
#include "tests/support/CountingHeap.h"

namespace lttools {
namespace {

using counting_heap::FailAllocation;

constexpr std::int32_t GROWTH = 10;

// An array of one number.
struct Numbers {
  std::int32_t count = 0;
  std::int32_t capacity = 0;
  void* storage = nullptr;
};

Numbers numbers;
void* owner = nullptr;

void Append(int allocation) {
  const std::int32_t value = 1;
  FailAllocation(allocation);
  ArrayAppend(numbers.count, numbers.capacity, GROWTH, numbers.storage, sizeof value, &value);
}
void InsertAt(std::int32_t index, int allocation) {
  const std::int32_t value = 1;
  FailAllocation(allocation);
  ArrayInsertAt(numbers.count, numbers.capacity, GROWTH, numbers.storage, sizeof value, index, &value);
}

void AppendCopy() {
  Append(1);
}
void AppendStorage() {
  Append(2);
}
void InsertCopy() {
  InsertAt(0, 1);
}
void InsertStorage() {
  InsertAt(0, 2);
}
void InsertBeyond() {
  InsertAt(1, 0);
}
void RemoveBeyond() {
  ArrayRemoveAt(numbers.count, numbers.storage, sizeof(std::int32_t), 1);
}
void Create() {
  std::int32_t growth = 0;
  FailAllocation(1);
  ArrayCreate(numbers.storage, numbers.count, numbers.capacity, growth, 4, nullptr, 0, 5, GROWTH);
}
void Resize() {
  FailAllocation(1);
  ArrayResize(5, 4, numbers.capacity, numbers.storage);
}
void Duplicate() {
  FailAllocation(1);
  DupSubstring("abc", 3);
}
void ReleaseNothing() {
  ResRelease();
}
void LeaveOne() {
  ResPush(static_cast<void*>(&owner), RES_HEAP_BLOCK);
  ResCheckEmpty();
}

struct FatalCase {
  const char* name;
  void (*raise)();
  const char* file;
  std::int32_t line;
  const char* message;
};

void PrintTo(const FatalCase& c, std::ostream* out) {
  *out << c.name;
}

int CaughtKind(void (*raise)()) {
  const int caught = setjmp(ErrJump);
  if (caught == 0) {
    ErrJumpArmed = 1;
    raise();
  }
  ErrJumpArmed = 0;
  return caught;
}

class CaughtReport : public testing::TestWithParam<FatalCase> {
 protected:
  void SetUp() override { numbers = Numbers{}; }
  void TearDown() override { counting_heap::Reset(); }
};

TEST_P(CaughtReport, LandsAtTheCatcherWithItsSiteAndMessage) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(CaughtKind(GetParam().raise), ERR_FATAL);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_STREQ(ErrFile, GetParam().file);
  EXPECT_EQ(ErrLine, GetParam().line);
  EXPECT_STREQ(ErrMessage, GetParam().message);
  if (GetParam().raise == LeaveOne) ResRelease();
}

TEST_P(CaughtReport, LeavesNoBlockBehind) {
  ResPush(static_cast<void*>(&owner), RES_HEAP_BLOCK);  // the stack's own storage stays once it is there
  ResRelease();
  const std::size_t before = counting_heap::LiveBlocks();
  CaughtKind(GetParam().raise);
  if (GetParam().raise == LeaveOne) ResRelease();
  EXPECT_EQ(counting_heap::LiveBlocks(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Fatal, CaughtReport,
    testing::Values(FatalCase{"AppendCopy", AppendCopy, "resrel", 159, "Low memory"},
                    FatalCase{"AppendStorage", AppendStorage, "resrel", 172, "Low memory"},
                    FatalCase{"InsertCopy", InsertCopy, "resrel", 201, "Low memory"},
                    FatalCase{"InsertStorage", InsertStorage, "resrel", 210, "Low memory"},
                    FatalCase{"InsertBeyond", InsertBeyond, "resrel", 197, "Index outside range"},
                    FatalCase{"RemoveBeyond", RemoveBeyond, "resrel", 233, "Index outside range"},
                    FatalCase{"Create", Create, "resrel", 263, "Low memory"},
                    FatalCase{"Resize", Resize, "resrel", 296, "Low memory"},
                    FatalCase{"Duplicate", Duplicate, "SUPP", 98, "Low memory"},
                    FatalCase{"ReleaseNothing", ReleaseNothing, "resrel", 109, "Releasing too much!"},
                    FatalCase{"LeaveOne", LeaveOne, "resrel", 137,
                              "Resources releasing failed, cur_resource = 1"}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace lttools
