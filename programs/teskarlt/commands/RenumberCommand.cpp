// RenumberCommand.cpp - the subcommand "renumber": gives copies of roof windows numbers of their own.
#include <memory>
#include <set>

#include <fmt/format.h>

#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

struct RenumberOptions {
  std::string file;
  std::string output;
  bool dryRun = false;
  bool asJson = false;
};

struct NewNumber {
  const DrawnWindow& window;
  std::int32_t number;
  brevanta::RecordPoint place;
};

// The windows whose number a window before them bears. Parts of windows keep theirs, so that they can be put
// back to the rest.
std::vector<NewNumber> NewNumbers(const dxf::Document& drawing, const std::vector<DrawnWindow>& windows) {
  WindowNumbers taken = NumbersOf(windows);
  std::set<std::int32_t> known;
  std::vector<NewNumber> numbers;
  for (const DrawnWindow& window : windows) {
    const bool isWhole = window.isComplete && EntityMismatch(window).empty();
    if (window.number == 0 || !isWhole || known.insert(window.number).second) continue;
    numbers.push_back({window, taken.Free(), ReadWindow(drawing, window).params.storedPoint});
    taken.Take(numbers.back().number);
  }
  return numbers;
}

void Store(const NewNumber& change, dxf::Document& drawing) {
  for (const dxf::Entity* const entity : change.window.entities) {
    const auto tag = NumberTagOf(drawing, *entity);
    if (tag) drawing.ReplaceValue(*tag, std::to_string(change.number));
  }
}

void Print(const RenumberOptions& options, const std::vector<NewNumber>& changes, const std::string& target) {
  if (options.asJson) {
    Json json = Json::Object({{"version", JSON_VERSION}});
    json["windows"] = Json::List();
    for (const auto& [window, number, place] : changes) {
      json["windows"].Add(Json::Object({{"from", window.number},
                                        {"to", number},
                                        {"place", Json::List({place.x, place.y, place.z})},
                                        {"entities", window.entities.size()}}));
    }
    json["file"] = options.dryRun || changes.empty() ? Json(nullptr) : Json(target);
    json["dryRun"] = options.dryRun;
    PrintJson(json);
    return;
  }
  for (const auto& [window, number, place] : changes) {
    fmt::print("Window {} at {:.3f},{:.3f}: {} {}.\n", window.number, place.x, place.y,
               options.dryRun ? "would get the number" : "has the number", number);
  }
  if (changes.empty()) {
    fmt::print("Every window of {} has a number of its own.\n", options.file);
  } else {
    fmt::print("{} window{} {}.\n", changes.size(), changes.size() == 1 ? "" : "s",
               options.dryRun ? "would be renumbered; nothing was written (dry run)"
                              : "renumbered; written to " + target);
  }
}

void RunRenumber(const RenumberOptions& options) {
  dxf::Document drawing = dxf::Document::Load(options.file);
  constexpr int anyUnit = 1;  // lengths are compared with lengths of the drawing only
  const std::vector<DrawnWindow> windows = FindWindows(drawing, anyUnit);
  const std::vector<NewNumber> changes = NewNumbers(drawing, windows);
  for (const NewNumber& change : changes)
    Store(change, drawing);
  const std::string& target = options.output.empty() ? options.file : options.output;
  const bool isWanted = drawing.IsChanged() || !options.output.empty();
  if (isWanted && !options.dryRun) drawing.Save(target);
  Print(options, changes, target);
}

}  // namespace

void AddRenumberCommand(OptionParser& parser) {
  Subcommand command = parser.Add("renumber", "Give copies of roof windows numbers of their own");
  const auto options = std::make_shared<RenumberOptions>();
  command.Argument("FILE", options->file, "the drawing").Required();
  command.Value("-o,--output", options->output, "the drawing to write; without it FILE is replaced")
      .Named("FILE")
      .NotEmpty();
  command.Flag("--dry-run", options->dryRun, "say what would be done and write nothing");
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "A window that was copied in a CAD program bears the number of its model, and edit and erase know\n"
      "windows by their numbers. The first window of a number keeps it, all others get free ones; nothing\n"
      "else of them changes.\n"
      "Example: teskarlt renumber house-with-copies.dxf");
  command.Run([options] { RunRenumber(*options); });
}

}  // namespace teskarlt
