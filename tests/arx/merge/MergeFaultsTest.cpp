// MergeFaultsTest.cpp - each file operation of a merge
// fails: no catalogue is lost, but for the one kept case.
#include <filesystem>
#include <string>

#include <gmock/gmock.h>

#include "MergeFixture.h"
#include "ScriptedStdio.h"
#include "arx/merge/FindCatalogueItem.h"
#include "platform/ModuleState.h"

namespace brevanta {
namespace {

using testing::ElementsAre;

constexpr const char* TARGET = "# in use\nVYROBCE A\na1; 1\n";
constexpr const char* SOURCE = "VYROBCE A\na2; 2\n";
constexpr const char* BOTH = "# in use\nVYROBCE A\na1; 1\na2; 2\n";

class MergeFaults : public MergeTest {
 protected:
  MergeFaults() { Write(TARGET, SOURCE); }

  std::int32_t MergeWithFailing(const std::string& operation) {
    stdio.Fail(operation);
    return Merge();
  }
  void ExpectNothingTouched() const {
    EXPECT_EQ(ReadBytes(Target()), TARGET);
    EXPECT_EQ(ReadBytes(Source()), SOURCE);
    EXPECT_EQ(folder.FileCount(), 2);
  }

  ScriptedStdio stdio;
};

TEST_F(MergeFaults, OperationsComeInAFixedOrder) {
  EXPECT_EQ(Merge(), MERGE_DONE);
  EXPECT_THAT(stdio.Operations(),
              ElementsAre("open rb update.LIB", "close update.LIB",                          //
                          "open r BREVANTA.LIB", "read BREVANTA.LIB", "close BREVANTA.LIB",  //
                          "open r update.LIB", "read update.LIB", "close update.LIB",        //
                          "rename BREVANTA.LIB BREVANTA.OLD", "open r BREVANTA.OLD", "open w BREVANTA.LIB",
                          "read BREVANTA.OLD", "close BREVANTA.OLD", "write BREVANTA.LIB",
                          "close BREVANTA.LIB", "remove BREVANTA.OLD"));
}

TEST_F(MergeFaults, ModulesOwnStateIsCurrentFromTheFirstFileToTheLast) {
  int seen = 0;
  const auto look = [&seen] { seen += AfxGetModuleState() == AfxGetStaticModuleState() ? 1 : 0; };
  AFX_MODULE_STATE* const before = AfxGetModuleState();
  stdio.Before("open rb update.LIB", look);
  Merge();
  Write(TARGET, SOURCE);
  stdio.Before("remove BREVANTA.OLD", look);
  Merge();
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(AfxGetModuleState(), before);
}

TEST_F(MergeFaults, LookUpRunsInTheModulesOwnState) {
  bool isOwn = false;
  stdio.Before("read BREVANTA.LIB", [&isOwn] { isOwn = AfxGetModuleState() == AfxGetStaticModuleState(); });
  EXPECT_EQ(FindCatalogueItem("VYROBCE", Target().c_str(), "A", "a1"), -1);
  EXPECT_TRUE(isOwn);
}

TEST_F(MergeFaults, SourceThatCannotBeOpenedGivesMinusOne) {
  EXPECT_EQ(MergeWithFailing("open rb update.LIB"), -1);
  ExpectNothingTouched();
}

TEST_F(MergeFaults, TargetThatCannotBeOpenedIsNoError) {
  EXPECT_EQ(MergeWithFailing("open r BREVANTA.LIB"), 0);
  ExpectNothingTouched();
}

TEST_F(MergeFaults, TargetThatCannotBeReadIsNotRewritten) {
  EXPECT_EQ(MergeWithFailing("read BREVANTA.LIB"), 1);
  ExpectNothingTouched();
}

TEST_F(MergeFaults, SourceThatDisappearsLeavesTheTargetsOwnItems) {
  EXPECT_EQ(MergeWithFailing("open r update.LIB"), 0);
  EXPECT_EQ(ReadText(Target()), TARGET);
  EXPECT_FALSE(FileExists(Backup()));
}

TEST_F(MergeFaults, SourceThatCannotBeReadGivesMinusOne) {
  EXPECT_EQ(MergeWithFailing("read update.LIB"), -1);
  ExpectNothingTouched();
}

TEST_F(MergeFaults, RenameThatFailsWithoutABackupLeavesTheTargetAsItWas) {
  EXPECT_EQ(MergeWithFailing("rename BREVANTA.LIB BREVANTA.OLD"), 1);
  ExpectNothingTouched();
}

TEST_F(MergeFaults, StaleBackupGivesTheLayoutWhenTheRenameFails) {
  WriteBytes(Backup(), "# stale\nVYROBCE Z\nz1; 9\n\n");
  EXPECT_EQ(MergeWithFailing("rename BREVANTA.LIB BREVANTA.OLD"), 0);
  EXPECT_EQ(ReadText(Target()), "# stale\nVYROBCE Z\n\nVYROBCE A\na1; 1\na2; 2\n");
  EXPECT_FALSE(FileExists(Backup()));
}

TEST_F(MergeFaults, BackupThatCannotBeReopenedIsDeletedAndLeavesAnEmptyTarget) {
  EXPECT_EQ(MergeWithFailing("open r BREVANTA.OLD"), 0);
  EXPECT_EQ(ReadBytes(Target()), "");
  EXPECT_FALSE(FileExists(Backup()));
}

TEST_F(MergeFaults, TargetThatCannotBeCreatedLeavesTheBackup) {
  EXPECT_EQ(MergeWithFailing("open w BREVANTA.LIB"), 1);
  EXPECT_FALSE(FileExists(Target()));
  EXPECT_EQ(ReadBytes(Backup()), TARGET);
}

TEST_F(MergeFaults, BackupThatCannotBeReadStays) {
  EXPECT_EQ(MergeWithFailing("read BREVANTA.OLD"), 1);
  EXPECT_EQ(ReadBytes(Backup()), TARGET);
}

TEST_F(MergeFaults, FullDiskLeavesTheBackup) {
  EXPECT_EQ(MergeWithFailing("write BREVANTA.LIB"), 1);
  EXPECT_EQ(ReadBytes(Backup()), TARGET);
}

TEST_F(MergeFaults, BackupThatCannotBeRemovedStaysBesideTheNewTarget) {
  EXPECT_EQ(MergeWithFailing("remove BREVANTA.OLD"), 0);
  EXPECT_EQ(ReadText(Target()), BOTH);
  EXPECT_EQ(ReadBytes(Backup()), TARGET);
}

TEST_F(MergeFaults, FailedCloseOfTheTargetLeavesTheBackup) {
  // The same words close the target after it was collected, which does not matter.
  stdio.FailNumber(15);
  EXPECT_EQ(Merge(), 1);
  EXPECT_EQ(stdio.Operations().back(), "close BREVANTA.LIB");
  EXPECT_EQ(ReadBytes(Backup()), TARGET);
}

TEST_F(MergeFaults, BackupKeepsTheTargetsPathButForTheLastThreeCharacters) {
  std::filesystem::rename(Target(), folder / "my.catalogue");
  EXPECT_EQ(mergeLibraryFiles(nullptr, Source().c_str(), (folder / "my.catalogue").c_str(), 4), 0);
  EXPECT_THAT(stdio.Operations(), testing::Contains("rename my.catalogue my.cataloOLD"));
}

TEST_F(MergeFaults, StaleBackupIsReplacedWhereTheSystemRenamesOverIt) {
  WriteBytes(folder / "a", "new");
  WriteBytes(folder / "b", "stale");
  std::error_code refused;
  const bool replaces = std::rename((folder / "a").c_str(), (folder / "b").c_str()) == 0;
  if (!replaces) GTEST_SKIP() << "the system does not rename over a file";
  WriteBytes(Backup(), "# stale\n");
  EXPECT_EQ(Merge(), 0);
  EXPECT_EQ(ReadText(Target()), BOTH);
  EXPECT_FALSE(FileExists(Backup()));
}

// Catalogues of many blocks, so that reading and writing take several operations.
class LargeMergeFaults : public MergeTest {
 protected:
  static std::string Catalogue(const std::string& key, int items) {
    std::string text = "# preamble\n";
    for (int i = 0; i < items; ++i) {
      if (i % 500 == 0) text += "\nVYROBCE " + std::to_string(i / 500) + "\n";
      text += key + std::to_string(i) + "; 78; 118; description of an item\n";
    }
    return text;
  }

  const std::string target = Catalogue("t", 5000);
  const std::string source = Catalogue("s", 3000);
};

TEST_F(LargeMergeFaults, OneWholeCatalogueIsThereWhicheverOperationFails) {
  const std::string merged = Merged(target, source);
  for (int number = 1;; ++number) {
    Write(target, source);
    std::filesystem::remove(Backup());
    ScriptedStdio stdio;
    stdio.FailNumber(number);
    const std::int32_t result = Merge();
    if (static_cast<int>(stdio.Operations().size()) < number) {
      EXPECT_GT(number, 25);
      break;
    }
    const std::string& failed = stdio.Operations()[static_cast<std::size_t>(number - 1)];
    if (failed == "open r BREVANTA.OLD") continue;  // the kept case, tested above
    const bool whole =
        ReadText(Target()) == merged || ReadText(Target()) == target || ReadText(Backup()) == target;
    EXPECT_TRUE(whole) << failed << " " << number;
    EXPECT_EQ(ReadBytes(Source()), source);
    EXPECT_TRUE(result != MERGE_DONE || !ReadText(Target()).empty());
  }
}

}  // namespace
}  // namespace brevanta
