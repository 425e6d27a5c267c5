// Vec3Test.cpp - elementary operations on points and vectors.
#include "geometry/Vec3.h"

#include <gtest/gtest.h>

namespace geometry {
namespace {

TEST(VecNormalize, VectorShorterThanToleranceIsRefusedAndOutputUntouched) {
  Vec3 out{7, 8, 9};
  EXPECT_EQ(VecNormalize({0.00005, 0, 0}, out), -1);
  EXPECT_EQ(out.x, 7);
  EXPECT_EQ(out.y, 8);
  EXPECT_EQ(out.z, 9);
}

}  // namespace
}  // namespace geometry
