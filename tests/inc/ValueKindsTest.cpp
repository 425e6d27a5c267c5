// ValueKindsTest.cpp - the kind of every type code.
#include <gtest/gtest.h>

#include "inc/ValueList.h"

namespace brevanta {
namespace {

struct Range {
  int first;
  int last;
  std::uint32_t kind;
};

// The codes in rising order without a gap, so that every code has exactly one row.
constexpr Range ALL_CODES[] = {
    {-10, -6, 0x0},        {-5, -4, 0x100},       {-3, -1, 0x910},       {0, 4, 0x100},
    {5, 5, 0x10100},       {6, 9, 0x100},         {10, 19, 0x608},       {20, 49, 0x708},
    {50, 58, 0x20708},     {59, 59, 0x708},       {60, 79, 0x302},       {80, 89, 0x80608},
    {90, 99, 0x204},       {100, 102, 0x100},     {103, 104, 0x80608},   {105, 105, 0x100},
    {106, 109, 0x80608},   {110, 119, 0x608},     {120, 149, 0x708},     {150, 159, 0x80608},
    {160, 169, 0xA08},     {170, 179, 0x302},     {180, 209, 0x80608},   {210, 219, 0x608},
    {220, 239, 0x708},     {240, 269, 0x80608},   {270, 289, 0x402},     {290, 299, 0x802},
    {300, 309, 0x100},     {310, 319, 0x500},     {320, 329, 0x10100},   {330, 369, 0x50100},
    {370, 389, 0x402},     {390, 399, 0x40100},   {400, 409, 0x302},     {410, 419, 0x100},
    {420, 429, 0x204},     {430, 439, 0x100},     {440, 459, 0x204},     {460, 469, 0x708},
    {470, 479, 0x100},     {480, 998, 0x80608},   {999, 1003, 0x100},    {1004, 1004, 0x500},
    {1005, 1005, 0x100},   {1006, 1009, 0x80608}, {1010, 1019, 0x608},   {1020, 1059, 0x708},
    {1060, 1070, 0x302},   {1071, 1071, 0x204},   {1072, 5000, 0x80608}, {5001, 5001, 0x708},
    {5002, 5002, 0x608},   {5003, 5003, 0x302},   {5004, 5004, 0x20708}, {5005, 5005, 0x100},
    {5006, 5006, 0x910},   {5007, 5008, 0x80608}, {5009, 5009, 0x608},   {5010, 5010, 0x204},
    {5011, 5023, 0x80608}, {5024, 5030, 0x0},
};

TEST(TypeCodeKind, EveryCodeHasTheKindOfItsRange) {
  int next = -10;
  for (const Range& range : ALL_CODES) {
    ASSERT_EQ(range.first, next) << "the table has a gap";
    for (; next <= range.last; ++next)
      EXPECT_EQ(TypeCodeKind(next), range.kind) << "code " << next;
  }
  EXPECT_EQ(next, 5031);
}

TEST(TypeCodeKind, CodesFarOutsideTheTableHaveNone) {
  EXPECT_EQ(TypeCodeKind(-32768), 0U);
  EXPECT_EQ(TypeCodeKind(32767), 0U);
}

TEST(SameValueKind, FlagsHaveNoPartInIt) {
  EXPECT_TRUE(SameValueKind(0x50100, 0x100));
}

TEST(SameValueKind, WidthHasNoPartInIt) {
  EXPECT_TRUE(SameValueKind(0x708, 0x700));
}

TEST(SameValueKind, ShortAndInteger16AreTwoKinds) {
  EXPECT_FALSE(SameValueKind(0x302, 0x402));
}

TEST(SameValueKind, CodeWithoutKindHasThePointLayout) {
  EXPECT_TRUE(SameValueKind(TypeCodeKind(80), TypeCodeKind(10)));
}

TEST(SameValueKind, CodeOutsideTheTableMatchesNoKind) {
  for (const std::uint32_t kind :
       {0x100U, 0x204U, 0x302U, 0x402U, 0x500U, 0x608U, 0x708U, 0x802U, 0x910U, 0xA08U}) {
    EXPECT_FALSE(SameValueKind(TypeCodeKind(5024), kind));
  }
}

}  // namespace
}  // namespace brevanta
