// HeaderValuesTest.cpp - versions and code pages as headers name them.
#include <gtest/gtest.h>

#include "teskarlt/dxf/read/HeaderValues.h"
#include "teskarlt/dxf/tags/Version.h"

namespace teskarlt::dxf {
namespace {

TEST(VersionNumber, IsThatOfItsName) {
  EXPECT_EQ(VersionNumber("AC1015"), VERSION_R2000);
  EXPECT_EQ(VersionNumber(" AC1032 "), VERSION_R2018);
}

TEST(VersionNumber, VersionsBeforeR12FollowItsRules) {
  EXPECT_EQ(VersionNumber("AC1006"), VERSION_R12);
  EXPECT_EQ(VersionNumber("AC2.10"), VERSION_R12);
}

TEST(VersionNumber, OtherTextsNameNoVersion) {
  EXPECT_EQ(VersionNumber(""), std::nullopt);
  EXPECT_EQ(VersionNumber("1015"), std::nullopt);
}

TEST(CodePageOf, IsTheOneOfTheHeader) {
  EXPECT_EQ(CodePageOf(" ANSI_1250"), "ANSI_1250");
}

TEST(CodePageOf, IsWesternEuropeanWithoutOne) {
  EXPECT_EQ(CodePageOf(""), "ANSI_1252");
}

}  // namespace
}  // namespace teskarlt::dxf
