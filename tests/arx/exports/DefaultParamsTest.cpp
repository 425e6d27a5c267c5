// DefaultParamsTest.cpp - the defaults of a window record.
#include <cstring>

#include <gtest/gtest.h>

#include "arx/exports/DefaultParams.h"

namespace brevanta {
namespace {

// A record in which every byte that no default wrote is 0xCD.
WindowParams Untouched() {
  WindowParams record;
  std::memset(&record, 0xCD, sizeof record);
  return record;
}

WindowParams Defaulted() {
  WindowParams record = Untouched();
  EXPECT_EQ(SetDefaultWindowParams(&record), &record);
  return record;
}

TEST(DefaultWindowParams, DescribeAWindowInARoofOf30Degrees) {
  const WindowParams record = Defaulted();
  EXPECT_EQ(record.width, 0.94);
  EXPECT_EQ(record.length, 1.4);
  EXPECT_EQ(record.frameWidth, 0.1);
  EXPECT_EQ(record.frameDepth, 0.08);
  EXPECT_EQ(record.skirtHeight, 0.0);
  EXPECT_EQ(record.slopeOffset, 0.1);
  EXPECT_EQ(record.layerThickness, 0.1);
  EXPECT_EQ(record.pitch, 30.0);
  EXPECT_EQ(record.unitFactor, 1);
}

TEST(DefaultWindowParams, PlaceTheWindowByItsLowerEdge) {
  const WindowParams record = Defaulted();
  EXPECT_EQ(record.lowerEdgeHeight, 0.0);
  EXPECT_EQ(record.upperEdgeHeight, 0.0);
  EXPECT_EQ(record.placeByHeight, 1);
  EXPECT_EQ(record.heightReference, 1);
  EXPECT_EQ(record.widthAnchor, 0);
  EXPECT_EQ(record.pickOffset, 0.0);
  EXPECT_EQ(record.roofBuildUp, 1);
  EXPECT_EQ(record.rotation, 0.0);
  EXPECT_EQ(record.rotation2, 0.0);
}

TEST(DefaultWindowParams, DrawFacesAndTheSymbolOfCodeD) {
  const WindowParams record = Defaulted();
  EXPECT_EQ(record.bodyAsFaces, 1);
  EXPECT_EQ(record.drawOpeningSymbol, -1);
  EXPECT_STREQ(record.openingCode, "D");
  EXPECT_EQ(record.markerValue, 0);
}

TEST(DefaultWindowParams, TextsAreEmpty) {
  const WindowParams record = Defaulted();
  EXPECT_STREQ(record.text1, "");
  EXPECT_STREQ(record.text2, "");
  EXPECT_STREQ(record.text3, "");
}

// The bytes that a default writes: offset and size, in rising order.
struct Written {
  std::size_t offset;
  std::size_t size;
};

constexpr Written WRITTEN[] = {
    {0, 60},    // width to widthAnchor
    {64, 52},   // pickOffset to drawOpeningSymbol
    {116, 1},   // text1, its first byte
    {316, 1},   // text2
    {516, 1},   // text3
    {716, 2},   // openingCode and its terminator
    {776, 16},  // rotation, rotation2
    {936, 8},   // unitFactor, markerValue
};

TEST(DefaultWindowParams, WriteNothingElse) {
  const WindowParams record = Defaulted();
  const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
  std::size_t offset = 0;
  for (const Written& field : WRITTEN) {
    for (; offset < field.offset; ++offset)
      EXPECT_EQ(bytes[offset], 0xCD) << "offset " << offset;
    offset += field.size;
  }
  EXPECT_EQ(offset, sizeof record);
}

TEST(DefaultWindowParams, WriteTheSameWhateverWasThere) {
  WindowParams other;
  std::memset(&other, 0x32, sizeof other);
  SetDefaultWindowParams(&other);
  const WindowParams record = Defaulted();
  for (const Written& field : WRITTEN) {
    EXPECT_EQ(std::memcmp(reinterpret_cast<const char*>(&record) + field.offset,
                          reinterpret_cast<const char*>(&other) + field.offset, field.size),
              0)
        << "offset " << field.offset;
  }
}

}  // namespace
}  // namespace brevanta
