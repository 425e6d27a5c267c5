// LineEndsTest.cpp - lines that end by CR LF: reading as text takes the carriage return away.
#include "tests/xsort/XsortFixture.h"

namespace xsort {
namespace {

using XsortLineEndsTest = XsortTest;

TEST_F(XsortLineEndsTest, CarriageReturnEndsTheElement) {
  ASSERT_EQ(LoadText("a\r\nb\r\n"), 0);
  EXPECT_EQ(Key("ab"), "\1\2");
}

}  // namespace
}  // namespace xsort
