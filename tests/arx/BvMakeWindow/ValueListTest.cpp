// ValueListTest.cpp - making, copying and releasing the nodes and texts of typed value lists.
#include <csetjmp>
#include <cstring>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "arx/BvMakeWindow/ListBuilder.h"
#include "arx/BvMakeWindow/ValueNodes.h"
#include "inc/ValueList.h"
#include "lttools/Err.h"
#include "platform/Heap.h"
#include "tests/support/CountingHeap.h"

namespace brevanta {
namespace {

class ValueList : public testing::Test {
 protected:
  void SetUp() override {
    counting_heap::Reset();
    blocksBefore_ = counting_heap::LiveBlocks();
  }
  void TearDown() override { EXPECT_EQ(counting_heap::LiveBlocks(), blocksBefore_) << "blocks left behind"; }

  static ValueNode* TextNode(std::int16_t code, const char* text) {
    ValueNode* node = NewValueNode(code);
    node->value.text = text == nullptr ? nullptr : CopyValueString(text);
    return node;
  }

 private:
  std::size_t blocksBefore_ = 0;
};

TEST_F(ValueList, NewNodeHasItsCodeAndEndsTheList) {
  ValueNode* node = NewValueNode(-3);
  EXPECT_EQ(node->typeCode, -3);
  EXPECT_EQ(node->next, nullptr);
  EXPECT_EQ(counting_heap::BlockSize(node), 40U);
  EXPECT_EQ(ReleaseValueList(node, false), 5100);
}

TEST_F(ValueList, ReleasingAnEmptyListDoesNothing) {
  EXPECT_EQ(ReleaseValueList(nullptr, false), 5100);
  EXPECT_EQ(ReleaseValueList(nullptr, true), 5100);
  EXPECT_EQ(counting_heap::Releases(), 0);
}

TEST_F(ValueList, TextIsReleasedWithItsNode) {
  ReleaseValueList(TextNode(1000, "Roof"), false);
  EXPECT_EQ(counting_heap::Releases(), 2);
}

TEST_F(ValueList, NullTextReleasesTheNodeAlone) {
  ReleaseValueList(TextNode(1, nullptr), false);
  EXPECT_EQ(counting_heap::Releases(), 1);
}

TEST_F(ValueList, HandleTextIsReleasedLikeAnyText) {
  ReleaseValueList(TextNode(5, "2F"), true);
  EXPECT_EQ(counting_heap::Releases(), 2);
}

TEST_F(ValueList, ChunkIsReleasedWithItsNode) {
  ValueNode* node = NewValueNode(1004);
  node->value.chunk.length = 3;
  node->value.chunk.data = static_cast<unsigned char*>(DupBytes("abc", 3));
  ReleaseValueList(node, true);
  EXPECT_EQ(counting_heap::Releases(), 2);
}

TEST_F(ValueList, NullChunkReleasesTheNodeAlone) {
  ValueNode* node = NewValueNode(310);
  node->value.chunk = {0, nullptr};
  ReleaseValueList(node, false);
  EXPECT_EQ(counting_heap::Releases(), 1);
}

TEST_F(ValueList, OtherKindsOwnNothing) {
  for (const int code : {-3, 10, 40, 50, 60, 80, 90, 160, 290, 370, 5006, 5024}) {
    ValueNode* node = NewValueNode(static_cast<std::int16_t>(code));
    std::memset(&node->value, 0xCD, sizeof node->value);
    counting_heap::Reset();
    ReleaseValueList(node, false);
    EXPECT_EQ(counting_heap::Releases(), 1) << "code " << code;
  }
}

TEST_F(ValueList, KeptReferencesLeaveReferenceTextsAlone) {
  ValueNode* reference = TextNode(330, "1A");
  char* kept = reference->value.text;
  ReleaseValueList(reference, true);
  EXPECT_STREQ(kept, "1A");
  HeapRelease(kept);
}

TEST_F(ValueList, KeptReferencesStillReleaseOtherTexts) {
  ReleaseValueList(TextNode(1000, "Roof"), true);
  EXPECT_EQ(counting_heap::Releases(), 2);
}

TEST_F(ValueList, FreeingReleasesReferenceTextsToo) {
  FreeValueList(TextNode(390, "1A"));
  EXPECT_EQ(counting_heap::Releases(), 2);
}

TEST_F(ValueList, BuilderLinksGroupsInTheOrderOfTheirCalls) {
  ListBuilder list(0, "LINE");
  list.Point(10, 1, 2, 3);
  list.Real(1040, 0.5);
  list.Short(1070, 0x12348765);
  list.Marker(-3);
  const ValueNode* node = list.Head();
  EXPECT_STREQ(node->value.text, "LINE");
  node = node->next;
  EXPECT_THAT(node->value.point, testing::ElementsAre(1, 2, 3));
  node = node->next;
  EXPECT_EQ(node->value.real, 0.5);
  node = node->next;
  EXPECT_EQ(node->value.shortInteger, -30875);  // 0x8765, the low half
  node = node->next;
  EXPECT_EQ(node->typeCode, -3);
  EXPECT_EQ(node, list.Tail());
  EXPECT_EQ(node->next, nullptr);
  FreeValueList(list.Head());
}

TEST_F(ValueList, CopiedTextTakesItsLengthAndATerminator) {
  char* copy = CopyValueString("DASHED");
  EXPECT_STREQ(copy, "DASHED");
  EXPECT_EQ(counting_heap::BlockSize(copy), 7U);
  HeapRelease(copy);
}

TEST_F(ValueList, CopyOfAnEmptyTextIsATerminator) {
  char* copy = CopyValueString("");
  EXPECT_STREQ(copy, "");
  EXPECT_EQ(counting_heap::BlockSize(copy), 1U);
  HeapRelease(copy);
}

TEST_F(ValueList, DuplicatedTextsAreFreshCopies) {
  char* copy = DupString("Roof");
  EXPECT_STREQ(copy, "Roof");
  EXPECT_EQ(counting_heap::BlockSize(copy), 5U);
  HeapRelease(copy);
}

TEST_F(ValueList, DuplicateOfNoTextIsAFreshEmptyText) {
  char* copy = DupString(nullptr);
  EXPECT_STREQ(copy, "");
  EXPECT_EQ(counting_heap::BlockSize(copy), 1U);
  HeapRelease(copy);
}

TEST_F(ValueList, DuplicatedWideTextTakesTwoBytesACharacter) {
  char16_t* copy = DupWideString(u"st\u0159echa");
  EXPECT_EQ(std::u16string(copy), u"st\u0159echa");
  EXPECT_EQ(counting_heap::BlockSize(copy), 16U);
  HeapRelease(copy);
}

TEST_F(ValueList, DuplicateOfNoWideTextIsAFreshEmptyText) {
  char16_t* copy = DupWideString(nullptr);
  EXPECT_EQ(copy[0], u'\0');
  EXPECT_EQ(counting_heap::BlockSize(copy), 2U);
  HeapRelease(copy);
}

TEST_F(ValueList, DuplicatedBytesMayHoldZeros) {
  auto* copy = static_cast<unsigned char*>(DupBytes("a\0b", 3));
  EXPECT_EQ(std::memcmp(copy, "a\0b", 3), 0);
  EXPECT_EQ(counting_heap::BlockSize(copy), 3U);
  HeapRelease(copy);
}

TEST_F(ValueList, DuplicateOfNoBytesIsNull) {
  EXPECT_EQ(DupBytes(nullptr, 5), nullptr);
  EXPECT_EQ(counting_heap::Allocations(), 0);
}

TEST_F(ValueList, DuplicatesGiveNullWhenTheHeapIsExhausted) {
  counting_heap::FailAllocation(1);
  EXPECT_EQ(DupString("Roof"), nullptr);
  counting_heap::FailAllocation(1);
  EXPECT_EQ(DupWideString(u"Roof"), nullptr);
  counting_heap::FailAllocation(1);
  EXPECT_EQ(DupBytes("Roof", 4), nullptr);
}

std::string WithoutCarriageReturns(std::string text) {
  std::erase(text, '\r');
  return text;
}

constexpr const char* LOW_MEMORY_REPORT =
    "\n\nFATAL ERROR on line 40 of 'BvMakeWindow'\n  'Low memory'\n\nABORTING EXECUTION\n";

using ValueListDeathTest = ValueList;

TEST_F(ValueListDeathTest, TextThatCannotBeCopiedEndsTheProcess) {
  EXPECT_EXIT(
      {
        counting_heap::FailAllocation(1);
        CopyValueString("Roof");
      },
      testing::ExitedWithCode(1), testing::ResultOf(WithoutCarriageReturns, testing::Eq(LOW_MEMORY_REPORT)));
}

TEST_F(ValueListDeathTest, FourthAllocationOfAListEndsTheProcess) {
  EXPECT_EXIT(
      {
        counting_heap::FailAllocation(4);  // node and text of the head, node, text
        ListBuilder list(0, "LINE");
        list.Text(8, "ROOF");
      },
      testing::ExitedWithCode(1), testing::ResultOf(WithoutCarriageReturns, testing::Eq(LOW_MEMORY_REPORT)));
}

// A caught report never comes back to the copy: the second stop behind it, with status 0, is not reached.
TEST_F(ValueListDeathTest, CaughtReportLandsInTheCatcherAndPrintsNothing) {
  EXPECT_EXIT(
      {
        const int caught = setjmp(lttools::ErrJump);
        if (caught != 0) std::_Exit(40 + caught);
        lttools::ErrJumpArmed = 1;
        counting_heap::FailAllocation(1);
        CopyValueString("Roof");
      },
      testing::ExitedWithCode(41), testing::Eq(""));
}

}  // namespace
}  // namespace brevanta
