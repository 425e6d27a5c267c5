// CatalogueMergeTest.cpp - merges of catalogues through the real module, and what stops them.
#include <cstdlib>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/FileOperations.h"
#include "platform/FolderLock.h"
#include "teskarlt/catalogue/CatalogueMerge.h"
#include "teskarlt/modules/WindowModule.h"
#include "tests/teskarlt/windows/Houses.h"

namespace teskarlt {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* OLD = "VYROBCE Alfa\nx; 1\n";
constexpr const char* NEW = "VYROBCE Alfa\nx; 1\ny; 2\nVYROBCE Beta\nz; 3\n";
constexpr int SYSTEM_ERROR = 5;  // an error number of both systems

int readsLeft = 0;  // that succeed
int FailingRead(platform::FileHandle file, char* buffer, std::size_t capacity, std::size_t& count) {
  return readsLeft-- > 0 ? platform::SystemFileOperations().read(file, buffer, capacity, count)
                         : SYSTEM_ERROR;
}
int FailOnce(platform::FileHandle file, char* buffer, std::size_t capacity, std::size_t& count) {
  return readsLeft-- == 0 ? SYSTEM_ERROR
                          : platform::SystemFileOperations().read(file, buffer, capacity, count);
}
int FailingRemove(const std::string& /*path*/) {
  return SYSTEM_ERROR;
}

// A folder with a catalogue to merge into and another one to merge.
class CatalogueMerge : public testing::Test {
 protected:
  CatalogueMerge() {
    fs::remove_all(folder);
    fs::create_directory(folder);
    platform::WriteWholeFile(target, OLD);
    platform::WriteWholeFile(source, NEW);
  }
  ~CatalogueMerge() override {
    platform::SetFileOperations(nullptr);
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

  MergeReport Merge() { return MergeCatalogues(module, source, target); }
  std::string Refusal() {
    return RefusalOf([&] { Merge(); });
  }
  static std::string Text(const std::string& path) {
    return std::string(platform::ReadWholeFile(path).View());
  }

  const WindowModule module;
  const std::string folder = "catalogue_merge_test";
  std::string target = folder + "/BREVANTA.LIB";
  std::string source = folder + "/update.LIB";
  const std::string backup = folder + "/BREVANTA.OLD";
};

TEST_F(CatalogueMerge, TakesWhatTheTargetLacks) {
  const MergeReport report = Merge();
  EXPECT_EQ(report.target, target);
  EXPECT_EQ(report.newSections, 1U);
  EXPECT_EQ(report.taken, 2U);
  EXPECT_EQ(report.alreadyThere, 1U);
  EXPECT_EQ(report.total, 3U);
  EXPECT_THAT(report.warnings, IsEmpty());
  EXPECT_FALSE(fs::exists(backup));
}

TEST_F(CatalogueMerge, SecondTimeThereIsNothingToTake) {
  Merge();
  const std::string merged = Text(target);
  EXPECT_EQ(Merge().taken, 0U);
  EXPECT_EQ(Text(target), merged);
}

TEST_F(CatalogueMerge, FolderStandsForTheCatalogueInIt) {
  const MergeReport report = MergeCatalogues(module, source, folder);
  EXPECT_EQ(report.taken, 2U);
  EXPECT_THAT(report.target, HasSubstr("BREVANTA.LIB"));
}

TEST_F(CatalogueMerge, LineEndsOfTwoKindsAreWarnedOf) {
  platform::WriteWholeFile(source, "VYROBCE Beta\r\nz; 3\r\n");
  EXPECT_THAT(Merge().warnings, ElementsAre(HasSubstr(source + " has Windows line ends")));
}

TEST_F(CatalogueMerge, LinesThatAreCutAreWarnedOf) {
  platform::WriteWholeFile(source, "VYROBCE Beta\nz; " + std::string(300, '3') + "\n");
  EXPECT_THAT(Merge().warnings, ElementsAre(HasSubstr("1 lines of more than 254 characters are cut")));
}

// --- What stops a merge before it begins ---

TEST_F(CatalogueMerge, MissingCataloguesAreNamed) {
  source = folder + "/none.LIB";
  EXPECT_THAT(Refusal(), HasSubstr("none.LIB"));
  source = target;
  target = folder + "/missing.LIB";
  EXPECT_THAT(Refusal(), HasSubstr("there is no catalogue to merge into"));
}

TEST_F(CatalogueMerge, CatalogueIsNotMergedIntoItself) {
  source = folder + "/./BREVANTA.LIB";
  EXPECT_THAT(Refusal(), HasSubstr("are the same file"));
}

TEST_F(CatalogueMerge, PathOfTheTargetHasAFixedRangeOfLengths) {
  target = "x";
  EXPECT_THAT(Refusal(), HasSubstr("must have 3 to 511 characters"));
  target = folder + "/" + std::string(500, 'x');
  EXPECT_THAT(Refusal(), HasSubstr("must have 3 to 511 characters"));
}

TEST_F(CatalogueMerge, BackupIsNoTarget) {
  target = folder + "/brevanta.old";
  EXPECT_THAT(Refusal(), HasSubstr("the name of a backup"));
}

TEST_F(CatalogueMerge, BackupOfAnInterruptedMergeComesFirst) {
  platform::WriteWholeFile(backup, OLD);
  EXPECT_THAT(Refusal(), HasSubstr("lies there from an interrupted merge; teskarlt merge --recover"));
  EXPECT_EQ(Text(target), OLD);
}

TEST_F(CatalogueMerge, FolderThatAnotherMergeHoldsIsLeftAlone) {
  platform::FolderLock other;
  ASSERT_EQ(other.Take(folder), platform::LockResult::Taken);
  EXPECT_EQ(Refusal(), "another merge is at work in the folder of " + target);
}

TEST_F(CatalogueMerge, MissingFolderIsNamed) {
  target = folder + "/nowhere/BREVANTA.LIB";
  EXPECT_THAT(Refusal(), HasSubstr("there is no such folder"));
}

TEST_F(CatalogueMerge, FileThatIsNoCatalogueIsRefused) {
  platform::WriteWholeFile(target, "no section\n");
  EXPECT_THAT(Refusal(), HasSubstr("BREVANTA.LIB"));
  EXPECT_EQ(Text(target), "no section\n");
}

// --- What fails on the way ---

TEST_F(CatalogueMerge, CatalogueThatCannotBeReadAfterTheMergeIsWhatItWas) {
  platform::FileOperations failing = platform::SystemFileOperations();
  failing.read = FailOnce;
  std::string refusal;
  // Both catalogues are read before the merge, each up to the read that gives no bytes.
  for (readsLeft = 0; refusal.find("again what it was") == std::string::npos; readsLeft += 2) {
    ASSERT_LT(readsLeft, 20) << refusal;
    const int reads = readsLeft;
    platform::SetFileOperations(&failing);
    refusal = Refusal();
    platform::SetFileOperations(nullptr);
    readsLeft = reads;
    ASSERT_EQ(Text(target), OLD) << reads;
    fs::remove(backup);
  }
}

TEST_F(CatalogueMerge, SourceThatCannotBeReadCostsNothing) {
  platform::FileOperations failing = platform::SystemFileOperations();
  failing.read = FailingRead;
  readsLeft = 0;
  platform::SetFileOperations(&failing);
  EXPECT_THAT(Refusal(), HasSubstr("update.LIB"));
  platform::SetFileOperations(nullptr);
  EXPECT_EQ(Text(target), OLD);
}

// --- The data folder ---

class DataFolderMerge : public CatalogueMerge {
 protected:
  DataFolderMerge() { Use("TESKAR_DATA=catalogue_merge_test"); }
  ~DataFolderMerge() override { Use("TESKAR_DATA="); }

  // The system keeps the text.
  static void Use(const char* setting) {
    static char variable[64];
    std::snprintf(variable, sizeof variable, "%s", setting);
    putenv(variable);
  }
  std::string RefusalWithoutTarget() {
    return RefusalOf([&] { MergeCatalogues(module, source, {}); });
  }
};

TEST_F(DataFolderMerge, IsMeantWithoutATarget) {
  const MergeReport report = MergeCatalogues(module, source, {});
  EXPECT_EQ(report.target, "catalogue_merge_test/BREVANTA.LIB");
  EXPECT_EQ(report.total, 3U);
}

TEST_F(DataFolderMerge, FolderThatAnotherMergeHoldsIsLeftAlone) {
  platform::FolderLock other;
  ASSERT_EQ(other.Take(folder), platform::LockResult::Taken);
  EXPECT_THAT(RefusalWithoutTarget(), HasSubstr("another merge is at work in the data folder"));
}

TEST_F(DataFolderMerge, MissingFolderIsNamed) {
  Use("TESKAR_DATA=catalogue_merge_test/nowhere");
  EXPECT_THAT(RefusalWithoutTarget(), HasSubstr("does not exist or must not be written"));
}

TEST_F(DataFolderMerge, LinkedCatalogueIsRefused) {
  std::error_code error;
  fs::rename(target, folder + "/real.LIB");
  fs::create_symlink("real.LIB", target, error);
  if (error) GTEST_SKIP() << "no links on this system";
  EXPECT_THAT(RefusalWithoutTarget(), HasSubstr("is a link; say as TARGET which catalogue it leads to"));
}

// --- After an interrupted merge ---

TEST_F(CatalogueMerge, RecoveryBringsTheCatalogueBack) {
  fs::rename(target, backup);
  const Recovery recovery = RecoverCatalogue(target);
  EXPECT_EQ(recovery.target, target);
  EXPECT_THAT(recovery.setAside, IsEmpty());
  EXPECT_EQ(Text(target), OLD);
  EXPECT_FALSE(fs::exists(backup));
}

TEST_F(CatalogueMerge, RecoverySetsAsideWhatStoodInItsPlace) {
  platform::WriteWholeFile(backup, NEW);
  const Recovery recovery = RecoverCatalogue(target);
  EXPECT_EQ(Text(target), NEW);
  EXPECT_EQ(Text(recovery.setAside), OLD);
}

TEST_F(CatalogueMerge, RecoveryNeedsABackupThatIsACatalogue) {
  EXPECT_THAT(RefusalOf([&] { RecoverCatalogue(target); }),
              HasSubstr("no catalogue of an interrupted merge"));
  platform::WriteWholeFile(backup, "no section\n");
  EXPECT_THAT(RefusalOf([&] { RecoverCatalogue(target); }), HasSubstr("BREVANTA.OLD"));
  EXPECT_EQ(Text(target), OLD);
}

TEST_F(CatalogueMerge, RecoveryTellsOfABackupThatStays) {
  platform::WriteWholeFile(backup, NEW);
  platform::FileOperations failing = platform::SystemFileOperations();
  failing.remove = FailingRemove;
  platform::SetFileOperations(&failing);
  const std::string refusal = RefusalOf([&] { RecoverCatalogue(target); });
  platform::SetFileOperations(nullptr);
  EXPECT_THAT(refusal, HasSubstr("was brought back, but " + backup + " cannot be removed"));
  EXPECT_EQ(Text(target), NEW);
}

}  // namespace
}  // namespace teskarlt
