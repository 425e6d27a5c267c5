// MergeHostTest.cpp - the module's export, loaded by a host, on the host's data folder.
#include <cstdint>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Files.h"
#include "TestHost.h"
#include "inc/LibraryMerge.h"
#include "platform/ModuleServices.h"

namespace brevanta {
namespace {

using testing::ElementsAre;

constexpr const char* TARGET = "VYROBCE A\na1; 1\n";
constexpr const char* SOURCE = "VYROBCE A\na2; 2\n";
constexpr const char* BOTH = "VYROBCE A\na1; 1\na2; 2\n";

std::string ModulePath() {
  char program[1024];
  GetModuleFileNameA(nullptr, program, sizeof program);
  const auto folder = std::filesystem::path(program).parent_path();
  return (folder / ".." / ".." / "bin" / "BREVANTA.CRX").lexically_normal().string();
}

class MergeHost : public testing::Test {
 protected:
  static void SetUpTestSuite() { module = AfxLoadLibrary(ModulePath().c_str()); }
  static void TearDownTestSuite() { FreeLibrary(module); }

  void SetUp() override {
    ASSERT_NE(module, nullptr);
    merge = ExportedFunction<MergeLibraryFilesFunction>(module, MERGE_LIBRARY_FILES_EXPORT);
    ASSERT_NE(merge, nullptr);
    hostScript = HostScript();
    hostScript.folder = folder.Path() + "/";
    WriteBytes(Target(), TARGET);
    WriteBytes(Source(), SOURCE);
  }

  std::string Target() const { return folder / "BREVANTA.LIB"; }
  std::string Source() const { return folder / "update.LIB"; }
  std::int32_t Merge() const { return merge(nullptr, Source().c_str(), nullptr, 4); }

  static HMODULE module;
  TestFolder folder;
  MergeLibraryFilesFunction merge = nullptr;
};

HMODULE MergeHost::module = nullptr;

TEST_F(MergeHost, NullTargetIsTheCatalogueInTheDataFolder) {
  EXPECT_EQ(Merge(), 0);
  EXPECT_EQ(ReadText(Target()), BOTH);
  EXPECT_THAT(hostScript.calls, ElementsAre("folder 4 1024", "access 4 9", "access 4 4"));
}

TEST_F(MergeHost, DataFolderWithoutASeparatorBehindItIsTakenAsTheFile) {
  hostScript.folder = Target();
  EXPECT_EQ(Merge(), 0);
  EXPECT_EQ(ReadText(Target()), BOTH);
}

TEST_F(MergeHost, ExplicitTargetNeedsNoHost) {
  hostScript.hasTable = false;
  EXPECT_EQ(merge(nullptr, Source().c_str(), Target().c_str(), 4), 0);
  EXPECT_EQ(ReadText(Target()), BOTH);
  EXPECT_THAT(hostScript.calls, ElementsAre());
}

TEST_F(MergeHost, OtherFolderKindAndNullSourceAskTheHostNothing) {
  EXPECT_EQ(merge(nullptr, Source().c_str(), nullptr, 3), 1);
  EXPECT_EQ(merge(nullptr, nullptr, nullptr, 4), -1);
  EXPECT_THAT(hostScript.calls, ElementsAre());
}

TEST_F(MergeHost, HostWithoutATableGivesMinusTwo) {
  hostScript.hasTable = false;
  EXPECT_EQ(Merge(), -2);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeHost, FolderThatIsNotDeliveredGivesMinusTwoWithoutARequest) {
  hostScript.deliversFolder = false;
  EXPECT_EQ(Merge(), -2);
  EXPECT_THAT(hostScript.calls, ElementsAre("folder 4 1024"));
}

TEST_F(MergeHost, MissingTableEntriesGiveMinusTwo) {
  hostScript.hasGetDataFolder = false;
  EXPECT_EQ(Merge(), -2);
  hostScript.hasGetDataFolder = true;
  hostScript.hasDataFolderAccess = false;
  EXPECT_EQ(Merge(), -2);
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeHost, AnswerTwoGivesTheRequestBackAndRefuses) {
  hostScript.answer = 2;
  EXPECT_EQ(Merge(), -2);
  EXPECT_THAT(hostScript.calls, ElementsAre("folder 4 1024", "access 4 9", "access 4 2"));
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeHost, AnyOtherAnswerRefusesWithoutARelease) {
  for (const std::int32_t answer : {0, -1, 3, 4, 9}) {
    hostScript.answer = answer;
    hostScript.calls.clear();
    EXPECT_EQ(Merge(), -2);
    EXPECT_THAT(hostScript.calls, ElementsAre("folder 4 1024", "access 4 9"));
  }
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeHost, FolderIsReleasedWhenTheSourceIsMissing) {
  std::filesystem::remove(Source());
  EXPECT_EQ(Merge(), -1);
  EXPECT_EQ(hostScript.calls.back(), "access 4 4");
}

TEST_F(MergeHost, FolderIsReleasedWhenTheTargetIsMissing) {
  std::filesystem::remove(Target());
  EXPECT_EQ(Merge(), 0);
  EXPECT_EQ(hostScript.calls.back(), "access 4 4");
  EXPECT_FALSE(FileExists(Target()));
}

TEST_F(MergeHost, FolderIsReleasedWhenTheTargetCannotBeRewritten) {
  std::filesystem::create_directory(folder / "BREVANTA.OLD");
  WriteBytes(folder / "BREVANTA.OLD/kept", "");
  EXPECT_EQ(Merge(), 1);
  EXPECT_EQ(hostScript.calls.back(), "access 4 4");
  EXPECT_EQ(ReadBytes(Target()), TARGET);
}

TEST_F(MergeHost, FolderPathThatFillsTheBufferIsTaken) {
  hostScript.folder = std::string(1023, 'x');
  EXPECT_EQ(Merge(), 0);  // no such file: nothing to merge into
  hostScript.folder = std::string(1022, 'x') + "/";
  EXPECT_EQ(Merge(), 0);
}

TEST_F(MergeHost, StaleBackupIsGoneAfterTheMergeAndNoItemOfTheTargetIsLost) {
  // Where renaming does not replace a file the stale backup gives the layout.
  WriteBytes(folder / "BREVANTA.OLD", "# stale\nVYROBCE Z\nz1; 9\n");
  EXPECT_EQ(Merge(), 0);
  EXPECT_FALSE(FileExists(folder / "BREVANTA.OLD"));
  const std::string merged = ReadText(Target());
  EXPECT_TRUE(merged == BOTH || merged == "# stale\nVYROBCE Z\nVYROBCE A\na1; 1\na2; 2\n") << merged;
}

}  // namespace
}  // namespace brevanta
