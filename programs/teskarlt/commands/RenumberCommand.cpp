// RenumberCommand.cpp - the subcommand "renumber": gives copies of roof windows numbers of their own.
#include <memory>

#include <fmt/format.h>

#include "teskarlt/commands/SaveDrawing.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/terminal/ResultTarget.h"
#include "teskarlt/windows/RenumberCopies.h"

namespace teskarlt {

namespace {

struct RenumberOptions {
  ResultTarget target;
  bool asJson = false;
};

void PrintAnswer(const RenumberOptions& options, const std::vector<Renumbered>& changes) {
  Json json = Json::Object({{"version", JSON_VERSION}});
  json["windows"] = Json::List();
  for (const auto& [from, to, place, entities] : changes) {
    json["windows"].Add(Json::Object({{"from", from},
                                      {"to", to},
                                      {"place", Json::List({place.x, place.y, place.z})},
                                      {"entities", entities}}));
  }
  options.target.AddTo(json);
  PrintJson(json);
}

void PrintText(const RenumberOptions& options, const std::vector<Renumbered>& changes) {
  if (changes.empty()) {
    fmt::print("Every window of {} has a number of its own.\n", options.target.File());
    return;
  }
  const char* const verb = options.target.IsDryRun() ? "would get the number" : "has the number";
  for (const Renumbered& change : changes) {
    fmt::print("Window {} at {:.3f},{:.3f}: {} {}.\n", change.from, change.place.x, change.place.y, verb,
               change.to);
  }
  fmt::print("{} window{} {}.\n", changes.size(), changes.size() == 1 ? "" : "s",
             options.target.Ending("renumbered", "be renumbered"));
}

void RunRenumber(RenumberOptions& options) {
  dxf::Document drawing = dxf::Document::Load(options.target.File());
  const std::vector<Renumbered> changes = RenumberCopies(drawing);
  if (!changes.empty() || options.target.IsNamed()) SaveDrawing(drawing, options.target);
  (options.asJson ? PrintAnswer : PrintText)(options, changes);
}

}  // namespace

void AddRenumberCommand(OptionParser& parser) {
  Subcommand command = parser.Add("renumber", "Give copies of roof windows numbers of their own");
  const auto options = std::make_shared<RenumberOptions>();
  options->target.AddFile(command);
  options->target.AddOutput(command);
  options->target.AddDryRun(command);
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "A window that was copied in a CAD program bears the number of its model, and edit and erase know\n"
      "windows by their numbers. The first window of a number keeps it, all others get new ones; nothing\n"
      "else of them changes.\n"
      "Example: teskarlt renumber house-with-copies.dxf");
  command.Run([options] { RunRenumber(*options); });
}

}  // namespace teskarlt
