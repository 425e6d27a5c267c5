// MarkCommand.cpp - the subcommand "mark": gives roof windows their marks.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/SaveDrawing.h"
#include "teskarlt/commands/SelectionOptions.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/terminal/ResultTarget.h"
#include "teskarlt/windows/MarkWindows.h"

namespace teskarlt {

namespace {

struct MarkOptions {
  ResultTarget target;
  SelectionOptions selection;
  AskedUnit units;
  std::string lengths;
  std::string mark;
  bool isCleared = false;
  bool isOnlyUnmarked = false;
  bool isLockedToo = false;
  bool asJson = false;
};

MarkOrder OrderOf(const MarkOptions& options) {
  MarkOrder order;
  const SelectionOptions& selection = options.selection;
  const bool isAll = selection.numbers.empty() && selection.where.empty() && selection.type.empty();
  if (!isAll) order.selection = SelectionOf(selection, StyleSaid(options.lengths));
  if (!options.isCleared) order.mark = options.mark.empty() ? USUAL_MARK : options.mark;
  order.isOnlyUnmarked = options.isOnlyUnmarked;
  order.isLockedToo = options.isLockedToo;
  return order;
}

// The unit has to be known for conditions on lengths and for roofs; else any will do.
WorkingUnit UnitFor(const dxf::Document& drawing, const MarkOptions& options, const MarkOrder& order) {
  const bool namesRoof = !order.mark.empty() && MarkPattern(order.mark).NamesRoof();
  const bool isNeeded = order.selection.where.has_value() || namesRoof;
  return isNeeded ? UnitOf(drawing, options.units).working : IN_DRAWING_UNITS;
}

bool IsChange(const MarkChange& change) {
  return change.from != change.to;
}

void PrintAnswer(const MarkOptions& options, const std::vector<MarkChange>& changes) {
  Json json = Json::Object({{"version", JSON_VERSION}});
  json["windows"] = Json::List();
  for (const MarkChange& change : changes) {
    json["windows"].Add(Json::Object(
        {{"number", change.number}, {"from", MarkJson(change.from)}, {"to", MarkJson(change.to)}}));
  }
  options.target.AddTo(json);
  PrintJson(json);
}

void PrintText(const MarkOptions& options, const std::vector<MarkChange>& changes) {
  const auto count = std::count_if(changes.begin(), changes.end(), IsChange);
  if (count == 0) {
    fmt::print("Nothing changes: the windows are marked so; {}.\n", options.target.UnchangedEnding());
    return;
  }
  const auto shown = [](const std::string& mark) { return mark.empty() ? std::string("no mark") : mark; };
  for (const MarkChange& change : changes) {
    if (IsChange(change))
      fmt::print("Window {}: {} -> {}\n", change.number, shown(change.from), shown(change.to));
  }
  fmt::print("{} window{} {}.\n", count, count == 1 ? "" : "s", options.target.Ending("marked", "be marked"));
}

void RunMark(MarkOptions& options) {
  const MarkOrder order = OrderOf(options);
  dxf::Document drawing = dxf::Document::Load(options.target.File());
  const std::vector<MarkChange> changes = MarkWindows(drawing, UnitFor(drawing, options, order), order);
  if (drawing.IsChanged() || options.target.IsNamed()) SaveDrawing(drawing, options.target);
  (options.asJson ? PrintAnswer : PrintText)(options, changes);
}

}  // namespace

void AddMarkCommand(OptionParser& parser) {
  Subcommand command =
      parser.Add("mark", "Give roof windows marks, as W01, that plans and schedules name them by");
  const auto options = std::make_shared<MarkOptions>();
  options->target.AddFile(command);
  AddSelectionOptions(command, options->selection);
  const Option mark = AddMarkOption(command, options->mark);
  command.Flag("--clear", options->isCleared, "take the marks away").Excludes(mark);
  command.Flag("--unmarked", options->isOnlyUnmarked, "only windows that have none yet");
  options->target.AddOutput(command);
  AddUnitOptions(command, options->units);
  AddLengthsOption(command, options->lengths);
  AddLockedOption(command, options->isLockedToo);
  options->target.AddDryRun(command);
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "Without numbers, --where or --type all windows are marked, in the order of their numbers; without\n"
      "--mark as W01, W02 and so on. No two windows bear one mark. A mark is kept with its window, its "
      "texts\n"
      "stay as they are, and edit, move and refit keep it.\n"
      "Examples:\n"
      "  teskarlt mark house-with-window.dxf\n"
      "  teskarlt mark house-with-window.dxf --unmarked --mark \"{roof}-{run}\"\n"
      "  teskarlt mark house-with-window.dxf 3 --mark \"stairs\"");
  command.Run([options] { RunMark(*options); });
}

}  // namespace teskarlt
