// CPtrArrayTest.cpp - the array of pointers and its checked access.
#include <gtest/gtest.h>

#include "platform/CPtrArray.h"

namespace {

class CPtrArrayOfThree : public testing::Test {
 protected:
  CPtrArrayOfThree() {
    for (int& number : numbers)
      array.Add(&number);
  }
  int numbers[3] = {10, 11, 12};
  CPtrArray array;
};

TEST_F(CPtrArrayOfThree, CountIsSigned64Bit) {
  static_assert(std::is_same_v<decltype(array.GetCount()), std::int64_t>);
  EXPECT_EQ(array.GetCount(), 3);
}

TEST_F(CPtrArrayOfThree, AddReturnsThePosition) {
  EXPECT_EQ(array.Add(nullptr), 3);
}

TEST_F(CPtrArrayOfThree, AccessOutsideRaisesTheInvalidArgumentException) {
  EXPECT_EQ(array.GetAt(2), &numbers[2]);
  EXPECT_THROW(array.GetAt(-1), CInvalidArgException);
  EXPECT_THROW(array.GetAt(3), CInvalidArgException);
  EXPECT_THROW(array.SetAt(3, nullptr), CInvalidArgException);
}

TEST_F(CPtrArrayOfThree, SetAtReplacesAnElement) {
  array.SetAt(1, nullptr);
  EXPECT_EQ(array.GetAt(1), nullptr);
}

TEST_F(CPtrArrayOfThree, RemovedElementLetsTheLaterOnesMoveDown) {
  array.RemoveAt(0, 1);
  EXPECT_EQ(array.GetCount(), 2);
  EXPECT_EQ(array.GetAt(0), &numbers[1]);
  EXPECT_EQ(array.GetAt(1), &numbers[2]);
}

TEST_F(CPtrArrayOfThree, RemovingOutsideRaisesTheInvalidArgumentException) {
  EXPECT_THROW(array.RemoveAt(-1), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(3), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(2, 2), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(0, -1), CInvalidArgException);
  EXPECT_EQ(array.GetCount(), 3);
}

TEST_F(CPtrArrayOfThree, NamesItsClassAtRunTime) {
  EXPECT_STREQ(array.GetRuntimeClass()->m_lpszClassName, "CPtrArray");
}

}  // namespace
