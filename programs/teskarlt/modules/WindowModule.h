// WindowModule.h - the roof window module as the program loads and runs it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "inc/LibraryMerge.h"
#include "platform/ModuleServices.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/modules/ModuleSession.h"

namespace teskarlt {

// Loads BREVANTA.CRX from the program's folder and keeps it loaded.
class WindowModule {
 public:
  // Throws Error, naming the file and the folder, when the module or one of its companions is missing or
  // cannot be loaded, or when the program does not bear the name by which they find it.
  WindowModule();
  ~WindowModule();
  WindowModule(const WindowModule&) = delete;
  WindowModule& operator=(const WindowModule&) = delete;

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

  HMODULE module_ = nullptr;
  InsertFunction insert_ = nullptr;
  EditFunction edit_ = nullptr;
  brevanta::MergeLibraryFilesFunction merge_ = nullptr;
};

}  // namespace teskarlt
