// PngTest.cpp - the chunks of a PNG file.
#include <gtest/gtest.h>

#include "teskarlt/preview/Png.h"

namespace teskarlt::preview {
namespace {

TEST(Png, StartsWithSignatureAndHeader) {
  const std::string file = Png({2, 1, {1, 2, 3, 4, 5, 6}});
  EXPECT_EQ(file.substr(0, 8), "\x89PNG\r\n\x1a\n");
  EXPECT_EQ(file.substr(8, 25),
            std::string("\0\0\0\x0dIHDR\0\0\0\2\0\0\0\1\x08\2\0\0\0\x7b\x40\xe8\xdd", 25));
}

TEST(Png, EndsWithAnEmptyChunk) {
  const std::string file = Png({1, 1, {0, 0, 0}});
  EXPECT_EQ(file.substr(file.size() - 12), std::string("\0\0\0\0IEND\xae\x42\x60\x82", 12));
}

}  // namespace
}  // namespace teskarlt::preview
