// ResourceStackTest.cpp - groups of pointer variables released together.
#include <cstring>

#include <gtest/gtest.h>

#include "inc/ValueNode.h"
#include "lttools/Err.h"
#include "lttools/resrel.h"
#include "platform/Heap.h"

namespace lttools {
namespace {

constexpr const char* TOO_CLOSE =
    "\n\nNORMAL on line 75 of 'resrel'\n  'Resource releasing will fail under MSVC++ v1.10.'\n\n";

// Pointer variables 16 bytes apart, far enough not to join each other's group.
struct alignas(16) Resource {
  void* pointer = nullptr;
};

TEST(ResPush, ReturnsTheSameClearedScratchWord) {
  Resource resources[2];
  std::int64_t* scratch = ResPush(&resources[0].pointer, RES_HEAP_BLOCK);
  EXPECT_EQ(*scratch, 0);
  *scratch = 5;
  EXPECT_EQ(ResPush(&resources[1].pointer, RES_HEAP_BLOCK), scratch);
  EXPECT_EQ(*scratch, 0);
  ResRelease();
  ResRelease();
}

TEST(ResRelease, VariablesSixteenBytesApartAreGroupsOfTheirOwn) {
  Resource resources[2];
  resources[0].pointer = HeapAllocate(8);
  resources[1].pointer = HeapAllocate(8);
  ResPush(&resources[0].pointer, RES_HEAP_BLOCK);
  ResPush(&resources[1].pointer, RES_HEAP_BLOCK);
  EXPECT_EQ(ResRelease(), 1);
  EXPECT_EQ(resources[1].pointer, nullptr);
  EXPECT_NE(resources[0].pointer, nullptr);
  EXPECT_EQ(ResRelease(), 1);
  EXPECT_EQ(resources[0].pointer, nullptr);
  ResCheckEmpty();
}

TEST(ResPush, VariableWithinFourBytesWarnsAndJoinsTheGroupBelow) {
  alignas(8) unsigned char bytes[12] = {};
  testing::internal::CaptureStderr();
  ResPush(bytes, RES_HEAP_BLOCK);
  ResPush(bytes + 4, RES_HEAP_BLOCK);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), TOO_CLOSE);
  EXPECT_EQ(ResRelease(), 1);  // both at once
  ResCheckEmpty();
}

TEST(ResPush, TheDistanceCountsInBothDirections) {
  alignas(8) unsigned char bytes[12] = {};
  testing::internal::CaptureStderr();
  ResPush(bytes + 4, RES_HEAP_BLOCK);
  ResPush(bytes, RES_HEAP_BLOCK);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), TOO_CLOSE);
  ResRelease();
  ResCheckEmpty();
}

TEST(ResPush, VariableFiveBytesAwayOpensAGroupOfItsOwnWithoutAWarning) {
  alignas(8) unsigned char bytes[13] = {};
  testing::internal::CaptureStderr();
  ResPush(bytes, RES_HEAP_BLOCK);
  ResPush(bytes + 5, RES_HEAP_BLOCK);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  ResRelease();
  ResRelease();
  ResCheckEmpty();
}

TEST(ResPush, OnlyTheTopmostVariableIsCompared) {
  Resource resources[2];
  testing::internal::CaptureStderr();
  ResPush(&resources[0].pointer, RES_HEAP_BLOCK);
  ResPush(&resources[1].pointer, RES_HEAP_BLOCK);
  ResPush(&resources[0].pointer, RES_HEAP_BLOCK);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  ResRelease();
  ResRelease();
  ResRelease();
}

TEST(ResPush, TwentyFirstVariableGrowsTheStack) {
  Resource resources[45];
  for (Resource& resource : resources) {
    resource.pointer = HeapAllocate(1);
    ResPush(&resource.pointer, RES_HEAP_BLOCK);
  }
  for (int i = 44; i >= 0; --i) {
    ResRelease();
    EXPECT_EQ(resources[i].pointer, nullptr);
  }
  ResCheckEmpty();
}

TEST(ResRelease, ReleasesWhatTheVariableHoldsAtThatTime) {
  Resource resource;
  ResPush(&resource.pointer, RES_HEAP_BLOCK);
  resource.pointer = HeapAllocate(16);
  ResRelease();
  EXPECT_EQ(resource.pointer, nullptr);
}

TEST(ResRelease, ValueListIsReleasedNodeByNodeWithItsTexts) {
  brevanta::ValueNode* list = nullptr;
  for (int i = 0; i < 3; ++i) {
    auto* node = static_cast<brevanta::ValueNode*>(HeapAllocate(sizeof(brevanta::ValueNode)));
    node->next = list;
    node->typeCode = 330;  // a reference: released too
    node->value.text = static_cast<char*>(HeapAllocate(4));
    std::memcpy(node->value.text, "1A2", 4);
    list = node;
  }
  ResPush(static_cast<void*>(&list), RES_VALUE_LIST);
  EXPECT_EQ(ResRelease(), 1);
  EXPECT_EQ(list, nullptr);
}

TEST(ResReleaseDeathTest, EmptyStackIsFatal) {
  EXPECT_EXIT(ResRelease(), testing::ExitedWithCode(1),
              "FATAL ERROR on line 109 of 'resrel'\n  'Releasing too much!'\n\nABORTING EXECUTION\n");
}

TEST(ResPushDeathTest, UnknownTypeIsFatal) {
  Resource resource;
  EXPECT_EXIT(ResPush(&resource.pointer, 3), testing::ExitedWithCode(1),
              "FATAL ERROR on line 96 of 'resrel'\n  'Wrong resource type: 3'\n\nABORTING EXECUTION\n");
}

// Pushes a variable of an unknown type and catches the report.
void PushUnknownType(void* owner) {
  if (setjmp(ErrJump) == 0) {
    ErrJumpArmed = 1;
    ResPush(owner, 3);
  }
  ErrJumpArmed = 0;
}

TEST(ResReleaseDeathTest, UnknownTypeWasPushedAllTheSameAndIsFatalAgain) {
  Resource resource;
  EXPECT_EXIT(
      {
        PushUnknownType(&resource.pointer);
        ResRelease();
      },
      testing::ExitedWithCode(1),
      "FATAL ERROR on line 127 of 'resrel'\n  'Wrong resource type: 3'\n\nABORTING EXECUTION\n");
}

TEST(ResCheckEmptyDeathTest, LeftVariablesAreFatalWithTheirNumber) {
  Resource resources[2];
  EXPECT_EXIT(
      {
        ResPush(&resources[0].pointer, RES_HEAP_BLOCK);
        ResPush(&resources[1].pointer, RES_HEAP_BLOCK);
        ResCheckEmpty();
      },
      testing::ExitedWithCode(1),
      "FATAL ERROR on line 137 of 'resrel'\n  'Resources releasing failed, cur_resource = 2'\n\nABORTING");
}

}  // namespace
}  // namespace lttools
