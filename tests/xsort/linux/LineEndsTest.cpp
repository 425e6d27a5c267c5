// LineEndsTest.cpp - lines that end by CR LF: the carriage return stays in the element.
#include "tests/xsort/XsortFixture.h"

namespace xsort {
namespace {

using XsortLineEndsTest = XsortTest;

TEST_F(XsortLineEndsTest, CarriageReturnBelongsToTheElement) {
  ASSERT_EQ(LoadText("a\r\nb\r\n"), 0);
  EXPECT_EQ(Key("a\rb\r"), "\1\2");
  EXPECT_EQ(Key("ab"), "\4\4");
}

}  // namespace
}  // namespace xsort
