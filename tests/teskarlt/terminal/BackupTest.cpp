// BackupTest.cpp - files that are kept as they were, and put back.
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/terminal/Backup.h"

namespace teskarlt {
namespace {

using testing::HasSubstr;

class BackupTest : public testing::Test {
 protected:
  BackupTest() { std::filesystem::create_directory(folder); }
  ~BackupTest() override { std::filesystem::remove_all(folder); }

  // Writes the file with a backup of what it held.
  void WriteKeeping(const std::string& bytes) const {
    KeepBackup(path);
    platform::WriteWholeFile(path, bytes);
    SealBackup(path);
  }

  static std::string BytesOf(const std::string& file) {
    return std::string(platform::ReadWholeFile(file).View());
  }

  std::string RefusalOfUndo() const {
    try {
      RestoreBackup(path);
    } catch (const Error& error) {
      return error.what();
    }
    return {};
  }

  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / testing::UnitTest::GetInstance()->current_test_info()->name();
  const std::string path = (folder / "house.dxf").string();
};

TEST_F(BackupTest, FileGoesBackToWhatItWasAndTheBackupGoes) {
  platform::WriteWholeFile(path, "old");
  WriteKeeping("new");
  EXPECT_EQ(BytesOf(BackupPath(path)), "old");
  RestoreBackup(path);
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_FALSE(std::filesystem::exists(BackupPath(path)));
  EXPECT_FALSE(std::filesystem::exists(UndoPath(path)));
}

TEST_F(BackupTest, SecondUndoHasNothingToUndo) {
  platform::WriteWholeFile(path, "old");
  WriteKeeping("new");
  RestoreBackup(path);
  EXPECT_EQ(RefusalOfUndo(), path +
                                 ": there is nothing to undo: no backup is kept of it; commands keep one "
                                 "with --backup");
}

TEST_F(BackupTest, LatestBackupIsTheOneThatCounts) {
  platform::WriteWholeFile(path, "first");
  WriteKeeping("second");
  WriteKeeping("third");
  RestoreBackup(path);
  EXPECT_EQ(BytesOf(path), "second");
}

TEST_F(BackupTest, FileThatWasChangedSinceIsLeft) {
  platform::WriteWholeFile(path, "old");
  WriteKeeping("new");
  platform::WriteWholeFile(path, "neu");  // of the same size
  EXPECT_THAT(RefusalOfUndo(), HasSubstr("it was changed since"));
  EXPECT_EQ(BytesOf(path), "neu");
  EXPECT_EQ(BytesOf(BackupPath(path)), "old");
}

TEST_F(BackupTest, BackupThatWasChangedIsNotTaken) {
  platform::WriteWholeFile(path, "old");
  WriteKeeping("new");
  platform::WriteWholeFile(BackupPath(path), "older");
  EXPECT_THAT(RefusalOfUndo(), HasSubstr("house.dxf.bak: it is not what was kept of"));
  EXPECT_EQ(BytesOf(path), "new");
}

// As when a command ended between keeping the backup and writing the drawing.
TEST_F(BackupTest, BackupWithoutItsWritingIsNotTaken) {
  platform::WriteWholeFile(path, "first");
  WriteKeeping("second");
  KeepBackup(path);
  EXPECT_THAT(RefusalOfUndo(), HasSubstr("it is not what was kept of"));
}

TEST_F(BackupTest, NothingIsKeptOfAFileThatIsNotThere) {
  EXPECT_FALSE(KeepBackup(path));
  EXPECT_FALSE(std::filesystem::exists(BackupPath(path)));
}

}  // namespace
}  // namespace teskarlt
