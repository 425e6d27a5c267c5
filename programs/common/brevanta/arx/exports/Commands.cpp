// Commands.cpp - the exported commands: load the dialog
// module, run it over a record, insert what it confirms.
#include "arx/exports/Commands.h"

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "arx/exports/CompanionModule.h"
#include "arx/exports/DefaultParams.h"
#include "platform/ModuleServices.h"
#include "platform/ModuleState.h"

namespace brevanta {

namespace {

constexpr std::int32_t COMMAND_FAILED = 0;
constexpr std::int32_t COMMAND_DONE = 1;
constexpr std::int32_t INSERT_WINDOW = 0;
constexpr std::int32_t EDIT_WINDOW = 1;

// Gives a loaded module back on every way out.
class LoadedModule {
 public:
  explicit LoadedModule(HMODULE module) : module_(module) {}
  ~LoadedModule() { FreeLibrary(module_); }
  LoadedModule(const LoadedModule&) = delete;
  LoadedModule& operator=(const LoadedModule&) = delete;

 private:
  HMODULE module_;
};

// Runs the dialog over a fresh record and inserts the window that it confirms; returns the dialog's answer.
std::int32_t RunDialog(HMODULE dialogModule, void* hostContext, std::int32_t unitFactor,
                       std::int32_t dialogArg, std::int32_t editFlag) {
  const auto dialog = ExportedFunction<DialogFunction>(dialogModule, DIALOG_EXPORT);
  WindowParams record;
  SetDefaultWindowParams(&record)->unitFactor = unitFactor;
  const std::int32_t answer = dialog(hostContext, &record, dialogArg, editFlag);
  if (answer == DIALOG_CONFIRMED) {
    CbvMakeWindow window;
    window.Make(&record, unitFactor);
  }
  return answer;
}

}  // namespace

std::int32_t Brevanta(void* hostContext, std::int32_t unitFactor, void* /*reserved*/,
                      std::int32_t dialogArg) {
  const AFX_MAINTAIN_STATE2 moduleState(AfxGetStaticModuleState());
  HMODULE dialogModule = LoadCompanionModule(DIALOG_MODULE);
  if (dialogModule == nullptr) return COMMAND_FAILED;
  const LoadedModule release(dialogModule);
  RunDialog(dialogModule, hostContext, unitFactor, dialogArg, INSERT_WINDOW);
  return COMMAND_DONE;
}

std::int32_t EditBrevanta(void* hostContext, std::int32_t unitFactor, std::int32_t editMode) {
  const AFX_MAINTAIN_STATE2 moduleState(AfxGetStaticModuleState());
  // Never released, on purpose: the dialog module stays loaded after the first edit.
  HMODULE keptModule = LoadCompanionModule(DIALOG_MODULE);
  if (keptModule == nullptr) return COMMAND_FAILED;
  if (editMode == EDIT_MODE_ERASE) {
    return ExportedFunction<EraseWindowFunction>(keptModule, ERASE_WINDOW_EXPORT)();
  }
  HMODULE dialogModule = LoadCompanionModule(DIALOG_MODULE);
  if (dialogModule == nullptr) return COMMAND_FAILED;
  const LoadedModule release(dialogModule);
  return RunDialog(dialogModule, hostContext, unitFactor, editMode, EDIT_WINDOW);
}

}  // namespace brevanta
