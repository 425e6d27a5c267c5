// MergeLibraryFilesTest.cpp - arguments, paths and results of a merge without a host.
#include <filesystem>
#include <string>

#include "MergeFixture.h"

namespace brevanta {
namespace {

using MergeLibraryFiles = MergeTest;

constexpr const char* TARGET = "VYROBCE A\na1; 1\n";
constexpr const char* SOURCE = "VYROBCE A\na2; 2\n";
constexpr const char* BOTH = "VYROBCE A\na1; 1\na2; 2\n";

TEST_F(MergeLibraryFiles, OnlyFolderKindFourIsMerged) {
  Write(TARGET, SOURCE);
  for (const int kind : {0, 1, 3, 5, -4})
    EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), Target().c_str(), kind), 1);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeLibraryFiles, FolderKindIsLookedAtBeforeTheSource) {
  EXPECT_EQ(mergeLibraryFiles(nullptr, nullptr, nullptr, 0), 1);
}

TEST_F(MergeLibraryFiles, NullSourceIsRefusedBeforeTheTargetIsLookedFor) {
  EXPECT_EQ(mergeLibraryFiles(nullptr, nullptr, Target().c_str(), 4), -1);
  EXPECT_EQ(mergeLibraryFiles(nullptr, nullptr, nullptr, 4), -1);
}

TEST_F(MergeLibraryFiles, NullTargetWithoutAHostIsRefused) {
  Write(TARGET, SOURCE);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), nullptr, 4), -2);
}

TEST_F(MergeLibraryFiles, FirstArgumentIsNotRead) {
  Write(TARGET, SOURCE);
  EXPECT_EQ(mergeLibraryFiles(this, Source().c_str(), Target().c_str(), 4), 0);
  EXPECT_EQ(ReadText(Target()), BOTH);
}

TEST_F(MergeLibraryFiles, MissingSourceLeavesTheTargetAlone) {
  WriteBytes(Target(), TARGET);
  EXPECT_EQ(Merge(), -1);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
  EXPECT_EQ(folder.FileCount(), 1);
}

TEST_F(MergeLibraryFiles, MissingSourceIsToldBeforeTheMissingTarget) {
  EXPECT_EQ(Merge(), -1);
}

TEST_F(MergeLibraryFiles, MissingTargetIsNotCreatedAndNoError) {
  WriteBytes(Source(), SOURCE);
  EXPECT_EQ(Merge(), 0);
  EXPECT_EQ(folder.FileCount(), 1);
}

TEST_F(MergeLibraryFiles, MissingTargetLeavesAStaleBackupAlone) {
  WriteBytes(Source(), SOURCE);
  WriteBytes(Backup(), "VYROBCE Z\nz1; 9\n");
  EXPECT_EQ(Merge(), 0);
  EXPECT_EQ(ReadBytes(Backup()), "VYROBCE Z\nz1; 9\n");
  EXPECT_FALSE(FileExists(Target()));
}

TEST_F(MergeLibraryFiles, PathsThatEndInASlashAreCompleted) {
  std::filesystem::create_directory(folder / "update");
  WriteBytes(Target(), TARGET);
  WriteBytes(folder / "update/BREVANTA.LIB", SOURCE);
  EXPECT_EQ(mergeLibraryFiles(nullptr, ((folder / "update") + "/").c_str(), (folder.Path() + "/").c_str(), 4),
            0);
  EXPECT_EQ(ReadText(Target()), BOTH);
}

TEST_F(MergeLibraryFiles, PathsThatEndInABackslashAreCompleted) {
  // On systems where a backslash is an ordinary character it is part of the file's name.
  const std::string target = folder.Path() + "/update\\BREVANTA.LIB";
  std::filesystem::create_directory(folder / "update");
  WriteBytes(target, TARGET);
  WriteBytes(Source(), SOURCE);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), ((folder / "update") + "\\").c_str(), 4), 0);
  EXPECT_EQ(ReadText(target), BOTH);
}

TEST_F(MergeLibraryFiles, PathThatEndsInAnyOtherCharacterIsTheFile) {
  WriteBytes(folder / "my.catalogue", TARGET);
  WriteBytes(Source(), SOURCE);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), (folder / "my.catalogue").c_str(), 4), 0);
  EXPECT_EQ(ReadText(folder / "my.catalogue"), BOTH);
  EXPECT_EQ(folder.FileCount(), 2);
}

TEST_F(MergeLibraryFiles, TargetAsItsOwnSourceKeepsItsItems) {
  WriteBytes(Target(), BOTH);
  EXPECT_EQ(mergeLibraryFiles(nullptr, Target().c_str(), Target().c_str(), 4), 0);
  EXPECT_EQ(ReadText(Target()), BOTH);
  EXPECT_EQ(folder.FileCount(), 1);
}

}  // namespace
}  // namespace brevanta
