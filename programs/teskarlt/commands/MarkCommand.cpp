// MarkCommand.cpp - the subcommand "mark": gives roof windows their marks.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/check/Proof.h"
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
#include "teskarlt/windows/PointText.h"
#include "teskarlt/windows/TagDrawing.h"
#include "teskarlt/windows/TagWindows.h"

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
  bool isTagged = false;    // tags are to be drawn
  bool isUntagged = false;  // or to go
  std::string tagHeight;
  std::string tagShape;
  bool isLockedToo = false;
  bool asJson = false;
};

constexpr const char* SHAPE_CIRCLE = "circle";
constexpr const char* SHAPE_BOX = "box";
constexpr const char* SHAPE_NONE = "none";

bool IsAboutTags(const MarkOptions& options) {
  return options.isTagged || options.isUntagged;
}

// Tags are drawn without new marks unless these are asked for.
bool IsMarking(const MarkOptions& options) {
  return !IsAboutTags(options) || !options.mark.empty() || options.isCleared || options.isOnlyUnmarked;
}

TagOrder TagOrderOf(const MarkOptions& options, const WindowSelection& selection) {
  TagOrder order{.selection = selection};
  if (!options.tagHeight.empty()) {
    order.height = ParseDistance("--tag-height", options.tagHeight, StyleSaid(options.lengths));
    if (*order.height == 0.0) {
      throw Error(fmt::format("--tag-height {}: a text has a height", options.tagHeight),
                  {.value = options.tagHeight});
    }
  }
  if (options.tagShape == SHAPE_CIRCLE) order.shape = TagShape::Circle;
  if (options.tagShape == SHAPE_BOX) order.shape = TagShape::Box;
  if (options.tagShape == SHAPE_NONE) order.shape = TagShape::None;
  return order;
}

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

// The unit has to be known for conditions on lengths, for roofs and for the height of tags; else any will do.
WorkingUnit UnitFor(const dxf::Document& drawing, const MarkOptions& options, const MarkOrder& order) {
  const bool namesRoof = !order.mark.empty() && MarkPattern(order.mark).NamesRoof();
  const bool isNeeded = order.selection.where.has_value() || namesRoof || options.isTagged;
  return isNeeded ? UnitOf(drawing, options.units).working : IN_DRAWING_UNITS;
}

bool IsChange(const MarkChange& change) {
  return change.from != change.to;
}

// Draws tags or takes them away, and gives their number.
std::size_t ChangeTags(const MarkOptions& options, const TagOrder& order, const WorkingUnit& unit,
                       dxf::Document& drawing) {
  if (!IsAboutTags(options)) return 0;
  if (drawing.IsChanged()) {  // tags read as windows are marked
    check::ProveChanges(drawing);
    drawing.Settle();
  }
  if (options.isUntagged) return EraseTags(drawing, unit, order.selection);
  const std::size_t tags = TagWindows(drawing, unit, order);
  if (tags > 0) WarnOfClosedLayers(drawing, {TAG_LAYER});
  return tags;
}

// What a run did: to the marks, and to how many tags.
struct MarkResult {
  std::vector<MarkChange> changes;
  std::size_t tags = 0;
};

void PrintAnswer(const MarkOptions& options, const MarkResult& result) {
  Json json = Json::Object({{"version", JSON_VERSION}});
  json["windows"] = Json::List();
  for (const MarkChange& change : result.changes) {
    json["windows"].Add(Json::Object(
        {{"number", change.number}, {"from", MarkJson(change.from)}, {"to", MarkJson(change.to)}}));
  }
  if (IsAboutTags(options)) json["tags"] = result.tags;
  options.target.AddTo(json);
  PrintJson(json);
}

void PrintTags(const MarkOptions& options, std::size_t tags) {
  const std::string ending = options.isUntagged ? options.target.Ending("taken away", "be taken away")
                                                : options.target.Ending("drawn", "be drawn");
  fmt::print("{} tag{} {}.\n", tags, tags == 1 ? "" : "s", ending);
}

void PrintText(const MarkOptions& options, const MarkResult& result) {
  const std::vector<MarkChange>& changes = result.changes;
  const auto count = std::count_if(changes.begin(), changes.end(), IsChange);
  if (count == 0 && result.tags == 0) {
    const char* const state = options.isTagged     ? "the windows have their tags"
                              : options.isUntagged ? "the windows have no tags"
                                                   : "the windows are marked so";
    fmt::print("Nothing changes: {}; {}.\n", state, options.target.UnchangedEnding());
    return;
  }
  const auto shown = [](const std::string& mark) { return mark.empty() ? std::string("no mark") : mark; };
  for (const MarkChange& change : changes) {
    if (IsChange(change))
      fmt::print("Window {}: {} -> {}\n", change.number, shown(change.from), shown(change.to));
  }
  if (result.tags > 0) return PrintTags(options, result.tags);
  fmt::print("{} window{} {}.\n", count, count == 1 ? "" : "s", options.target.Ending("marked", "be marked"));
}

void RunMark(MarkOptions& options) {
  const MarkOrder order = OrderOf(options);
  const TagOrder tagOrder = TagOrderOf(options, order.selection);
  dxf::Document drawing = dxf::Document::Load(options.target.File());
  const WorkingUnit unit = UnitFor(drawing, options, order);
  MarkResult result;
  if (IsMarking(options)) result.changes = MarkWindows(drawing, unit, order);
  result.tags = ChangeTags(options, tagOrder, unit, drawing);
  if (drawing.IsChanged() || options.target.IsNamed()) SaveDrawing(drawing, options.target);
  (options.asJson ? PrintAnswer : PrintText)(options, result);
}

void AddTagOptions(Subcommand& command, MarkOptions& options) {
  const Option tags = command.Flag("--tags", options.isTagged,
                                   "draw the marks beside the windows in the plan, with leaders to them");
  command.Flag("--no-tags", options.isUntagged, "take what --tags drew away").Excludes(tags);
  command
      .Value("--tag-height", options.tagHeight,
             "height of the tags' texts; 0.2 m where nothing is said, 2 mm on a plan at 1:100")
      .Named("LENGTH")
      .NotEmpty()
      .Needs(tags);
  command.Value("--tag-shape", options.tagShape, "what is around the text; a circle where nothing is said")
      .Named("circle|box|none")
      .OneOfListed({SHAPE_CIRCLE, SHAPE_BOX, SHAPE_NONE})
      .Needs(tags);
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
  AddTagOptions(command, *options);
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
      "--tags draws tags on the layer ROOF_WINDOW_TAGS, over nothing else if there is room, and leaves the "
      "marks\n"
      "as they are unless --mark, --clear or --unmarked is there, too; of a window without a mark the tag "
      "has "
      "W\n"
      "and the number. Whatever changes windows later takes their tags along: a moved window gets its tag "
      "anew,\n"
      "an erased one loses it. A tag that was moved by hand stays where it was put.\n"
      "Examples:\n"
      "  teskarlt mark house-with-window.dxf\n"
      "  teskarlt mark house-with-window.dxf --unmarked --mark \"{roof}-{run}\"\n"
      "  teskarlt mark house-with-window.dxf 3 --mark \"stairs\"\n"
      "  teskarlt mark house-with-window.dxf --tags --tag-height 0.25 --tag-shape box");
  command.Run([options] { RunMark(*options); });
}

}  // namespace teskarlt
