// WindowModule.h - the roof window module as the host loads and runs it.
#pragma once

#include <cstdint>
#include <string>

#include "platform/ModuleServices.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/host/HostSession.h"

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

 private:
  using InsertFunction = std::int32_t (*)(void* hostContext, std::int32_t unitFactor, void* reserved,
                                          std::int32_t dialogArg);

  HMODULE module_;
  InsertFunction insert_;
};

}  // namespace teskarlt
