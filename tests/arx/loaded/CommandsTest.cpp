// CommandsTest.cpp - the built module's commands, called by a stand-alone host.
#include <algorithm>

#include <gmock/gmock.h>

#include "platform/Export.h"
#include "tests/arx/loaded/StandAloneHost.h"

namespace {

brevanta::HostFunctionTable* givenTable = nullptr;

}  // namespace

PLATFORM_EXPORT brevanta::HostFunctionTable* GetExport2D();

brevanta::HostFunctionTable* GetExport2D() {
  return givenTable;
}

void GiveTable(brevanta::HostFunctionTable* table) {
  givenTable = table;
}

namespace {

using played_host::HiddenFile;
using testing::Each;
using testing::IsEmpty;

using OutsideCommands = StandAloneHost;

std::vector<std::string> Layers() {
  std::vector<std::string> layers;
  for (const auto& entity : recording_host::Entities())
    layers.push_back(node_list::TextOf(entity, 8));
  return layers;
}

TEST_F(OutsideCommands, ConfirmedWindowIsInserted) {
  EXPECT_EQ(Insert(), 1);
  EXPECT_EQ(dialog.calls, 1);
  EXPECT_EQ(recording_host::Faces().size(), 17U);
  EXPECT_EQ(recording_host::Lines().size(), 7U);
}

TEST_F(OutsideCommands, OnlyOneConfirms) {
  for (const std::int32_t answer : {2, 0, -1}) {
    dialog.answer = answer;
    EXPECT_EQ(Insert(), 1);
    EXPECT_EQ(played_host::EditBrevanta(&dialog, 10, 0), answer);
    EXPECT_THAT(recording_host::Calls(), IsEmpty());
  }
}

TEST_F(OutsideCommands, DialogGetsTheDefaultsAndTheCommandsUnitFactor) {
  dialog.answer = 0;
  played_host::Brevanta(&dialog, 1000, nullptr, -5);
  EXPECT_EQ(dialog.given.width, 0.94);
  EXPECT_EQ(dialog.given.length, 1.4);
  EXPECT_EQ(dialog.given.pitch, 30);
  EXPECT_EQ(dialog.given.drawOpeningSymbol, -1);
  EXPECT_STREQ(dialog.given.openingCode, "D");
  EXPECT_EQ(dialog.given.markerValue, 0);
  EXPECT_EQ(dialog.given.unitFactor, 1000);
}

TEST_F(OutsideCommands, InsertingPassesItsArgumentAndNoEditFlag) {
  dialog.answer = 0;
  played_host::Brevanta(&dialog, 1, nullptr, -5);
  EXPECT_EQ(dialog.dialogArg, -5);
  EXPECT_EQ(dialog.editFlag, 0);
}

TEST_F(OutsideCommands, EditingPassesItsModeAndTheEditFlag) {
  dialog.answer = 0;
  played_host::EditBrevanta(&dialog, 1, 77);
  EXPECT_EQ(dialog.dialogArg, 77);
  EXPECT_EQ(dialog.editFlag, 1);
  EXPECT_EQ(played_host::TheErasePlay().calls, 0);
}

TEST_F(OutsideCommands, EditedWindowIsInsertedAfresh) {
  EXPECT_EQ(played_host::EditBrevanta(&dialog, window_of_three::UNIT_FACTOR, 0), 1);
  EXPECT_EQ(recording_host::Faces().size(), 17U);
}

TEST_F(OutsideCommands, EditModeOneErasesOnly) {
  played_host::TheErasePlay().answer = 5;
  EXPECT_EQ(played_host::EditBrevanta(&dialog, 1, 1), 5);
  EXPECT_EQ(played_host::TheErasePlay().calls, 1);
  EXPECT_EQ(dialog.calls, 0);
  EXPECT_THAT(recording_host::Calls(), IsEmpty());
}

TEST_F(OutsideCommands, InsertingLeavesNoDialogModuleLoaded) {
  Insert();
  EXPECT_EQ(played_host::UnloadDialog(), 0);
}

TEST_F(OutsideCommands, EveryEditLeavesOneMoreHandle) {
  dialog.answer = 0;
  for (int edit = 0; edit < 3; ++edit)
    played_host::EditBrevanta(&dialog, 1, edit % 2);
  EXPECT_EQ(played_host::UnloadDialog(), 3);
}

TEST_F(OutsideCommands, DialogComesFromTheHostsFolder) {
  Insert();
  EXPECT_EQ(std::filesystem::path(dialog.moduleFile).parent_path(),
            std::filesystem::path(ProgramFolder()).parent_path());
}

TEST_F(OutsideCommands, MissingDialogModuleGivesZero) {
  const HiddenFile hidden(Beside("BREVANTA_D.CRX"));
  EXPECT_EQ(Insert(), 0);
  EXPECT_EQ(played_host::EditBrevanta(&dialog, 1, 0), 0);
  EXPECT_EQ(played_host::EditBrevanta(&dialog, 1, 1), 0);
  EXPECT_EQ(dialog.calls, 0);
}

TEST_F(OutsideCommands, MissingResourceModuleLeavesTheLayersEmpty) {
  const HiddenFile hidden(Beside("Brevanta_d.tkr"));
  record().drawOpeningSymbol = 1;
  EXPECT_EQ(Insert(), 1);
  EXPECT_EQ(Layers().size(), 17U + 10 + 4);
  EXPECT_THAT(Layers(), Each(""));
}

TEST_F(OutsideCommands, NullTableInsertsNothing) {
  GiveTable(nullptr);
  EXPECT_EQ(Insert(), 1);
  EXPECT_THAT(recording_host::Calls(), IsEmpty());
}

TEST_F(OutsideCommands, WithoutMakeEntityOnlyTheBatchIsCalled) {
  recording_host::Table()->entries[15] = nullptr;
  EXPECT_EQ(Insert(), 1);
  EXPECT_THAT(recording_host::Calls(), testing::ElementsAre("begin", "end 1"));
}

TEST_F(OutsideCommands, WithoutBeginBatchEntitiesAreStillMade) {
  recording_host::Table()->entries[17] = nullptr;
  Insert();
  ASSERT_EQ(recording_host::Calls().size(), 25U);
  EXPECT_EQ(recording_host::Calls().front(), "3DFACE");
  EXPECT_EQ(recording_host::Calls().back(), "end 1");
}

TEST_F(OutsideCommands, WithoutEndBatchEntitiesAreStillMade) {
  recording_host::Table()->entries[19] = nullptr;
  Insert();
  ASSERT_EQ(recording_host::Calls().size(), 25U);
  EXPECT_EQ(recording_host::Calls().front(), "begin");
  EXPECT_EQ(recording_host::Calls().back(), "LINE");
}

TEST_F(OutsideCommands, RefusedEntitiesStopNothing) {
  recording_host::AnswerMakeEntity(-5001);
  EXPECT_EQ(Insert(), 1);
  EXPECT_EQ(recording_host::Entities().size(), 24U);
}

TEST_F(OutsideCommands, EntitiesStandBetweenTheBatchCalls) {
  record().drawOpeningSymbol = -1;
  Insert();
  const auto& calls = recording_host::Calls();
  ASSERT_EQ(calls.size(), 1U + 17 + 10 + 4 + 1);
  EXPECT_EQ(calls.front(), "begin");
  EXPECT_EQ(calls.back(), "end 1");
  EXPECT_EQ(std::count(calls.begin(), calls.begin() + 18, "3DFACE"), 17);
  EXPECT_EQ(std::count(calls.begin() + 18, calls.end() - 1, "LINE"), 14);
  EXPECT_TRUE(recording_host::OnlyZeroReserved());
}

TEST_F(OutsideCommands, UnfitRoofsInsertNothing) {
  record().roofPlanePoints[1] = {1000, 2200, 0};  // collinear
  EXPECT_EQ(Insert(), 1);
  record().roofPlanePoints[1] = {1000, 2000, 75};  // vertical
  EXPECT_EQ(Insert(), 1);
  EXPECT_THAT(recording_host::Calls(), IsEmpty());
}

TEST_F(OutsideCommands, SecondWindowOwesNothingToTheFirst) {
  Insert();
  recording_host::Reset();
  GiveTable(recording_host::Table());
  Insert();
  EXPECT_EQ(window_of_three::FirstDifference(window_of_three::Body(), recording_host::Faces()), "");
}

}  // namespace
