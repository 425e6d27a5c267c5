// PictureSizeTest.cpp - sizes of pictures as users say them.
#include <gtest/gtest.h>

#include "teskarlt/commands/PictureSize.h"
#include "teskarlt/terminal/Options.h"

namespace teskarlt {
namespace {

TEST(PictureSize, IsWidthAndHeight) {
  EXPECT_EQ(ReadPictureSize("1600x900"), (PictureSize{1600, 900}));
  EXPECT_EQ(ReadPictureSize("100x10000"), (PictureSize{100, 10000}));
}

TEST(PictureSize, AnythingElseIsWrongUsage) {
  for (const char* const text : {"", "1600", "1600x", "x900", "1600x900x", "1600 x 900", "99x900",
                                 "1600x10001", "-1600x900", "1600.5x900", "99999999999x900"})
    EXPECT_THROW(ReadPictureSize(text), UsageError) << text;
}

}  // namespace
}  // namespace teskarlt
