// WindowModule.cpp - loads the roof window module and runs its commands.
#include "teskarlt/modules/WindowModule.h"

#include <initializer_list>

#include <fmt/format.h>

#include "inc/DialogModule.h"
#include "inc/HostFunctionTable.h"
#include "inc/LibraryMerge.h"
#include "inc/StringModule.h"
#include "platform/SystemFolders.h"
#include "teskarlt/Error.h"
#include "teskarlt/modules/KeptException.h"
#include "teskarlt/modules/ProgramFolder.h"

namespace teskarlt {

namespace {

constexpr const char* WINDOW_MODULE = "BREVANTA.CRX";
constexpr const char* INSERT_EXPORT = "Brevanta";
constexpr const char* EDIT_EXPORT = "EditBrevanta";
constexpr std::int32_t EDIT_MODE_DIALOG = 0;

// The modules find their host, this program, by its name.
void CheckProgramName() {
  if (GetModuleHandleA(brevanta::HOST_PROGRAM) == GetModuleHandleA(nullptr)) return;
  throw Error(
      fmt::format("this program must be called teskarlt for the roof window module to find it; it is {}",
                  platform::FromSystemPath(ProgramPath())));
}

[[noreturn]] void ThrowForeign(const char* name, const char* meaning, const std::string& missing) {
  throw Error(fmt::format("{}{} is not {}: it has no {}", platform::FromSystemPath(ProgramFolder()), name,
                          meaning, missing));
}

LoadedModule LoadFromFolder(const char* name) {
  const std::string path = ProgramFolder() + name;
  if (HMODULE module = AfxLoadLibrary(path.c_str())) return LoadedModule(module);
  std::string reason = ModuleLoadError();
  if (reason.starts_with(path + ": ")) reason.erase(0, path.size() + 2);  // some loaders name the file too
  throw Error(fmt::format("cannot load {}: {}", platform::FromSystemPath(path), reason));
}

// The module itself says nothing when a companion is missing, and calls the companion's exports unseen, so
// they are looked for beforehand.
LoadedModule LoadWithExports(const char* name, const char* meaning,
                             std::initializer_list<const char*> exports) {
  LoadedModule module = LoadFromFolder(name);
  for (const char* wanted : exports) {
    if (GetProcAddress(module.get(), wanted) == nullptr)
      ThrowForeign(name, meaning, fmt::format("export \"{}\"", wanted));
  }
  return module;
}

LoadedModule LoadStringModule() {
  LoadedModule module = LoadFromFolder(brevanta::RESOURCE_MODULE);
  for (const unsigned number : brevanta::LAYER_NAMES) {
    char name[2];  // only whether there is one counts
    if (LoadStringA(module.get(), number, name, sizeof name) == 0)
      ThrowForeign(brevanta::RESOURCE_MODULE, "the string module", fmt::format("string {}", number));
  }
  return module;
}

std::string SystemPath(const std::string& path) {
  if (const auto systemPath = platform::ToSystemPath(path)) return *systemPath;
  throw Error("the system's code page cannot hold this path", {.file = path});
}

std::string FirstRefusal(const CommandOutcome& outcome) {
  for (const DialogReport& report : outcome.reports) {
    if (report.gravity == brevanta::REPORT_REFUSAL) return report.text;
  }
  return {};
}

// Also a module whose companion was there a moment ago may fail to load it, and says so by its answer alone.
void CheckDialogRan(const CommandOutcome& outcome, std::int32_t answer) {
  constexpr std::int32_t dialogNotLoaded = 0;
  if (outcome.isDialogRun) return;
  const std::string dialog = platform::FromSystemPath(ProgramFolder()) + brevanta::DIALOG_MODULE;
  if (answer == dialogNotLoaded)
    throw Error(fmt::format("the roof window module could not load its dialog module {}", dialog));
  throw Error(fmt::format("the dialog module {} belongs to another version of this program", dialog));
}

// The module reports nothing, so what it left behind has to show whether it did what was asked.
void CheckWindow(const CommandOutcome& outcome) {
  if (!outcome.confirmed) {
    const std::string reason = FirstRefusal(outcome);
    throw Error(reason.empty()
                    ? std::string("the dialog module did not confirm the window and gave no reason")
                    : reason);
  }
  if (!outcome.failure.empty()) throw Error("the window cannot be written: " + outcome.failure);
  if (outcome.faces + outcome.lines == 0) {
    throw Error("the module made nothing of the window; the roof's plane cannot be used");
  }
}

// A window is one thing to select.
void FinishWindow(dxf::Document& drawing, const CommandOutcome& outcome) {
  CheckWindow(outcome);
  const std::int32_t number = outcome.confirmed->markerValue;
  drawing.EndGroup(fmt::format("BREVANTA_{}", number), fmt::format("Roof window {}", number));
}

// Runs a command of the module in a session of its own and finishes it with a look at its outcome; when
// either fails the drawing is what it was.
template <typename Command, typename Finish>
CommandOutcome Run(dxf::Document& drawing, const WindowRequest& request, Command command, Finish finish) {
  const dxf::EditMark before = drawing.Mark();
  try {
    ModuleSession session(drawing, request);
    const std::int32_t answer = command(session.Services());
    RethrowKeptException();
    CheckDialogRan(session.Outcome(), answer);
    finish(session.Outcome());
    return session.Outcome();
  } catch (...) {
    drawing.Rollback(before);
    throw;
  }
}

}  // namespace

WindowModule::WindowModule() {
  CheckProgramName();
  dialog_ = LoadWithExports(brevanta::DIALOG_MODULE, "the dialog module",
                            {brevanta::DIALOG_EXPORT, brevanta::ERASE_WINDOW_EXPORT});
  strings_ = LoadStringModule();
  module_ = LoadWithExports(WINDOW_MODULE, "the roof window module",
                            {INSERT_EXPORT, EDIT_EXPORT, brevanta::MERGE_LIBRARY_FILES_EXPORT});
  insert_ = ExportedFunction<InsertFunction>(module_.get(), INSERT_EXPORT);
  edit_ = ExportedFunction<EditFunction>(module_.get(), EDIT_EXPORT);
  merge_ = ExportedFunction<brevanta::MergeLibraryFilesFunction>(module_.get(),
                                                                 brevanta::MERGE_LIBRARY_FILES_EXPORT);
}

CommandOutcome WindowModule::Insert(dxf::Document& drawing, const WindowRequest& request) const {
  const auto insert = [&](brevanta::DialogServices* services) {
    drawing.BeginGroup({});
    return insert_(services, request.unit.perMetre, nullptr, 0);
  };
  return Run(drawing, request, insert,
             [&](const CommandOutcome& outcome) { FinishWindow(drawing, outcome); });
}

CommandOutcome WindowModule::Edit(dxf::Document& drawing, const WindowRequest& request) const {
  const auto edit = [&](brevanta::DialogServices* services) {
    drawing.BeginGroup(request.replaced);
    return edit_(services, request.unit.perMetre, EDIT_MODE_DIALOG);
  };
  return Run(drawing, request, edit, [&](const CommandOutcome& outcome) { FinishWindow(drawing, outcome); });
}

CommandOutcome WindowModule::Erase(dxf::Document& drawing, const WindowRequest& request) const {
  const auto erase = [&](brevanta::DialogServices* services) {
    return edit_(services, request.unit.perMetre, brevanta::EDIT_MODE_ERASE);
  };
  return Run(drawing, request, erase, [](const CommandOutcome& outcome) {
    if (outcome.erased == 0) throw Error("the dialog module erased nothing and gave no reason");
  });
}

std::int32_t WindowModule::Merge(const std::string& source, const std::optional<std::string>& target) const {
  const std::string sourcePath = SystemPath(source);
  const std::string targetPath = target ? SystemPath(*target) : std::string();
  const std::int32_t result = merge_(nullptr, sourcePath.c_str(), target ? targetPath.c_str() : nullptr,
                                     brevanta::CATALOGUE_FOLDER_KIND);
  RethrowKeptException();
  return result;
}

}  // namespace teskarlt
