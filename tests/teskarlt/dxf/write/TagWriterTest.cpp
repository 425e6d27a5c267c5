// TagWriterTest.cpp - how tags and numbers are written.
#include <bit>
#include <clocale>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/write/TagWriter.h"

namespace teskarlt::dxf {
namespace {

std::string Written(double value) {
  std::string out;
  TagWriter(out, "\n").Real(40, value);
  return out.substr(4, out.size() - 5);
}

TEST(TagWriter, CodesArePaddedToThreeColumns) {
  std::string out;
  TagWriter writer(out, "\n");
  writer.Text(0, "LINE");
  writer.Text(10, "x");
  writer.Text(100, "AcDbLine");
  writer.Integer(1071, -7);
  EXPECT_EQ(out, "  0\nLINE\n 10\nx\n100\nAcDbLine\n1071\n-7\n");
}

TEST(TagWriter, LineEndIsTheFiles) {
  std::string out;
  TagWriter(out, "\r\n").Text(8, "0");
  EXPECT_EQ(out, "  8\r\n0\r\n");
}

TEST(TagWriter, HandlesAreCapitalHexadecimals) {
  std::string out;
  TagWriter(out, "\n").Handle(5, 0x1abcdef);
  EXPECT_EQ(out, "  5\n1ABCDEF\n");
}

TEST(TagWriter, PointIsThreeTags) {
  std::string out;
  TagWriter(out, "\n").Coordinates(11, {1, 2, 3});
  EXPECT_EQ(out, " 11\n1.0\n 21\n2.0\n 31\n3.0\n");
}

TEST(TagWriter, ExtendedPointIsThreeTags) {
  std::string out;
  TagWriter(out, "\n").Coordinates(1011, {1, 2, 3});
  EXPECT_EQ(out, "1011\n1.0\n1021\n2.0\n1031\n3.0\n");
}

TEST(TagWriterReal, AlwaysHasADecimalPoint) {
  EXPECT_EQ(Written(1), "1.0");
  EXPECT_EQ(Written(0), "0.0");
  EXPECT_EQ(Written(-25), "-25.0");
  EXPECT_EQ(Written(100000), "100000.0");
}

TEST(TagWriterReal, ShortestDigitsThatComeBack) {
  EXPECT_EQ(Written(0.1), "0.1");
  EXPECT_EQ(Written(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(Written(0.1 + 0.2), "0.30000000000000004");
}

TEST(TagWriterReal, UsualSizesHaveNoExponent) {
  EXPECT_EQ(Written(1e-7), "0.0000001");
  EXPECT_EQ(Written(1e17), "100000000000000000.0");
}

TEST(TagWriterReal, ExtremeSizesHaveAnExponent) {
  EXPECT_EQ(Written(1e300), "1.0E+300");
  EXPECT_EQ(Written(-1.5e-300), "-1.5E-300");
}

TEST(TagWriterReal, CommaLocaleDoesNotMatter) {
  for (const char* name : {"cs_CZ.UTF-8", "de_DE.UTF-8", "Czech", "German"})
    std::setlocale(LC_ALL, name);
  EXPECT_EQ(Written(1.5), "1.5");
  std::setlocale(LC_ALL, "C");
}

TEST(TagWriterReal, EveryFiniteNumberComesBack) {
  std::mt19937_64 random(1);
  for (int round = 0; round < 20000; ++round) {
    const auto value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    ASSERT_EQ(ParseReal(Written(value)), value);
  }
  for (const double value : {std::numeric_limits<double>::max(), std::numeric_limits<double>::min(), 1e20,
                             1e-20, std::nextafter(1e20, 0), std::nextafter(1e-20, 1)})
    EXPECT_EQ(ParseReal(Written(value)), value);
}

}  // namespace
}  // namespace teskarlt::dxf
