// ErrorTest.cpp - the sentence of an error and what it is about.
#include <gtest/gtest.h>

#include "platform/Error.h"

namespace platform {
namespace {

using Unit = ErrorPlace::Unit;

TEST(Error, SentenceStandsAloneWithoutAFile) {
  EXPECT_STREQ(Error("no roof").what(), "no roof");
  EXPECT_STREQ(Error("no roof", {.value = "2F"}).what(), "no roof");
}

TEST(Error, PlaceStandsBeforeTheSentence) {
  EXPECT_STREQ(Error("is cut short", {.file = "a.dxf"}).what(), "a.dxf: is cut short");
  EXPECT_STREQ(Error("no code", {.file = "a.dxf", .unit = Unit::Line, .position = 7}).what(),
               "a.dxf:7: no code");
  EXPECT_STREQ(Error("no code", {.file = "a.dxf", .unit = Unit::Byte, .position = 0}).what(),
               "a.dxf: byte 0: no code");
}

TEST(Error, PartsCanBeHadOneByOne) {
  const Error error("no code", {.file = "a.dxf", .unit = Unit::Line, .position = 7, .value = "x"});
  EXPECT_EQ(error.Message(), "no code");
  EXPECT_EQ(error.Place().file, "a.dxf");
  EXPECT_EQ(error.Place().position, 7U);
  EXPECT_EQ(error.Place().value, "x");
}

}  // namespace
}  // namespace platform
