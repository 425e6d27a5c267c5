// ZipArchiveTest.cpp - several files in one.
#include <string_view>

#include <gtest/gtest.h>

#include "teskarlt/schedule/ZipArchive.h"

namespace teskarlt::schedule {
namespace {

using namespace std::string_view_literals;

// CRC-32 of "123456789", the check value of that sum: CBF43926.
constexpr auto CHECKED =
    "PK\x03\x04\x14\0\0\0\0\0\0\0\x21\0\x26\x39\xF4\xCB\x09\0\0\0\x09\0\0\0\x01\0\0\0a123456789"
    "PK\x01\x02\x14\0\x14\0\0\0\0\0\0\0\x21\0\x26\x39\xF4\xCB\x09\0\0\0\x09\0\0\0\x01\0\0\0"
    "\0\0\0\0\0\0\0\0\0\0\0\0\0\0a"
    "PK\x05\x06\0\0\0\0\x01\0\x01\0\x2F\0\0\0\x28\0\0\0\0\0"sv;

TEST(ZipArchive, FileIsStoredAsItIs) {
  ZipArchive archive;
  archive.Add("a", "123456789");
  EXPECT_EQ(archive.Bytes(), CHECKED);
}

TEST(ZipArchive, DirectoryTellsWhereEachFileBegins) {
  ZipArchive zip;
  zip.Add("a", "123456789");
  zip.Add("b", "");
  const std::string archive = zip.Bytes();
  // The second local header stands behind the first file: 30 bytes of header, 1 of name, 9 of content.
  EXPECT_EQ(archive.substr(40, 4), "PK\x03\x04");
  const std::size_t second = archive.rfind("PK\x01\x02");
  EXPECT_EQ(archive.substr(second + 42, 4), "\x28\0\0\0"sv);
}

}  // namespace
}  // namespace teskarlt::schedule
