// EraseCommand.cpp - the subcommand "erase": takes a roof window out of a drawing.
#include <memory>

#include <fmt/format.h>

#include "teskarlt/commands/SaveDrawing.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/terminal/ResultTarget.h"
#include "teskarlt/windows/EraseWindow.h"

namespace teskarlt {

namespace {

struct EraseOptions {
  ResultTarget target;
  int number = 0;
  bool isLockedToo = false;
  bool asJson = false;
};

void RunErase(EraseOptions& options) {
  const WindowModule module;
  dxf::Document drawing = dxf::Document::Load(options.target.File());
  const std::size_t erased = EraseWindow(module, drawing, options.number, options.isLockedToo);
  SaveDrawing(drawing, options.target);
  if (options.asJson) {
    Json json;
    json["version"] = JSON_VERSION;
    json["number"] = options.number;
    json["erased"] = erased;
    options.target.AddTo(json);
    PrintJson(json);
  } else {
    fmt::print("Window {}: {} entities {}.\n", options.number, erased, options.target.Ending("erased", "go"));
  }
}

}  // namespace

void AddEraseCommand(OptionParser& parser) {
  Subcommand command = parser.Add("erase", "Take a roof window out of a drawing");
  const auto options = std::make_shared<EraseOptions>();
  options->target.AddFile(command);
  command.Argument("NUMBER", options->number, "the window's number, as teskarlt list shows it").Required();
  options->target.AddOutput(command);
  AddLockedOption(command, options->isLockedToo);
  options->target.AddDryRun(command);
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer("Example: teskarlt erase house-with-window.dxf 1");
  command.Run([options] { RunErase(*options); });
}

}  // namespace teskarlt
