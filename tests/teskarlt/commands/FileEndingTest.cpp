// FileEndingTest.cpp - the format that a file's name says.
#include <gtest/gtest.h>

#include "teskarlt/commands/FileEnding.h"

namespace teskarlt {
namespace {

constexpr const char* FORMATS[] = {"csv", "html"};

TEST(FormatByEnding, IsWhatStandsBehindTheLastDotInAnyCase) {
  EXPECT_STREQ(FormatByEnding("windows.csv", FORMATS), "csv");
  EXPECT_STREQ(FormatByEnding("house.csv.HTML", FORMATS), "html");
}

TEST(FormatByEnding, OtherEndingsNameNone) {
  for (const char* const path : {"windows", "windows.", "windows.xcsv", "csv", ""})
    EXPECT_EQ(FormatByEnding(path, FORMATS), nullptr) << path;
}

}  // namespace
}  // namespace teskarlt
