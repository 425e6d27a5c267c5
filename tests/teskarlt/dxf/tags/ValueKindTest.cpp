// ValueKindTest.cpp - kinds of values by group code.
#include <gtest/gtest.h>

#include "teskarlt/dxf/tags/ValueKind.h"

namespace teskarlt::dxf {
namespace {

TEST(KindOf, CodesOfFacesAndLines) {
  EXPECT_EQ(KindOf(0), ValueKind::Text);
  EXPECT_EQ(KindOf(5), ValueKind::Handle);
  EXPECT_EQ(KindOf(8), ValueKind::Text);
  EXPECT_EQ(KindOf(10), ValueKind::Point);
  EXPECT_EQ(KindOf(20), ValueKind::Real);
  EXPECT_EQ(KindOf(62), ValueKind::Integer16);
  EXPECT_EQ(KindOf(70), ValueKind::Integer16);
  EXPECT_EQ(KindOf(100), ValueKind::Text);
  EXPECT_EQ(KindOf(310), ValueKind::Binary);
  EXPECT_EQ(KindOf(330), ValueKind::Handle);
  EXPECT_EQ(KindOf(481), ValueKind::Handle);
}

TEST(KindOf, CodesOfExtendedData) {
  EXPECT_EQ(KindOf(1000), ValueKind::Text);
  EXPECT_EQ(KindOf(1001), ValueKind::Text);
  EXPECT_EQ(KindOf(1004), ValueKind::Binary);
  EXPECT_EQ(KindOf(1011), ValueKind::Point);
  EXPECT_EQ(KindOf(1040), ValueKind::Real);
  EXPECT_EQ(KindOf(1042), ValueKind::Real);
  EXPECT_EQ(KindOf(1070), ValueKind::Integer16);
  EXPECT_EQ(KindOf(1071), ValueKind::Integer32);
}

TEST(KindOf, OtherCodesHaveNone) {
  for (const int code : {-5, -3, -1, 80, 103, 150, 999, 1072, 5001, 5023})
    EXPECT_EQ(KindOf(code), ValueKind::None) << code;
}

}  // namespace
}  // namespace teskarlt::dxf
