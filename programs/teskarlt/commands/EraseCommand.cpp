// EraseCommand.cpp - the subcommand "erase": takes a roof window out of a drawing.
#include "teskarlt/commands/EraseCommand.h"

#include <memory>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "teskarlt/Error.h"
#include "teskarlt/commands/ClosedLayers.h"
#include "teskarlt/commands/WindowChoice.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/modules/WindowModule.h"
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
    nlohmann::ordered_json json;
    json["version"] = JSON_VERSION;
    json["number"] = options.number;
    json["erased"] = outcome.erased;
    json["file"] = options.dryRun ? nlohmann::ordered_json(nullptr) : nlohmann::ordered_json(target);
    json["dryRun"] = options.dryRun;
    PrintJson(json);
  } else {
    fmt::print("Window {}: {} entities {}.\n", options.number, outcome.erased,
               options.dryRun ? "would go; nothing was written (dry run)" : "erased; written to " + target);
  }
}

}  // namespace

void AddEraseCommand(CLI::App& app) {
  CLI::App* command = app.add_subcommand("erase", "Take a roof window out of a drawing");
  const auto options = std::make_shared<EraseOptions>();
  command->add_option("FILE", options->file, "the drawing")->required()->type_name("");
  command->add_option("NUMBER", options->number, "the window's number, as teskarlt list shows it")
      ->required()
      ->type_name("");
  command->add_option("-o,--output", options->output, "the drawing to write; without it FILE is replaced")
      ->type_name("FILE")
      ->check(NotEmpty);
  AddLockedOption(*command, options->isLockedToo);
  command->add_flag("--dry-run", options->dryRun, "say what would be done and write nothing");
  command->add_flag("--json", options->asJson, JSON_HELP);
  command->footer("Example: teskarlt erase house-with-window.dxf 1");
  command->callback([options] { RunErase(*options); });
}

}  // namespace teskarlt
