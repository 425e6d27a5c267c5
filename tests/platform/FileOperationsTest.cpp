// FileOperationsTest.cpp - whole files, and every operation on them that can fail.
#include <cstdio>
#include <filesystem>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/Error.h"
#include "platform/FileOperations.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

constexpr int SYSTEM_ERROR = 5;  // an error number of both systems

// A folder of its own for each test; the operations are the system's again afterwards.
class FileOperationsTest : public testing::Test {
 protected:
  FileOperationsTest() {
    fs::remove_all(folder_);
    fs::create_directory(folder_);
    failing_ = SystemFileOperations();
  }
  ~FileOperationsTest() override {
    SetFileOperations(nullptr);
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  std::string In(const std::string& name) const { return folder_ + "/" + name; }

  std::set<std::string> Files() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_))
      names.insert(entry.path().filename().string());
    return names;
  }

  static std::string Text(const std::string& path) { return std::string(ReadWholeFile(path).View()); }

  template <typename Call>
  static std::string ErrorOf(Call call) {
    try {
      call();
    } catch (const Error& error) {
      return error.what();
    }
    return {};
  }

  // Replaces a file's text with one operation failing; checks that the old file is untouched and alone.
  std::string ErrorOfReplacing() {
    WriteWholeFile(In("a.dxf"), "old");
    SetFileOperations(&failing_);
    std::string message = ErrorOf([&] { WriteWholeFile(In("a.dxf"), "new"); });
    SetFileOperations(nullptr);
    EXPECT_EQ(Text(In("a.dxf")), "old");
    EXPECT_EQ(Files(), std::set<std::string>{"a.dxf"});
    return message;
  }

  static FileOperations failing_;

 private:
  std::string folder_ = "file_operations_test";
};

FileOperations FileOperationsTest::failing_;

TEST_F(FileOperationsTest, WrittenFileIsReadBack) {
  WriteWholeFile(In("a.dxf"), "some text");
  EXPECT_EQ(Text(In("a.dxf")), "some text");
  EXPECT_EQ(Files(), std::set<std::string>{"a.dxf"});
}

TEST_F(FileOperationsTest, EmptyFile) {
  WriteWholeFile(In("a.dxf"), "");
  EXPECT_EQ(Text(In("a.dxf")), "");
}

TEST_F(FileOperationsTest, NamesAreUtf8) {
  WriteWholeFile(In("střecha 屋根.dxf"), "x");
  EXPECT_EQ(Text(In("střecha 屋根.dxf")), "x");
  EXPECT_TRUE(fs::exists(fs::path(In("")) / fs::path(u8"střecha 屋根.dxf")));
}

TEST_F(FileOperationsTest, LargeFileInSmallAndLargePieces) {
  std::string expected;
  {
    FileReplacement file(In("a.dxf"));
    for (std::size_t size = 1; size < 3'000'000; size *= 3) {
      const std::string piece(size, static_cast<char>('a' + expected.size() % 26));
      file.Write(piece);
      expected += piece;
    }
    file.Commit();
  }
  EXPECT_TRUE(Text(In("a.dxf")) == expected);
}

TEST_F(FileOperationsTest, WithoutCommitTheOldFileStays) {
  WriteWholeFile(In("a.dxf"), "old");
  {
    FileReplacement file(In("a.dxf"));
    file.Write("new");
  }
  EXPECT_EQ(Text(In("a.dxf")), "old");
  EXPECT_EQ(Files(), std::set<std::string>{"a.dxf"});
}

TEST_F(FileOperationsTest, StateTellsChangedFilesApart) {
  EXPECT_FALSE(StateOfFile(In("a.dxf")).exists);
  WriteWholeFile(In("a.dxf"), "old");
  const FileState old = StateOfFile(In("a.dxf"));
  EXPECT_TRUE(old.exists && old.isOrdinary && old.isWritable);
  EXPECT_EQ(old.size, 3U);
  EXPECT_EQ(StateOfFile(In("a.dxf")), old);
  WriteWholeFile(In("a.dxf"), "newer");
  EXPECT_NE(StateOfFile(In("a.dxf")), old);
}

TEST_F(FileOperationsTest, RightsOfTheOldFileStay) {
  WriteWholeFile(In("a.dxf"), "old");
  const auto rights = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(In("a.dxf"), rights);
  const auto before = fs::status(In("a.dxf")).permissions();
  WriteWholeFile(In("a.dxf"), "new");
  EXPECT_EQ(fs::status(In("a.dxf")).permissions(), before);
}

TEST_F(FileOperationsTest, FolderIsNotReplaced) {
  fs::create_directory(In("a.dxf"));
  EXPECT_EQ(ErrorOf([&] { WriteWholeFile(In("a.dxf"), "x"); }),
            In("a.dxf") + ": cannot be written: it is not an ordinary file");
}

TEST_F(FileOperationsTest, LinkLeadsToItsTarget) {
  WriteWholeFile(In("a.dxf"), "old");
  std::error_code error;
  fs::create_symlink("a.dxf", In("link.dxf"), error);
  if (error) GTEST_SKIP() << "no symbolic links here";
  WriteWholeFile(In("link.dxf"), "new");
  EXPECT_TRUE(fs::is_symlink(In("link.dxf")));
  EXPECT_EQ(Text(In("a.dxf")), "new");
}

TEST_F(FileOperationsTest, MissingFileIsNamedWithTheSystemsReason) {
  const std::string message = ErrorOf([&] { ReadWholeFile(In("missing.dxf")); });
  const std::string beginning = In("missing.dxf") + ": cannot be opened: ";
  EXPECT_THAT(message, testing::StartsWith(beginning));
  EXPECT_GT(message.size(), beginning.size());
  EXPECT_NE(message.back(), '.');
}

TEST_F(FileOperationsTest, MissingFolderIsAnError) {
  EXPECT_THAT(ErrorOf([&] { WriteWholeFile(In("none/a.dxf"), "x"); }),
              testing::HasSubstr("a.dxf: cannot be written: no file can be made in its folder: "));
}

TEST_F(FileOperationsTest, FailedReadIsAnError) {
  WriteWholeFile(In("a.dxf"), "old");
  failing_.read = [](FileHandle, char*, std::size_t, std::size_t&) { return SYSTEM_ERROR; };
  SetFileOperations(&failing_);
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(In("a.dxf")); }),
            In("a.dxf") + ": cannot be read: " + SystemReason(SYSTEM_ERROR));
}

TEST_F(FileOperationsTest, ShortReadsAreContinued) {
  WriteWholeFile(In("a.dxf"), "some text");
  failing_.read = [](FileHandle file, char* buffer, std::size_t, std::size_t& count) {
    return SystemFileOperations().read(file, buffer, 2, count);
  };
  SetFileOperations(&failing_);
  EXPECT_EQ(Text(In("a.dxf")), "some text");
}

TEST_F(FileOperationsTest, FileThatGrewSinceItsSizeWasAskedIsReadWhole) {
  const std::string text(200'000, 'x');
  WriteWholeFile(In("a.dxf"), text);
  failing_.stat = [](const std::string&, FileState& state) {
    state = {true, true, true, 1, 0};
    return 0;
  };
  SetFileOperations(&failing_);
  EXPECT_TRUE(Text(In("a.dxf")) == text);
}

TEST_F(FileOperationsTest, ShortWritesAreContinued) {
  failing_.write = [](FileHandle file, const char* bytes, std::size_t, std::size_t& count) {
    return SystemFileOperations().write(file, bytes, 1, count);
  };
  SetFileOperations(&failing_);
  WriteWholeFile(In("a.dxf"), "some text");
  EXPECT_EQ(Text(In("a.dxf")), "some text");
}

TEST_F(FileOperationsTest, FailedCreationLeavesTheOldFile) {
  failing_.createNew = [](const std::string&, FileHandle&) { return SYSTEM_ERROR; };
  EXPECT_EQ(ErrorOfReplacing(), In("a.dxf") + ": cannot be written: no file can be made in its folder: " +
                                    SystemReason(SYSTEM_ERROR));
}

TEST_F(FileOperationsTest, FailedWriteLeavesTheOldFile) {
  failing_.write = [](FileHandle, const char*, std::size_t, std::size_t&) { return SYSTEM_ERROR; };
  EXPECT_EQ(ErrorOfReplacing(), In("a.dxf") + ": cannot be written: " + SystemReason(SYSTEM_ERROR));
}

TEST_F(FileOperationsTest, WriteThatTakesNothingLeavesTheOldFile) {
  failing_.write = [](FileHandle, const char*, std::size_t, std::size_t& count) {
    count = 0;
    return 0;
  };
  EXPECT_EQ(ErrorOfReplacing(), In("a.dxf") + ": cannot be written: the system took no more bytes");
}

TEST_F(FileOperationsTest, FailedFlushLeavesTheOldFile) {
  failing_.flushToDisk = [](FileHandle) { return SYSTEM_ERROR; };
  EXPECT_EQ(ErrorOfReplacing(), In("a.dxf") + ": cannot be flushed to disk: " + SystemReason(SYSTEM_ERROR));
}

TEST_F(FileOperationsTest, FailedCloseLeavesTheOldFile) {
  failing_.close = [](FileHandle file) {
    SystemFileOperations().close(file);
    return SYSTEM_ERROR;
  };
  EXPECT_EQ(ErrorOfReplacing(), In("a.dxf") + ": cannot be closed: " + SystemReason(SYSTEM_ERROR));
}

TEST_F(FileOperationsTest, FailedReplacementLeavesTheOldFile) {
  failing_.replace = [](const std::string&, const std::string&) { return SYSTEM_ERROR; };
  EXPECT_EQ(ErrorOfReplacing(), In("a.dxf") + ": cannot be replaced: " + SystemReason(SYSTEM_ERROR));
}

TEST_F(FileOperationsTest, FailedLookLeavesTheOldFile) {
  failing_.stat = [](const std::string&, FileState&) { return SYSTEM_ERROR; };
  EXPECT_EQ(ErrorOfReplacing(), In("a.dxf") + ": cannot be looked at: " + SystemReason(SYSTEM_ERROR));
}

TEST_F(FileOperationsTest, LinkThatLeadsNowhereLeavesTheOldFile) {
  failing_.linkTarget = [](const std::string&, std::string&) { return SYSTEM_ERROR; };
  EXPECT_EQ(ErrorOfReplacing(), In("a.dxf") + ": cannot be written: " + SystemReason(SYSTEM_ERROR));
}

TEST_F(FileOperationsTest, WriteProtectedFileIsNotReplaced) {
  failing_.stat = [](const std::string&, FileState& state) {
    state = {true, true, false, 3, 0};
    return 0;
  };
  EXPECT_EQ(ErrorOfReplacing(), In("a.dxf") + ": cannot be written: it is write-protected");
}

}  // namespace
}  // namespace platform
