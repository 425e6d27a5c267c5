// PipeTest.cpp - a pipe in place of a table file: it has no size.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/xsort/XsortFixture.h"

namespace xsort {
namespace {

using XsortPipeTest = XsortTest;

TEST_F(XsortPipeTest, PipeIsRefused) {
  ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);
  const int writer = open(Path().c_str(), O_RDWR);  // so that opening for reading does not wait
  ASSERT_GE(writer, 0);
  EXPECT_EQ(Load(), -1);
  close(writer);
}

}  // namespace
}  // namespace xsort
