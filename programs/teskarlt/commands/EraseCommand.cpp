// EraseCommand.cpp - the subcommand "erase": takes a roof window out of a drawing.
#include <memory>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/commands/ClosedLayers.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowChoice.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

struct EraseOptions {
  std::string file;
  int number = 0;
  std::string output;
  bool isLockedToo = false;
  bool dryRun = false;
  bool asJson = false;
};

void RunErase(const EraseOptions& options) {
  const WindowModule module;
  dxf::Document drawing = dxf::Document::Load(options.file);
  constexpr int anyUnit = 1;  // only the entities count
  const std::vector<DrawnWindow> windows = FindWindows(drawing, anyUnit);
  WindowRequest request;
  const DrawnWindow& window = ChooseWindow(windows, options.file, options.number);
  if (HasMoreThanOneWindow(window)) {
    throw Error(
        fmt::format("window {} cannot be told from a part of a copy of it: {}; take the copy's parts out "
                    "in the CAD program",
                    window.number, EntityMismatch(window)));
  }
  RefuseClosedLayers(drawing, window, options.isLockedToo);
  request.replaced = window.entities;

  const CommandOutcome outcome = module.Erase(drawing, request);
  const std::string target = options.output.empty() ? options.file : options.output;
  if (!options.dryRun) drawing.Save(target);
  if (options.asJson) {
    Json json;
    json["version"] = JSON_VERSION;
    json["number"] = options.number;
    json["erased"] = outcome.erased;
    json["file"] = options.dryRun ? Json(nullptr) : Json(target);
    json["dryRun"] = options.dryRun;
    PrintJson(json);
  } else {
    fmt::print("Window {}: {} entities {}.\n", options.number, outcome.erased,
               options.dryRun ? "would go; nothing was written (dry run)" : "erased; written to " + target);
  }
}

}  // namespace

void AddEraseCommand(OptionParser& parser) {
  Subcommand command = parser.Add("erase", "Take a roof window out of a drawing");
  const auto options = std::make_shared<EraseOptions>();
  command.Argument("FILE", options->file, "the drawing").Required();
  command.Argument("NUMBER", options->number, "the window's number, as teskarlt list shows it").Required();
  command.Value("-o,--output", options->output, "the drawing to write; without it FILE is replaced")
      .Named("FILE")
      .NotEmpty();
  AddLockedOption(command, options->isLockedToo);
  command.Flag("--dry-run", options->dryRun, "say what would be done and write nothing");
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer("Example: teskarlt erase house-with-window.dxf 1");
  command.Run([options] { RunErase(*options); });
}

}  // namespace teskarlt
