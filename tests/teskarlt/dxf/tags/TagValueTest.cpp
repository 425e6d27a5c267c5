// TagValueTest.cpp - numbers, handles and names.
#include <clocale>
#include <optional>

#include <gtest/gtest.h>

#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {
namespace {

TEST(ParseReal, PlainNumbers) {
  EXPECT_EQ(ParseReal("1.25"), 1.25);
  EXPECT_EQ(ParseReal("-0.5"), -0.5);
  EXPECT_EQ(ParseReal("12"), 12.0);
}

TEST(ParseReal, BlanksAround) {
  EXPECT_EQ(ParseReal("   7.5 \t"), 7.5);
}

TEST(ParseReal, LeadingPlus) {
  EXPECT_EQ(ParseReal("+7.5"), 7.5);
}

TEST(ParseReal, DigitsOnOneSideOfThePoint) {
  EXPECT_EQ(ParseReal("1."), 1.0);
  EXPECT_EQ(ParseReal(".5"), 0.5);
  EXPECT_EQ(ParseReal("-.5"), -0.5);
}

TEST(ParseReal, ExponentsWithEAndD) {
  EXPECT_EQ(ParseReal("1.5E+02"), 150.0);
  EXPECT_EQ(ParseReal("1.5e-2"), 0.015);
  EXPECT_EQ(ParseReal("1.5D+02"), 150.0);
  EXPECT_EQ(ParseReal("1d3"), 1000.0);
}

TEST(ParseReal, NumberTooSmallIsZero) {
  EXPECT_EQ(ParseReal("1E-400"), 0.0);
}

TEST(ParseReal, NotFiniteIsRefused) {
  EXPECT_EQ(ParseReal("nan"), std::nullopt);
  EXPECT_EQ(ParseReal("inf"), std::nullopt);
  EXPECT_EQ(ParseReal("-infinity"), std::nullopt);
  EXPECT_EQ(ParseReal("1E400"), std::nullopt);
}

TEST(ParseReal, MalformedIsRefused) {
  for (const char* text :
       {"", " ", "+", "-", ".", "1,5", "1.5 mm", "++1", "+-1", "0x10", "1e", "d", "1.5dd2"})
    EXPECT_EQ(ParseReal(text), std::nullopt) << text;
}

TEST(ParseReal, CommaLocaleDoesNotMatter) {
  for (const char* name : {"cs_CZ.UTF-8", "de_DE.UTF-8", "Czech", "German"})
    std::setlocale(LC_ALL, name);
  EXPECT_EQ(ParseReal("1.5"), 1.5);
  std::setlocale(LC_ALL, "C");
}

TEST(ParseInteger, SignsAndBlanks) {
  EXPECT_EQ(ParseInteger("     7"), 7);
  EXPECT_EQ(ParseInteger("-1"), -1);
  EXPECT_EQ(ParseInteger("+1"), 1);
}

TEST(ParseInteger, RealWithoutFractionPasses) {
  EXPECT_EQ(ParseInteger("4.0"), 4);
  EXPECT_EQ(ParseInteger("4.5"), std::nullopt);
}

TEST(ParseInteger, MalformedIsRefused) {
  for (const char* text : {"", "x", "1x", "99999999999999999999"})
    EXPECT_EQ(ParseInteger(text), std::nullopt) << text;
}

TEST(ParseHandle, HexadecimalInEitherCase) {
  EXPECT_EQ(ParseHandle("1F"), 0x1FU);
  EXPECT_EQ(ParseHandle(" abc "), 0xABCU);
  EXPECT_EQ(ParseHandle("FFFFFFFFFFFFFFFF"), 0xFFFFFFFFFFFFFFFFU);
}

TEST(ParseHandle, MalformedIsRefused) {
  for (const char* text : {"", "odd", "0x1F", "-1", "10000000000000000"})
    EXPECT_EQ(ParseHandle(text), std::nullopt) << text;
}

TEST(SameName, CaseOfLettersDoesNotMatter) {
  EXPECT_TRUE(SameName("Dashed", "DASHED"));
  EXPECT_FALSE(SameName("DASHED", "DASHED2"));
  EXPECT_FALSE(SameName("@", "`"));
}

}  // namespace
}  // namespace teskarlt::dxf
