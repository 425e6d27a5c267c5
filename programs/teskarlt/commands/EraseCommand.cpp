// EraseCommand.cpp - the subcommand "erase": takes roof windows out of a drawing.
#include <memory>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/SaveDrawing.h"
#include "teskarlt/commands/SelectionOptions.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/terminal/ResultTarget.h"
#include "teskarlt/windows/EraseWindows.h"

namespace teskarlt {

namespace {

struct EraseOptions {
  ResultTarget target;
  SelectionOptions selection;
  AskedUnit units;
  std::string lengths;
  bool isLockedToo = false;
  bool asJson = false;
};

// Lengths of a condition are metres, for which the drawing's unit has to be known; else any will do.
WorkingUnit UnitFor(const dxf::Document& drawing, const EraseOptions& options) {
  return options.selection.where.empty() ? IN_DRAWING_UNITS : UnitOf(drawing, options.units).working;
}

// For programs: a number alone is answered as such.
void PrintAnswer(const EraseOptions& options, const std::vector<ErasedWindow>& erased, bool isOneNumber) {
  const auto toJson = [](const ErasedWindow& window) {
    return Json::Object({{"number", window.number}, {"erased", window.entities}});
  };
  Json json = Json::Object({{"version", JSON_VERSION}});
  if (isOneNumber) {
    json.AddMembers(toJson(erased.front()));
  } else {
    json["windows"] = Json::List();
    for (const ErasedWindow& window : erased)
      json["windows"].Add(toJson(window));
  }
  options.target.AddTo(json);
  PrintJson(json);
}

void PrintText(const EraseOptions& options, const std::vector<ErasedWindow>& erased, bool isOneNumber) {
  if (isOneNumber) {
    fmt::print("Window {}: {} entities {}.\n", erased.front().number, erased.front().entities,
               options.target.Ending("erased", "go"));
    return;
  }
  std::size_t entities = 0;
  for (const ErasedWindow& window : erased) {
    fmt::print("Window {}: {} entities\n", window.number, window.entities);
    entities += window.entities;
  }
  fmt::print("{} window{} with {} entities {}.\n", erased.size(), erased.size() == 1 ? "" : "s", entities,
             options.target.Ending("erased", "go"));
}

void RunErase(EraseOptions& options) {
  const WindowSelection selection = SelectionOf(options.selection, StyleSaid(options.lengths));
  const WindowModule module;
  dxf::Document drawing = dxf::Document::Load(options.target.File());
  const std::vector<ErasedWindow> erased =
      EraseWindows(module, drawing, selection, UnitFor(drawing, options), options.isLockedToo);
  SaveDrawing(drawing, options.target);
  (options.asJson ? PrintAnswer : PrintText)(options, erased, selection.IsOneNumber());
}

}  // namespace

void AddEraseCommand(OptionParser& parser) {
  Subcommand command = parser.Add("erase", "Take roof windows out of a drawing");
  const auto options = std::make_shared<EraseOptions>();
  options->target.AddFile(command);
  AddSelectionOptions(command, options->selection);
  options->target.AddOutput(command);
  AddUnitOptions(command, options->units);
  AddLengthsOption(command, options->lengths);
  AddLockedOption(command, options->isLockedToo);
  options->target.AddDryRun(command);
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "Of several windows all go, or none when one of them is refused. Lengths of --where are "
      "metres,\n"
      "or feet and inches with --lengths ft or their marks, whatever the drawing's unit is.\n"
      "Examples:\n"
      "  teskarlt erase house-with-window.dxf 1\n"
      "  teskarlt erase house-with-window.dxf 2 4-9\n"
      "  teskarlt erase house-with-window.dxf --where \"width<0.8\" --dry-run");
  command.Run([options] { RunErase(*options); });
}

}  // namespace teskarlt
