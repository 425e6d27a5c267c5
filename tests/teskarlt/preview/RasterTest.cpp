// RasterTest.cpp - pixels, with hidden surfaces right.
#include <utility>

#include <gtest/gtest.h>

#include "teskarlt/preview/Raster.h"
#include "tests/teskarlt/preview/Drawings.h"

namespace teskarlt::preview {
namespace {

constexpr const char* RED_AND_BLUE = "0 LAYER|2 RED|70 0|62 1|0 LAYER|2 BLUE|70 0|62 5|";

Picture Rendered(const std::string& entities, const char* view) {
  PictureOptions options;
  options.view = FindView(view);
  options.width = 100;
  return Render(SceneOf({.tables = RED_AND_BLUE, .entities = entities}), options);
}

// Red, green and blue at a place of the picture, in shares of its size from the upper left.
std::array<int, 3> At(const Picture& picture, double x, double y) {
  const auto column = static_cast<std::size_t>(picture.width * x);
  const auto row = static_cast<std::size_t>(picture.height * y);
  const std::size_t place = (row * static_cast<std::size_t>(picture.width) + column) * 3;
  return {picture.bytes[place], picture.bytes[place + 1], picture.bytes[place + 2]};
}

bool IsRed(const std::array<int, 3>& pixel) {
  return pixel[0] > pixel[2] + 40;
}

TEST(Render, NearerSurfaceIsSeenWhateverTheOrder) {
  const std::string high = Rectangle("RED", 2, 2, 8, 8, 5);
  const std::string low = Rectangle("BLUE", 0, 0, 10, 10, 1);
  EXPECT_TRUE(IsRed(At(Rendered(high + low, "plan"), 0.55, 0.45)));
  EXPECT_TRUE(IsRed(At(Rendered(low + high, "plan"), 0.55, 0.45)));
  EXPECT_FALSE(IsRed(At(Rendered(high + low, "plan"), 0.15, 0.15)));
}

TEST(Render, SurfacesThatCutThroughEachOtherAreSeenInParts) {
  const std::string falling = "0 3DFACE|8 BLUE|10 0|20 0|30 9|11 0|21 9|31 9|12 9|22 9|32 0|13 9|23 0|33 0|";
  const Picture picture = Rendered(Rectangle("RED", 0, 0, 9, 9, 5) + falling, "plan");
  EXPECT_FALSE(IsRed(At(picture, 0.2, 0.3)));
  EXPECT_TRUE(IsRed(At(picture, 0.8, 0.3)));
}

TEST(Render, WindowOnALargeSlopeIsNotHiddenByIt) {
  const std::string slope = "0 3DFACE|8 BLUE|10 0|20 0|30 0|11 9|21 0|31 0|12 9|22 9|32 9|13 0|23 9|33 9|";
  const std::string window =
      "0 3DFACE|8 RED|10 4|20 1|30 1.1|11 6|21 1|31 1.1|12 6|22 3|32 3.1|13 4|23 3|33 3.1|";
  EXPECT_TRUE(IsRed(At(Rendered(window + slope, "plan"), 0.55, 0.75)));
}

TEST(Render, PictureHasTheGroundAroundTheDrawing) {
  const Picture picture = Rendered(Rectangle("RED", 0, 0, 9, 9, 5), "plan");
  EXPECT_EQ(picture.width, 100);
  EXPECT_EQ(At(picture, 0.01, 0.01), (std::array<int, 3>{236, 239, 241}));
}

// A square of red with so much ground around it as the picture of that size has.
Picture Sized(int width, int height, bool isTransparent) {
  PictureOptions options;
  options.view = FindView("plan");
  options.width = width;
  options.height = height;
  options.isTransparent = isTransparent;
  return Render(SceneOf({.tables = RED_AND_BLUE, .entities = Rectangle("RED", 0, 0, 9, 9, 5)}), options);
}

TEST(Render, DrawingStandsInTheMiddleOfAPictureOfItsOwnSize) {
  for (const auto& [width, height] : {std::pair(300, 100), std::pair(100, 300)}) {
    const Picture picture = Sized(width, height, false);
    EXPECT_EQ(picture.width, width);
    EXPECT_EQ(picture.height, height);
    EXPECT_EQ(picture.bytes.size(), 300U * 100 * 3);
    EXPECT_TRUE(IsRed(At(picture, 0.5, 0.5)));
    EXPECT_EQ(IsRed(At(picture, 0.25, 0.5)), width < height);
    EXPECT_EQ(IsRed(At(picture, 0.75, 0.5)), width < height);
    EXPECT_EQ(IsRed(At(picture, 0.5, 0.25)), width > height);
    EXPECT_EQ(IsRed(At(picture, 0.5, 0.75)), width > height);
  }
}

TEST(Render, TransparentPictureHasNoGround) {
  const Picture picture = Sized(100, 100, true);
  ASSERT_EQ(picture.bytes.size(), 100U * 100 * 4);
  constexpr std::size_t middle = 50 * 100 + 50;
  EXPECT_EQ(picture.bytes[3], 0);
  EXPECT_EQ(picture.bytes[middle * 4 + 3], 255);
  const Picture opaque = Sized(100, 100, false);
  EXPECT_EQ(picture.bytes[middle * 4], opaque.bytes[middle * 3]);
}

TEST(Render, HiddenEdgeIsNotDrawn) {
  const std::string shown = Rectangle("RED", 0, 0, 9, 9, 5);
  const std::string hidden = Rectangle("RED", 0, 0, 9, 9, 5, "|70 15");
  EXPECT_LT(At(Rendered(shown, "plan"), 0.5, 0.04)[0], At(Rendered(hidden, "plan"), 0.5, 0.045)[0]);
}

// How often the pixels of the middle row change from light to dark.
int DarkRunsInTheMiddle(const Picture& picture) {
  int runs = 0;
  bool wasDark = false;
  for (int column = 0; column < picture.width; ++column) {
    const bool isDark = At(picture, (column + 0.5) / picture.width, 0.5)[0] < 130;
    if (isDark && !wasDark) ++runs;
    wasDark = isDark;
  }
  return runs;
}

TEST(Render, DashesOfALineAreToldApart) {
  const Parts line = {.tables = "0 LTYPE|2 T|70 0|49 0.02|49 -0.01|",
                      .entities = Line("A", 0, 0, 10, 0, "|6 T") + Line("A", 0, -3, 0, 3)};
  PictureOptions options;
  options.view = FindView("plan");
  options.width = 200;  // 184 pixels between the margins, in periods of 6
  EXPECT_NEAR(DarkRunsInTheMiddle(Render(SceneOf(line), options)), 184 / 6.0, 2);
}

TEST(Render, OfEquallyNearSurfacesTheFirstIsSeen) {
  const std::string red = Rectangle("RED", 0, 0, 9, 9, 5, "|70 15");
  const std::string blue = Rectangle("BLUE", 0, 0, 9, 9, 5, "|70 15");
  EXPECT_TRUE(IsRed(At(Rendered(red + blue, "plan"), 0.5, 0.4)));
  EXPECT_FALSE(IsRed(At(Rendered(blue + red, "plan"), 0.5, 0.4)));
}

TEST(Render, ThousandsOfSurfacesOverOneAnotherShowTheNearest) {
  std::string entities;
  for (int i = 0; i < 1000; ++i)
    entities += Rectangle("BLUE", 0, 0, 9, 9, i * 0.001);
  entities += Rectangle("RED", 0, 0, 9, 9, 4);
  EXPECT_TRUE(IsRed(At(Rendered(entities, "plan"), 0.5, 0.4)));
}

}  // namespace
}  // namespace teskarlt::preview
