// KeptExceptionTest.cpp - exceptions carried past modules.
#include <new>

#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/modules/KeptException.h"

namespace teskarlt {
namespace {

TEST(KeptException, AnswerOfWorkThatSucceedsIsGiven) {
  EXPECT_EQ(AnswerModule(-1, [] { return 7; }), 7);
  EXPECT_NO_THROW(RethrowKeptException());
}

TEST(KeptException, LackOfMemoryStaysLackOfMemory) {
  EXPECT_EQ(AnswerModule(-1, []() -> int { throw std::bad_alloc(); }), -1);
  EXPECT_THROW(RethrowKeptException(), std::bad_alloc);
}

TEST(KeptException, FirstOfSeveralIsThrownOnce) {
  WorkForModule([] { throw std::bad_alloc(); });
  WorkForModule([] { throw Error("a consequence"); });
  EXPECT_THROW(RethrowKeptException(), std::bad_alloc);
  EXPECT_NO_THROW(RethrowKeptException());
}

}  // namespace
}  // namespace teskarlt
