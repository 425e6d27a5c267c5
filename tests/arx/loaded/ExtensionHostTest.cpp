// ExtensionHostTest.cpp - the built module without any host, and with the host as an extension module.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "inc/HostFunctionTable.h"
#include "tests/arx/loaded/PlayedHost.h"
#include "tests/arx/loaded/WindowOfThree.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/RecordingHost.h"

namespace {

using played_host::HiddenFile;

// The program's own name is no host's; beside it lie companion modules that the ordinary search finds.
class WithoutHost : public testing::Test {
 protected:
  void SetUp() override {
    recording_host::Reset();
    dialog.confirmed = window_of_three::Record();
  }
  void TearDown() override { played_host::UnloadDialog(); }

  std::int32_t Insert() { return played_host::Brevanta(&dialog, window_of_three::UNIT_FACTOR, nullptr, 0); }
  std::string FolderOfDialog() {
    return std::filesystem::path(dialog.moduleFile).parent_path().filename().string();
  }

  played_host::DialogPlay dialog;
};

// With the extension module in a folder of its own, among companion modules of its own.
class ExtensionHost : public WithoutHost {
 protected:
  void SetUp() override {
    WithoutHost::SetUp();
    host_ = AfxLoadLibrary(InHostFolder("TESKAR2D.ARX").c_str());
    ASSERT_NE(host_, nullptr) << ModuleLoadError();
    GiveTable(recording_host::Table());
  }
  void TearDown() override {
    WithoutHost::TearDown();
    FreeLibrary(host_);
    EXPECT_EQ(GetModuleHandleA("TESKAR2D.ARX"), nullptr);
  }

  static std::string InHostFolder(const char* name) { return ProgramFolder() + "host/" + name; }
  void GiveTable(brevanta::HostFunctionTable* table) {
    ExportedFunction<void (*)(brevanta::HostFunctionTable*)>(host_, "SetTestTable")(table);
  }

 private:
  HMODULE host_ = nullptr;
};

TEST_F(WithoutHost, DialogComesFromTheOrdinarySearch) {
  EXPECT_EQ(Insert(), 1);
  EXPECT_EQ(dialog.calls, 1);
  EXPECT_EQ(FolderOfDialog(), "extension");
}

TEST_F(WithoutHost, ConfirmedWindowGoesNowhere) {
  EXPECT_EQ(Insert(), 1);
  EXPECT_EQ(played_host::EditBrevanta(&dialog, 1, 0), 1);
  EXPECT_THAT(recording_host::Calls(), testing::IsEmpty());
}

TEST_F(WithoutHost, ErasingReachesTheDialogModule) {
  played_host::TheErasePlay().answer = 9;
  EXPECT_EQ(played_host::EditBrevanta(&dialog, 1, 1), 9);
}

TEST_F(WithoutHost, MissingDialogModuleGivesZero) {
  const HiddenFile hidden(ProgramFolder() + "BREVANTA_D.CRX");
  EXPECT_EQ(Insert(), 0);
  EXPECT_EQ(played_host::EditBrevanta(&dialog, 1, 0), 0);
}

TEST_F(ExtensionHost, WindowIsMadeThroughItsTable) {
  EXPECT_EQ(Insert(), 1);
  EXPECT_EQ(window_of_three::FirstDifference(window_of_three::Body(), recording_host::Faces()), "");
  EXPECT_EQ(recording_host::Lines().size(), 7U);
}

TEST_F(ExtensionHost, CompanionsComeFromItsFolder) {
  Insert();
  EXPECT_EQ(FolderOfDialog(), "host");
}

TEST_F(ExtensionHost, MissingFromItsFolderIsMissing) {
  const HiddenFile hidden(InHostFolder("BREVANTA_D.CRX"));  // the one beside the program is there
  EXPECT_EQ(Insert(), 0);
  EXPECT_EQ(dialog.calls, 0);
}

TEST_F(ExtensionHost, ResourcesMissingFromItsFolderAreMissing) {
  const HiddenFile hidden(InHostFolder("Brevanta_d.tkr"));
  EXPECT_EQ(Insert(), 1);
  ASSERT_EQ(recording_host::Faces().size(), 17U);
  EXPECT_EQ(node_list::TextOf(recording_host::Faces()[0], 8), "");
}

TEST_F(ExtensionHost, NullTableInsertsNothing) {
  GiveTable(nullptr);
  EXPECT_EQ(Insert(), 1);
  EXPECT_THAT(recording_host::Calls(), testing::IsEmpty());
}

}  // namespace
