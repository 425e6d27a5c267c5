// WindowModule.h - the roof window module as the program loads and runs it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include "inc/LibraryMerge.h"
#include "platform/ModuleServices.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/modules/ModuleSession.h"

namespace teskarlt {

struct ModuleRelease {
  using pointer = HMODULE;
  void operator()(HMODULE module) const { FreeLibrary(module); }
};
using LoadedModule = std::unique_ptr<std::remove_pointer_t<HMODULE>, ModuleRelease>;

// Loads BREVANTA.CRX and its companions from the program's folder and keeps them loaded: what becomes of
// their files meanwhile, or of the files that this process may open, does not touch a command.
class WindowModule {
 public:
  // Throws Error, naming the file and the folder, when the module or one of its companions is missing or
  // cannot be loaded, or when the program does not bear the name by which they find it.
  WindowModule();

  // Runs the command `Brevanta`: the window comes into the drawing as the request asks. Throws Error with the
  // reason, the drawing being what it was, when the dialog refuses the request or no complete window comes
  // out of it.
  CommandOutcome Insert(dxf::Document& drawing, const WindowRequest& request) const;

  // Runs the command `EditBrevanta`: the window of the request is taken out of the drawing and inserted again
  // as the request asks. Throws as Insert does.
  CommandOutcome Edit(dxf::Document& drawing, const WindowRequest& request) const;

  // Runs the command `EditBrevanta` to take the window of the request out of the drawing. Throws as Insert
  // does.
  CommandOutcome Erase(dxf::Document& drawing, const WindowRequest& request) const;

  // Runs the command `mergeLibraryFiles` over two catalogues and gives its result; without a target it is the
  // one in the data folder. Paths are UTF-8. Throws Error for a path that the system's 8-bit code page cannot
  // hold.
  std::int32_t Merge(const std::string& source, const std::optional<std::string>& target) const;

 private:
  using InsertFunction = std::int32_t (*)(void* hostContext, std::int32_t unitFactor, void* reserved,
                                          std::int32_t dialogArg);

  using EditFunction = std::int32_t (*)(void* hostContext, std::int32_t unitFactor, std::int32_t editMode);

  LoadedModule dialog_;
  LoadedModule strings_;
  LoadedModule module_;
  InsertFunction insert_ = nullptr;
  EditFunction edit_ = nullptr;
  brevanta::MergeLibraryFilesFunction merge_ = nullptr;
};

}  // namespace teskarlt
