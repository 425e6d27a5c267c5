// PlayedHost.cpp - loads the module under test and plays the dialog.
#include "tests/arx/loaded/PlayedHost.h"

#include <gtest/gtest.h>

#include "platform/Export.h"
#include "tests/support/ProgramFolder.h"

PLATFORM_EXPORT std::int32_t TestEraseWindow();

std::int32_t TestEraseWindow() {
  ++played_host::TheErasePlay().calls;
  return played_host::TheErasePlay().answer;
}

namespace played_host {

namespace {

constexpr const char* DIALOG_MODULE = "BREVANTA_D.CRX";

template <typename Function>
Function Command(const char* name) {
  static HMODULE module = AfxLoadLibrary((ProgramFolder() + "BREVANTA.CRX").c_str());
  EXPECT_NE(module, nullptr) << ModuleLoadError();
  return ExportedFunction<Function>(module, name);
}

std::string FileOf(HMODULE module) {
  char path[4096];
  return {path, GetModuleFileNameA(module, path, sizeof path)};
}

std::int32_t RunPlay(TestDialogContext* context, brevanta::WindowParams* record, std::int32_t dialogArg,
                     std::int32_t editFlag) {
  auto& play = *static_cast<DialogPlay*>(context);
  ++play.calls;
  play.given = *record;
  play.dialogArg = dialogArg;
  play.editFlag = editFlag;
  play.moduleFile = FileOf(GetModuleHandleA(DIALOG_MODULE));
  const std::int32_t unitFactor = record->unitFactor;
  *record = play.confirmed;
  record->unitFactor = unitFactor;
  return play.answer;
}

}  // namespace

std::int32_t Brevanta(void* hostContext, std::int32_t unitFactor, void* reserved, std::int32_t dialogArg) {
  return Command<std::int32_t (*)(void*, std::int32_t, void*, std::int32_t)>("Brevanta")(
      hostContext, unitFactor, reserved, dialogArg);
}

std::int32_t EditBrevanta(void* hostContext, std::int32_t unitFactor, std::int32_t editMode) {
  return Command<std::int32_t (*)(void*, std::int32_t, std::int32_t)>("EditBrevanta")(hostContext, unitFactor,
                                                                                      editMode);
}

DialogPlay::DialogPlay() : TestDialogContext{RunPlay}, confirmed{} {}

ErasePlay& TheErasePlay() {
  static ErasePlay play;
  return play;
}

int UnloadDialog() {
  constexpr int mostHandles = 50;
  int handles = 0;
  for (HMODULE module = GetModuleHandleA(DIALOG_MODULE); module != nullptr && handles < mostHandles;
       ++handles) {
    FreeLibrary(module);
    module = GetModuleHandleA(DIALOG_MODULE);
  }
  EXPECT_LT(handles, mostHandles) << "the dialog module does not unload";
  return handles;
}

}  // namespace played_host
