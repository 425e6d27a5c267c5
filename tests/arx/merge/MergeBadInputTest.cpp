// MergeBadInputTest.cpp - files and paths that are no catalogues.
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>

#include "MergeFixture.h"

namespace brevanta {
namespace {

namespace fs = std::filesystem;

using MergeBadInput = MergeTest;

constexpr const char* TARGET = "VYROBCE A\na1; 1\n";
constexpr const char* SOURCE = "VYROBCE A\na2; 2\n";

TEST_F(MergeBadInput, FolderAsSourceCannotBeRead) {
  WriteBytes(Target(), TARGET);
  fs::create_directory(Source());
  EXPECT_EQ(Merge(), -1);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeBadInput, FolderAsTargetIsNoTarget) {
  WriteBytes(Source(), SOURCE);
  fs::create_directory(Target());
  EXPECT_EQ(Merge(), 0);
  EXPECT_TRUE(fs::is_directory(Target()));
  EXPECT_FALSE(FileExists(Backup()));
}

TEST_F(MergeBadInput, FolderUnderTheBackupsNameLeavesTheTargetAsItWas) {
  Write(TARGET, SOURCE);
  fs::create_directory(Backup());
  WriteBytes(Backup() + "/kept", "x");
  EXPECT_EQ(Merge(), 1);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
  EXPECT_TRUE(FileExists(Backup() + "/kept"));
}

TEST_F(MergeBadInput, EmptyPathsAreMissingFiles) {
  Write(TARGET, SOURCE);
  EXPECT_EQ(mergeLibraryFiles(nullptr, "", Target().c_str(), 4), -1);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), "", 4), 0);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeBadInput, TargetPathOfLessThanThreeCharactersHasNoBackupName) {
  Write(TARGET, SOURCE);
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  WriteBytes("ab", TARGET);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), "ab", 4), 1);
  EXPECT_EQ(ReadBytes("ab"), TARGET);
  fs::current_path(before);
}

TEST_F(MergeBadInput, TargetPathOfThreeCharactersIsReplacedWhole) {
  Write(TARGET, SOURCE);
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  WriteBytes("abc", TARGET);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), "abc", 4), 0);
  EXPECT_EQ(ReadText("abc"), "VYROBCE A\na1; 1\na2; 2\n");
  fs::current_path(before);
}

// The path of the fixture's target with as many "./" in it as bring it to a length.
std::string Lengthened(const std::string& folder, std::size_t length) {
  std::string path = folder + "/";
  const std::string name = "BREVANTA.LIB";
  while (path.size() + name.size() + 2 <= length)
    path += "./";
  if (path.size() + name.size() < length) path += "/";
  return path + name;
}

TEST_F(MergeBadInput, TargetPathOf512CharactersIsTooLongForABackup) {
  Write(TARGET, SOURCE);
  const std::string path = Lengthened(folder.Path(), 512);
  ASSERT_EQ(path.size(), 512U);
  // Where the system opens no path that long the target counts as missing.
  const bool opens = fs::exists(path);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), path.c_str(), 4), opens ? 1 : 0);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
  EXPECT_EQ(folder.FileCount(), 2);
}

TEST_F(MergeBadInput, TargetPathOf511CharactersIsMerged) {
  Write(TARGET, SOURCE);
  const std::string path = Lengthened(folder.Path(), 511);
  ASSERT_EQ(path.size(), 511U);
  const std::string moved = path.substr(0, 508) + "OLD";
  const bool renames = std::rename(path.c_str(), moved.c_str()) == 0;
  if (!renames) GTEST_SKIP() << "the system renames no path that long";
  ASSERT_EQ(std::rename(moved.c_str(), path.c_str()), 0);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), path.c_str(), 4), 0);
  EXPECT_EQ(ReadText(Target()), "VYROBCE A\na1; 1\na2; 2\n");
}

TEST_F(MergeBadInput, PathsOfAMegabyteAreMissingFiles) {
  Write(TARGET, SOURCE);
  const std::string path(1000000, 'x');
  EXPECT_EQ(mergeLibraryFiles(nullptr, path.c_str(), Target().c_str(), 4), -1);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), path.c_str(), 4), 0);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeBadInput, BackupAsTargetIsRefused) {
  Write(TARGET, SOURCE);
  for (const char* name : {"BREVANTA.OLD", "brevanta.old"}) {
    WriteBytes(folder / name, TARGET);
    EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), (folder / name).c_str(), 4), 1);
    EXPECT_EQ(ReadBytes(folder / name), TARGET);
  }
}

TEST_F(MergeBadInput, LineOfAMegabyteIsCutAndKept) {
  const std::string line(1000000, 'x');
  const std::string merged = Merged("VYROBCE A\n" + line + "\n", "VYROBCE A\n" + line + "\n");
  std::string pieces;
  for (std::size_t i = 0; i < line.size(); i += 254)
    pieces += line.substr(i, 254) + "\n";
  EXPECT_EQ(merged, "VYROBCE A\n" + pieces);
}

TEST_F(MergeBadInput, ZeroByteEndsItsLine) {
  using namespace std::string_literals;
  EXPECT_EQ(Merged("VYROBCE A\nab\0cd; 1\n\0\nef; 2\n"s, "VYROBCE A\nab\0xy\n"s), "VYROBCE A\nab\nef; 2\n\n");
}

TEST_F(MergeBadInput, RandomBytesAsSourceLeaveTheTargetsItems) {
  std::mt19937 random(3);
  std::string bytes(300000, ' ');
  for (char& c : bytes)
    c = static_cast<char>(random());
  EXPECT_EQ(Merged(TARGET, bytes), TARGET);
}

TEST_F(MergeBadInput, RandomBytesBehindAHeaderAreItems) {
  std::mt19937 random(4);
  std::string bytes = "VYROBCE A\n";
  for (int i = 0; i < 100000; ++i)
    bytes += static_cast<char>(random() | 0x80U);
  const std::string merged = Merged(TARGET, bytes);
  EXPECT_EQ(merged.substr(0, 16), TARGET);
  EXPECT_GT(merged.size(), 90000U);
}

// A user who may do anything may also write to what is read-only: then there is nothing to test.
bool CanBeWritten(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "r+");
  if (file != nullptr) std::fclose(file);
  return file != nullptr;
}

TEST_F(MergeBadInput, ReadOnlyTargetIsReplacedLikeAnyOther) {
  Write(TARGET, SOURCE);
  fs::permissions(Target(), fs::perms::owner_read);
  const std::int32_t result = Merge();
  const bool whole = ReadText(Target()) == "VYROBCE A\na1; 1\na2; 2\n";
  EXPECT_EQ(result, 0);
  EXPECT_TRUE(whole);
}

TEST_F(MergeBadInput, ReadOnlyFolderLeavesTheTargetAsItWas) {
  Write(TARGET, SOURCE);
  fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
  WriteBytes(folder / "probe", "");
  const bool writable = FileExists(folder / "probe");
  const std::int32_t result = Merge();
  fs::permissions(folder.Path(), fs::perms::owner_all);
  if (writable) GTEST_SKIP() << "read-only folders do not bind this user or system";
  EXPECT_EQ(result, 1);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeBadInput, UnreadableFilesCountAsMissing) {
  Write(TARGET, SOURCE);
  fs::permissions(Source(), fs::perms::none);
  if (CanBeWritten(Source())) GTEST_SKIP() << "permissions do not bind this user or system";
  EXPECT_EQ(Merge(), -1);
  fs::permissions(Source(), fs::perms::owner_all);
  fs::permissions(Target(), fs::perms::none);
  EXPECT_EQ(Merge(), 0);
  fs::permissions(Target(), fs::perms::owner_all);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

}  // namespace
}  // namespace brevanta
