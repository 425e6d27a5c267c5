// RefitCommand.cpp - the subcommand "refit": puts windows back onto roofs that have changed.
#include <memory>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/SaveDrawing.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/UnitOptions.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/terminal/ResultTarget.h"
#include "teskarlt/windows/PointText.h"
#include "teskarlt/windows/RefitWindows.h"

namespace teskarlt {

namespace {

constexpr const char* KEEP_PLAN = "plan";
constexpr const char* KEEP_HEIGHT = "height";

struct RefitOptions {
  ResultTarget target;
  std::vector<int> numbers;
  std::string keep = KEEP_PLAN;
  std::string reach;
  AskedUnit units;
  std::string lengths;
  std::string clearance;
  bool isLockedToo = false;
  bool keepGoing = false;
  bool isStrict = false;
  bool asJson = false;
};

Json ToJson(const Refitted& window, const WorkingUnit& unit) {
  Json json;
  json["number"] = window.after.markerValue;
  json["face"] = window.face;
  json["pitch"] = Json::Object({{"from", window.before.pitch}, {"to", window.after.pitch}});
  for (const auto& [name, params] : {std::pair{"from", &window.before}, std::pair{"to", &window.after}}) {
    const brevanta::RecordPoint place = ToDrawn(params->storedPoint, unit);
    json["place"][name] = Json::List({place.x, place.y, place.z});
  }
  json["shift"] = Shift(window);
  json["rise"] = Rise(window);
  json["warnings"] = window.misfits;
  return json;
}

Json ToJson(const std::vector<NotRefitted>& windows) {
  Json list = Json::List();
  for (const NotRefitted& window : windows)
    list.Add(Json::Object({{"number", window.number}, {"message", window.message}}));
  return list;
}

void PrintAnswer(const RefitOptions& options, const RefitReport& report) {
  Json json = Json::Object({{"version", JSON_VERSION}});
  json["windows"] = Json::List();
  for (const Refitted& window : report.refitted)
    json["windows"].Add(ToJson(window, report.unit));
  json["fitting"] = report.fitting;
  json["staying"] = ToJson(report.staying);
  json["problems"] = ToJson(report.problems);
  options.target.AddTo(json);
  PrintJson(json);
}

void PrintTable(const std::vector<Refitted>& windows, const LengthWords& words) {
  Table table({"number", "face", "pitch was", "pitch is", words.Column("shift"), words.Column("rise")});
  for (const Refitted& window : windows) {
    table.Add({std::to_string(window.after.markerValue), window.face,
               fmt::format("{:.2f}", window.before.pitch), fmt::format("{:.2f}", window.after.pitch),
               words.Cell(Shift(window)), words.Cell(Rise(window))});
  }
  table.Print();
}

void PrintText(const RefitOptions& options, const RefitReport& report) {
  const std::size_t count = report.refitted.size();
  if (count > 0) {
    PrintTable(report.refitted, LengthWords(StyleSaid(options.lengths)));
    fmt::print("{} window{} {}.\n", count, count == 1 ? "" : "s",
               options.target.Ending("refitted", "be refitted"));
  }
  if (report.fitting > 0) {
    fmt::print("{} window{} fit{} as {}.\n", report.fitting, report.fitting == 1 ? "" : "s",
               report.fitting == 1 ? "s" : "", report.fitting == 1 ? "it is" : "they are");
  }
  if (const std::size_t staying = report.staying.size(); staying > 0) {
    fmt::print("{} window{} no roof face of {} own.\n", staying, staying == 1 ? " has" : "s have",
               staying == 1 ? "its" : "their");
  }
  if (count + report.fitting + report.staying.size() + report.problems.size() == 0)
    fmt::print("{} holds no roof window.\n", options.target.File());
}

// What is wrong with the windows, and why others stay, in words.
void TellProblems(const RefitOptions& options, const RefitReport& report) {
  for (const NotRefitted& window : report.staying)
    TellNote(fmt::format("window {}: {}", window.number, window.message));
  for (const NotRefitted& problem : report.problems)
    Tell(fmt::format("window {}: {}", problem.number, problem.message));
  for (const Refitted& window : report.refitted) {
    if (window.misfits.empty()) continue;
    if (options.isStrict) RefuseMisfits(window.misfits);
    TellWarning(MisfitWarning(window.after.markerValue, window.misfits));
  }
}

void RunRefit(RefitOptions& options) {
  const WindowModule module;
  dxf::Document drawing = dxf::Document::Load(options.target.File());
  const DrawingUnit& unit = ChooseUnitAndWarn(drawing, options.units);
  const RefitKeeps keeps = options.keep == KEEP_HEIGHT ? RefitKeeps::Height : RefitKeeps::Plan;
  const LengthStyle lengths = StyleSaid(options.lengths);
  const double reach = options.reach.empty() ? REFIT_REACH : ParseDistance("--reach", options.reach, lengths);
  const RefitReport report = RefitWindows(module, drawing, unit,
                                          {options.numbers, keeps, options.isLockedToo, reach,
                                           ClearanceSaid(options.clearance, lengths), lengths});
  TellProblems(options, report);
  WarnOfTexts(drawing);
  const bool isWanted = report.problems.empty() || options.keepGoing;
  const bool isChanged = !report.refitted.empty() || options.target.IsNamed();
  if (isWanted && isChanged) SaveDrawing(drawing, options.target);
  (options.asJson ? PrintAnswer : PrintText)(options, report);
  if (!report.problems.empty()) {
    throw Error(fmt::format("{} of the windows cannot be refitted{}", report.problems.size(),
                            isWanted ? "" : "; nothing was written"));
  }
}

}  // namespace

void AddRefitCommand(OptionParser& parser) {
  Subcommand command = parser.Add("refit", "Put windows back onto roofs that have changed");
  const auto options = std::make_shared<RefitOptions>();
  options->target.AddFile(command);
  command.Arguments("NUMBER", options->numbers, "only these windows; without any, all");
  command
      .Value("--keep", options->keep,
             "what stays of a window's place: its point in the plan, or the height of its lower edge")
      .Named("plan|height")
      .OneOfListed({KEEP_PLAN, KEEP_HEIGHT})
      .ShowDefault();
  command
      .Value("--reach", options->reach,
             "how far over or under a window its roof may have come, 1 m where nothing is said; a window "
             "with no "
             "face that near stays")
      .Named("LENGTH");
  command.Flag("--keep-going", options->keepGoing, "write the others when some windows cannot be refitted");
  AddLockedOption(command, options->isLockedToo);
  options->target.AddOutput(command);
  AddUnitOptions(command, options->units);
  AddClearanceOption(command, options->clearance);
  AddLengthsOption(command, options->lengths);
  command.Flag("--strict", options->isStrict,
               "refuse when something stands in a window's way at its new place");
  options->target.AddDryRun(command);
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "A window whose roof face was moved or has another pitch since is inserted again on the face that now\n"
      "lies over or under its place, with its number and all its values; of several faces, on the one "
      "nearest\n"
      "in height. Windows that lie on a roof face stay as they are, and so do those on planes of their own,\n"
      "without a roof face within --reach.\n"
      "Examples:\n"
      "  teskarlt refit house.dxf --dry-run\n"
      "  teskarlt refit house.dxf 3 4 --keep height");
  command.Run([options] { RunRefit(*options); });
}

}  // namespace teskarlt
