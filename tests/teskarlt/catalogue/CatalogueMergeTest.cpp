// CatalogueMergeTest.cpp - merges of catalogues through the real module, and what stops them.
#include <cstdio>
#include <filesystem>
#include <new>

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

// What happens instead of an operation on a file; counts down from `after` until then.
struct Trouble {
  int after = 0;
  bool Comes() { return after-- <= 0; }
};
Trouble reading;
Trouble opening;
Trouble looking;
std::string seenInstead;  // the file that is opened or looked at then

int FailRead(platform::FileHandle file, char* buffer, std::size_t capacity, std::size_t& count) {
  if (reading.Comes()) return SYSTEM_ERROR;
  return platform::SystemFileOperations().read(file, buffer, capacity, count);
}
int FailOneRead(platform::FileHandle file, char* buffer, std::size_t capacity, std::size_t& count) {
  if (reading.Comes() && reading.after == -1) return SYSTEM_ERROR;
  return platform::SystemFileOperations().read(file, buffer, capacity, count);
}
int LackMemoryForOneRead(platform::FileHandle file, char* buffer, std::size_t capacity, std::size_t& count) {
  if (reading.Comes() && reading.after == -1) throw std::bad_alloc();
  return platform::SystemFileOperations().read(file, buffer, capacity, count);
}
int OpenAnother(const std::string& path, platform::FileHandle& file) {
  return platform::SystemFileOperations().openToRead(opening.Comes() ? seenInstead : path, file);
}
int OpenAnotherInstead(const std::string& path, platform::FileHandle& file) {
  const bool isMissing = path.ends_with("missing.LIB");
  return platform::SystemFileOperations().openToRead(isMissing ? seenInstead : path, file);
}
int LookAtAnotherInstead(const std::string& path, platform::FileState& state) {
  const bool isMissing = path.ends_with("missing.LIB") || (path.ends_with(".OLD") && looking.Comes());
  return platform::SystemFileOperations().stat(isMissing ? seenInstead : path, state);
}
int SeeNothingWritable(const std::string& path, platform::FileState& state) {
  const int error = platform::SystemFileOperations().stat(path, state);
  state.isWritable = false;
  return error;
}
int FailRemove(const std::string& /*path*/) {
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
    reading = opening = looking = {};
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

  MergeReport Merge() { return MergeCatalogues(module, source, target); }
  std::string Refusal() {
    return RefusalOf([&] { Merge(); });
  }
  // The refusal of a merge in which the operations fail as the test has set them.
  std::string RefusalInTrouble() {
    platform::SetFileOperations(&operations);
    std::string refusal = Refusal();
    platform::SetFileOperations(nullptr);
    return refusal;
  }
  static std::string Text(const std::string& path) {
    return std::string(platform::ReadWholeFile(path).View());
  }
  // The module ends lines as its system does.
  static std::string TextOfLines(const std::string& path) {
    std::string text = Text(path);
    std::erase(text, '\r');
    return text;
  }

  const WindowModule module;
  platform::FileOperations operations = platform::SystemFileOperations();
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

// Before the merge both catalogues are read, each with a second read that gives no bytes; then the merged one
// is.
constexpr Trouble AFTER_THE_MERGE{4};

TEST_F(CatalogueMerge, CatalogueThatCannotBeReadAfterwardsIsAgainWhatItWas) {
  operations.read = FailOneRead;
  reading = AFTER_THE_MERGE;
  EXPECT_THAT(RefusalInTrouble(), HasSubstr("again what it was"));
  EXPECT_EQ(Text(target), OLD);
}

TEST_F(CatalogueMerge, LackOfMemoryAfterwardsLeavesTheCatalogueWhatItWas) {
  operations.read = LackMemoryForOneRead;
  reading = AFTER_THE_MERGE;
  platform::SetFileOperations(&operations);
  EXPECT_THROW(Merge(), std::bad_alloc);
  platform::SetFileOperations(nullptr);
  EXPECT_EQ(Text(target), OLD);
}

TEST_F(CatalogueMerge, CatalogueThatCannotBeBroughtBackIsTold) {
  operations.read = FailRead;
  reading = AFTER_THE_MERGE;
  EXPECT_THAT(RefusalInTrouble(), HasSubstr("BREVANTA.LIB: cannot be brought back"));
}

TEST_F(CatalogueMerge, CatalogueThatLacksWindowsAfterwardsIsAgainWhatItWas) {
  seenInstead = folder + "/less.LIB";
  platform::WriteWholeFile(seenInstead, "VYROBCE Alfa\nx; 1\n");
  operations.openToRead = OpenAnother;
  opening = {3};  // source and target, and the target once more to hold it
  EXPECT_THAT(RefusalInTrouble(), HasSubstr("the merged catalogue lacks windows of " + source));
  EXPECT_EQ(Text(target), OLD);
}

TEST_F(CatalogueMerge, SourceThatCannotBeReadCostsNothing) {
  operations.read = FailRead;
  EXPECT_THAT(RefusalInTrouble(), HasSubstr("update.LIB"));
  EXPECT_EQ(Text(target), OLD);
}

TEST_F(CatalogueMerge, TargetThatCannotBeHeldIsLeftAlone) {
  seenInstead = folder + "/nowhere/none.LIB";
  operations.openToRead = OpenAnother;
  opening = {2};
  EXPECT_THAT(RefusalInTrouble(), HasSubstr("BREVANTA.LIB: cannot be opened"));
  EXPECT_EQ(Text(target), OLD);
}

TEST_F(CatalogueMerge, SourceThatTheModuleCannotOpenIsNamed) {
  seenInstead = source;
  source = folder + "/missing.LIB";
  operations.openToRead = OpenAnotherInstead;
  operations.stat = LookAtAnotherInstead;
  looking = {100};
  EXPECT_EQ(RefusalInTrouble(), source + " cannot be opened");
}

TEST_F(CatalogueMerge, TargetThatMustNotBeWrittenIsRefused) {
  operations.stat = SeeNothingWritable;
  EXPECT_THAT(RefusalInTrouble(), HasSubstr("must not be written"));
}

TEST_F(CatalogueMerge, BackupThatStaysIsWarnedOf) {
  seenInstead = source;
  operations.stat = LookAtAnotherInstead;
  operations.remove = FailRemove;
  looking = {1};  // before the merge there is none
  platform::SetFileOperations(&operations);
  const MergeReport report = Merge();
  platform::SetFileOperations(nullptr);
  EXPECT_THAT(report.warnings,
              ElementsAre(HasSubstr("is done, but its backup " + backup + " cannot be removed")));
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
  operations.remove = FailRemove;
  platform::SetFileOperations(&operations);
  const std::string refusal = RefusalOf([&] { RecoverCatalogue(target); });
  platform::SetFileOperations(nullptr);
  EXPECT_THAT(refusal, HasSubstr("was brought back, but " + backup + " cannot be removed"));
  EXPECT_EQ(Text(target), NEW);
}

constexpr const char* CZECH_TARGET = "VYROBCE B\xECla\nb; 1\n";  // code page 1250
constexpr const char* UTF8_SOURCE = "VYROBCE Běla\nb; 1\nšedá; 2\n";
constexpr const char* CZECH_MERGED =
    "VYROBCE B\xECla\nb; 1\n\x9A"
    "ed\xE1; 2\n";

TEST_F(CatalogueMerge, SourceInUtf8IsTakenOverInTheCodePageOfTheTarget) {
  platform::WriteWholeFile(target, CZECH_TARGET);
  platform::WriteWholeFile(source, UTF8_SOURCE);
  const MergeReport report = Merge();
  EXPECT_EQ(TextOfLines(target), CZECH_MERGED);
  EXPECT_EQ(report.alreadyThere, 1U);
  EXPECT_THAT(report.warnings, ElementsAre("the windows of " + source +
                                           ", which is in UTF-8, are taken over in code page 1250"));
  EXPECT_EQ(Text(source), UTF8_SOURCE);
  EXPECT_FALSE(fs::exists(target + ".source.tmp"));
}

TEST_F(CatalogueMerge, SourceInACodePageIsTakenOverInUtf8) {
  platform::WriteWholeFile(target, "VYROBCE Běla\nb; 1\n");
  platform::WriteWholeFile(source, CZECH_MERGED);
  Merge();
  EXPECT_EQ(TextOfLines(target), UTF8_SOURCE);
}

TEST_F(CatalogueMerge, CharacterThatTheTargetLacksIsRefusedWithItsLine) {
  platform::WriteWholeFile(target, CZECH_TARGET);
  platform::WriteWholeFile(source, "VYROBCE Běla\n天窓; 1\n");
  EXPECT_EQ(Refusal(), source + ":2: the character \"天\" (U+5929) does not exist in code page 1250");
  EXPECT_EQ(Text(target), CZECH_TARGET);
}

TEST_F(CatalogueMerge, EncodingOfTheSourceCanBeSaid) {
  platform::WriteWholeFile(target, "VYROBCE Běla\nb; 1\n");
  platform::WriteWholeFile(source, "VYROBCE Sm\xF8r\ns; 1\n");  // r with caron in 1250, o with stroke in 1252
  MergeCatalogues(module, source, target, "cp1252");
  EXPECT_THAT(TextOfLines(target), HasSubstr("VYROBCE Smør\n"));
}

TEST_F(CatalogueMerge, EncodingThatTheProgramWouldNotFindAgainBecomesUtf8) {
  platform::WriteWholeFile(source, "VYROBCE Sm\xF8r\ns; 1\n");  // the target is plain ASCII
  MergeCatalogues(module, source, target, "cp1252");
  EXPECT_THAT(TextOfLines(target), HasSubstr("VYROBCE Smør\n"));
}

TEST_F(CatalogueMerge, EncodingThatTheSourceIsNotInIsRefused) {
  platform::WriteWholeFile(source, CZECH_MERGED);
  EXPECT_EQ(RefusalOf([&] { MergeCatalogues(module, source, target, "utf-8"); }),
            source + ":1: the line is not in UTF-8");
  EXPECT_THAT(RefusalOf([&] { MergeCatalogues(module, source, target, "latin9"); }),
              HasSubstr("--encoding latin9: no such encoding is known"));
  EXPECT_EQ(Text(target), OLD);
}

TEST_F(CatalogueMerge, CataloguesInOneEncodingAreMergedByteForByte) {
  platform::WriteWholeFile(target, CZECH_TARGET);
  platform::WriteWholeFile(source, CZECH_MERGED);
  EXPECT_THAT(Merge().warnings, IsEmpty());
  EXPECT_EQ(TextOfLines(target), CZECH_MERGED);
}

}  // namespace
}  // namespace teskarlt
