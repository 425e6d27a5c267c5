// CommandsTest.cpp - the commands against played services
// and a played dialog: order of the calls, results, state.
#include <algorithm>
#include <optional>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "arx/exports/Commands.h"
#include "arx/exports/HostTable.h"
#include "platform/ModuleState.h"
#include "tests/support/FakeModules.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RoundRecord.h"

namespace brevanta {
namespace {

using fake_modules::TheWorld;
using testing::ElementsAre;

// The dialog's script, and what it was called with.
struct Play {
  std::int32_t answer = 0;
  std::int32_t eraseAnswer = 0;
  bool fails = false;
  std::optional<WindowParams> confirmed;  // what it puts into the record
  void* context = nullptr;
  std::int32_t dialogArg = 0;
  std::int32_t editFlag = 0;
  WindowParams given{};
  AFX_MODULE_STATE* state = nullptr;
};

Play& ThePlay() {
  static Play play;
  return play;
}

std::int32_t PlayDialog(void* hostContext, WindowParams* record, std::int32_t dialogArg,
                        std::int32_t editFlag) {
  TheWorld().calls.emplace_back("Dialog");
  Play& play = ThePlay();
  play.context = hostContext;
  play.dialogArg = dialogArg;
  play.editFlag = editFlag;
  play.given = *record;
  play.state = AfxGetModuleState();
  if (play.fails) throw std::runtime_error("dialog failed");
  if (play.confirmed) *record = *play.confirmed;
  return play.answer;
}

std::int32_t PlayErase() {
  TheWorld().calls.emplace_back("EraseWindow");
  ThePlay().state = AfxGetModuleState();
  if (ThePlay().fails) throw std::runtime_error("dialog failed");
  return ThePlay().eraseAnswer;
}

HostFunctionTable* GiveTable() {
  TheWorld().calls.emplace_back("GetExport2D");
  return recording_host::Table();
}

class CommandsTest : public testing::Test {
 protected:
  void SetUp() override {
    fake_modules::Reset();
    recording_host::Reset();
    ThePlay() = Play();
    dialog.exports["Dialog"] = reinterpret_cast<FARPROC>(PlayDialog);
    dialog.exports["EraseWindow"] = reinterpret_cast<FARPROC>(PlayErase);
    host.exports["GetExport2D"] = reinterpret_cast<FARPROC>(GiveTable);
    TheWorld().running["TESKARLT.EXE"] = &host;
    TheWorld().fileNames[&host] = "/teskar/teskarlt";
    TheWorld().installed["/teskar/BREVANTA_D.CRX"] = &dialog;
    TheWorld().installed["/teskar/Brevanta_d.tkr"] = &resources;
  }
  void Confirm(std::int32_t answer = 1) {
    ThePlay().answer = answer;
    ThePlay().confirmed = round_record::OnSlope();
  }
  // The calls that begin with none of the two that every search for the host makes.
  static std::vector<std::string> Calls() {
    std::vector<std::string> calls;
    for (const std::string& call : TheWorld().calls) {
      if (call.rfind("GetModule", 0) != 0) calls.push_back(call);
    }
    return calls;
  }

  fake_modules::Module host;
  fake_modules::Module dialog;
  fake_modules::Module resources;
  int context = 0;
};

TEST_F(CommandsTest, BrevantaGivesZeroWithoutTheDialogModule) {
  TheWorld().installed.clear();
  EXPECT_EQ(Brevanta(&context, 1, nullptr, 0), 0);
  EXPECT_THAT(Calls(), ElementsAre("AfxLoadLibrary /teskar/BREVANTA_D.CRX"));
}

TEST_F(CommandsTest, BrevantaLoadsAsksAndFrees) {
  EXPECT_EQ(Brevanta(&context, 1, nullptr, 0), 1);
  EXPECT_THAT(Calls(), ElementsAre("AfxLoadLibrary /teskar/BREVANTA_D.CRX", "GetProcAddress Dialog", "Dialog",
                                   "FreeLibrary"));
  EXPECT_EQ(dialog.loadCount, 0);
}

TEST_F(CommandsTest, BrevantaInsertsBetweenDialogAndFree) {
  Confirm();
  ThePlay().confirmed->bodyAsFaces = 0;
  EXPECT_EQ(Brevanta(&context, 1, nullptr, 0), 1);
  EXPECT_THAT(Calls(), ElementsAre("AfxLoadLibrary /teskar/BREVANTA_D.CRX", "GetProcAddress Dialog", "Dialog",
                                   "AfxLoadLibrary /teskar/Brevanta_d.tkr", "GetProcAddress GetExport2D",
                                   "GetExport2D", "LoadStringA 57", "FreeLibrary", "FreeLibrary"));
  EXPECT_EQ(dialog.loadCount, 0);
  EXPECT_EQ(resources.loadCount, 0);
  EXPECT_EQ(recording_host::Lines().size(), 7U);
}

TEST_F(CommandsTest, DialogGetsADefaultedRecordWithTheCommandsUnitFactor) {
  Brevanta(&context, 1000, &context, 42);
  const Play& play = ThePlay();
  EXPECT_EQ(play.context, &context);
  EXPECT_EQ(play.dialogArg, 42);
  EXPECT_EQ(play.editFlag, 0);
  EXPECT_EQ(play.given.unitFactor, 1000);
  EXPECT_EQ(play.given.width, 0.94);
  EXPECT_STREQ(play.given.openingCode, "D");
}

TEST_F(CommandsTest, EditedDialogGetsADefaultedRecordAndTheEditFlag) {
  EditBrevanta(&context, 100, -7);
  const Play& play = ThePlay();
  EXPECT_EQ(play.context, &context);
  EXPECT_EQ(play.dialogArg, -7);
  EXPECT_EQ(play.editFlag, 1);
  EXPECT_EQ(play.given.unitFactor, 100);
  EXPECT_EQ(play.given.length, 1.4);
}

TEST_F(CommandsTest, OnlyOneConfirms) {
  for (const std::int32_t answer : {2, 0, -1}) {
    Confirm(answer);
    EXPECT_EQ(Brevanta(&context, 1, nullptr, 0), 1);
    EXPECT_EQ(EditBrevanta(&context, 1, 0), answer);
    EXPECT_TRUE(recording_host::Calls().empty());
  }
}

TEST_F(CommandsTest, FailedInsertionChangesNoResult) {
  Confirm();
  ThePlay().confirmed->roofPlanePoints[1] = {0, 0, 100};  // vertical
  EXPECT_EQ(Brevanta(&context, 1, nullptr, 0), 1);
  EXPECT_EQ(EditBrevanta(&context, 1, 0), 1);
  EXPECT_TRUE(recording_host::Calls().empty());
}

TEST_F(CommandsTest, InsertionTakesTheCommandsUnitFactor) {
  Confirm();
  Brevanta(&context, 10, nullptr, 0);
  EXPECT_NEAR(node_list::PointOf(recording_host::Faces()[0], 13)[1], -30, 1e-9);  // depth 5, lifted by 50
}

TEST_F(CommandsTest, EditGivesZeroWithoutTheDialogModule) {
  TheWorld().installed.clear();
  EXPECT_EQ(EditBrevanta(&context, 1, 0), 0);
  EXPECT_EQ(EditBrevanta(&context, 1, 1), 0);
}

TEST_F(CommandsTest, EditLoadsTheDialogTwiceAndFreesItOnce) {
  EXPECT_EQ(EditBrevanta(&context, 1, 0), 0);
  EXPECT_THAT(Calls(),
              ElementsAre("AfxLoadLibrary /teskar/BREVANTA_D.CRX", "AfxLoadLibrary /teskar/BREVANTA_D.CRX",
                          "GetProcAddress Dialog", "Dialog", "FreeLibrary"));
}

TEST_F(CommandsTest, EditInsertsWhatIsConfirmed) {
  Confirm();
  EXPECT_EQ(EditBrevanta(&context, 1, 0), 1);
  EXPECT_EQ(recording_host::Faces().size(), 17U);
  EXPECT_EQ(resources.loadCount, 0);
}

TEST_F(CommandsTest, EditModeOneErasesAndRunsNoDialog) {
  ThePlay().eraseAnswer = 33;
  EXPECT_EQ(EditBrevanta(&context, 1, 1), 33);
  EXPECT_THAT(Calls(), ElementsAre("AfxLoadLibrary /teskar/BREVANTA_D.CRX", "GetProcAddress EraseWindow",
                                   "EraseWindow"));
}

TEST_F(CommandsTest, EveryEditKeepsOneMoreHandle) {
  for (int edits = 1; edits <= 3; ++edits) {
    EditBrevanta(&context, 1, 0);
    EXPECT_EQ(dialog.loadCount, 2 * edits - 1);
    EditBrevanta(&context, 1, 1);
    EXPECT_EQ(dialog.loadCount, 2 * edits);
  }
}

TEST_F(CommandsTest, EditGivesZeroWhenTheSecondLoadFails) {
  TheWorld().loadsLeft["/teskar/BREVANTA_D.CRX"] = 1;
  Confirm();
  EXPECT_EQ(EditBrevanta(&context, 1, 0), 0);
  EXPECT_EQ(dialog.loadCount, 1);
}

TEST_F(CommandsTest, ModuleStateIsThisModulesWhileACommandRuns) {
  Confirm();
  Brevanta(&context, 1, nullptr, 0);
  EXPECT_EQ(ThePlay().state, AfxGetStaticModuleState());
  EXPECT_THAT(TheWorld().inModuleState, testing::Each(true));
  EditBrevanta(&context, 1, 1);
  EXPECT_EQ(ThePlay().state, AfxGetStaticModuleState());
}

TEST_F(CommandsTest, ModuleStateOfTheCallerComesBackFromEveryWayOut) {
  AFX_MODULE_STATE callers;
  const AFX_MAINTAIN_STATE2 scope(&callers);
  const auto runAll = [&] {
    Brevanta(&context, 1, nullptr, 0);
    EXPECT_EQ(AfxGetModuleState(), &callers);
    EditBrevanta(&context, 1, 0);
    EXPECT_EQ(AfxGetModuleState(), &callers);
    EditBrevanta(&context, 1, 1);
    EXPECT_EQ(AfxGetModuleState(), &callers);
  };
  runAll();
  Confirm();
  runAll();
  TheWorld().installed.clear();
  runAll();
}

TEST_F(CommandsTest, ModuleStateOfTheCallerComesBackFromExceptions) {
  AFX_MODULE_STATE callers;
  const AFX_MAINTAIN_STATE2 scope(&callers);
  ThePlay().fails = true;
  EXPECT_THROW(Brevanta(&context, 1, nullptr, 0), std::runtime_error);
  EXPECT_EQ(AfxGetModuleState(), &callers);
  EXPECT_EQ(dialog.loadCount, 0);
  EXPECT_THROW(EditBrevanta(&context, 1, 0), std::runtime_error);
  EXPECT_EQ(AfxGetModuleState(), &callers);
  EXPECT_THROW(EditBrevanta(&context, 1, 1), std::runtime_error);
  EXPECT_EQ(AfxGetModuleState(), &callers);
}

TEST_F(CommandsTest, InsertionRunsWithoutTheHostsExport) {
  Confirm();
  host.exports.clear();
  EXPECT_EQ(Brevanta(&context, 1, nullptr, 0), 1);
  EXPECT_TRUE(recording_host::Calls().empty());
}

TEST_F(CommandsTest, MissingResourceModuleIsNeverAskedNorFreed) {
  Confirm();
  TheWorld().installed.erase("/teskar/Brevanta_d.tkr");
  Brevanta(&context, 1, nullptr, 0);
  EXPECT_THAT(TheWorld().calls, testing::Not(testing::Contains("LoadStringA 60")));
  EXPECT_EQ(std::count(TheWorld().calls.begin(), TheWorld().calls.end(), "FreeLibrary"), 1);
  EXPECT_EQ(node_list::TextOf(recording_host::Faces()[0], 8), "");
  EXPECT_EQ(node_list::TextOf(recording_host::Lines()[0], 8), "");
}

TEST_F(CommandsTest, LayersAreTheStringsOfTheirNumbers) {
  Confirm();
  ThePlay().confirmed->drawOpeningSymbol = 2;
  Brevanta(&context, 1, nullptr, 0);
  EXPECT_EQ(node_list::TextOf(recording_host::Faces()[0], 8), "LAYER_60");
  EXPECT_EQ(node_list::TextOf(recording_host::Lines()[0], 8), "LAYER_59");
  EXPECT_EQ(node_list::TextOf(recording_host::Lines()[8], 8), "LAYER_58");
}

TEST_F(CommandsTest, HostTableIsLookedUpAfreshForEachWindow) {
  Confirm();
  Brevanta(&context, 1, nullptr, 0);
  Brevanta(&context, 1, nullptr, 0);
  EXPECT_EQ(std::count(TheWorld().calls.begin(), TheWorld().calls.end(), "GetExport2D"), 2);
}

TEST(HostFunctionTableLookup, StandAloneHostWithoutTheExportHidesTheExtensionModule) {
  fake_modules::Reset();
  fake_modules::Module standAlone;
  fake_modules::Module extension;
  extension.exports["GetExport2D"] = reinterpret_cast<FARPROC>(GiveTable);
  TheWorld().running["TESKARLT.EXE"] = &standAlone;
  TheWorld().running["TESKAR2D.ARX"] = &extension;
  EXPECT_EQ(GetHostFunctionTable(), nullptr);
  TheWorld().running.erase("TESKARLT.EXE");
  EXPECT_EQ(GetHostFunctionTable(), recording_host::Table());
}

}  // namespace
}  // namespace brevanta
