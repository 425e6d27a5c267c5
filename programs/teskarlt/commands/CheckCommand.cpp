// CheckCommand.cpp - the subcommand "check": tells what is wrong with a drawing.
#include <memory>
#include <string>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "teskarlt/check/Check.h"
#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

using check::Finding;
using check::Severity;
using check::Verdict;

struct CheckOptions {
  std::string file;
  std::string clearance;
  std::string lengths;
  bool asJson = false;
};

const char* SeverityName(Severity severity) {
  return severity == Severity::Error ? "error" : "warning";
}

const char* PlaceName(const Verdict& verdict) {
  return verdict.isBinary ? "byte" : "line";
}

Json ToJson(const Finding& finding, std::size_t number, const char* placeName) {
  Json json;
  json["number"] = number;
  json[placeName] = finding.place;
  json["severity"] = SeverityName(finding.severity);
  json["kind"] = check::KindName(finding.kind);
  json["message"] = finding.message;
  json["handle"] = finding.handle == 0 ? Json(nullptr) : Json(fmt::format("{:X}", finding.handle));
  return json;
}

void PrintVerdictJson(const Verdict& verdict, const std::string& file) {
  Json json;
  json["version"] = JSON_VERSION;
  json["file"] = file;
  json["errors"] = verdict.errors;
  json["warnings"] = verdict.warnings;
  json["findings"] = Json::List();
  std::size_t number = 0;
  for (const Finding& finding : verdict.findings)
    json["findings"].Add(ToJson(finding, ++number, PlaceName(verdict)));
  PrintJson(json);
}

std::string Counted(std::size_t count, const char* what) {
  return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

// Handles are how people find an entity in their CAD program.
std::string KindAndHandle(const Finding& finding) {
  const std::string_view kind = check::KindName(finding.kind);
  return finding.handle == 0 ? std::string(kind) : fmt::format("{}, handle {:X}", kind, finding.handle);
}

void PrintVerdict(const Verdict& verdict, const std::string& file) {
  std::size_t number = 0;
  for (const Finding& finding : verdict.findings) {
    fmt::print("{}. {} {}: {}: {} [{}]\n", ++number, PlaceName(verdict), finding.place,
               SeverityName(finding.severity), finding.message, KindAndHandle(finding));
  }
  for (std::size_t kind = 0; kind < verdict.unlisted.size(); ++kind) {
    if (verdict.unlisted[kind] == 0) continue;
    fmt::print("and {} more [{}]\n", verdict.unlisted[kind], check::KindName(static_cast<check::Kind>(kind)));
  }
  fmt::print("{}: {}, {}\n", file, Counted(verdict.errors, "error"), Counted(verdict.warnings, "warning"));
}

int RunCheck(const CheckOptions& options) {
  const LengthStyle lengths = StyleSaid(options.lengths);
  const FitRules rules{.clearance = ClearanceSaid(options.clearance, lengths), .lengths = lengths};
  const Verdict verdict =
      check::CheckDrawing(dxf::SourceText(options.file, platform::ReadWholeFile(options.file)), rules);
  if (options.asJson) {
    PrintVerdictJson(verdict, options.file);
  } else {
    PrintVerdict(verdict, options.file);
  }
  return verdict.errors > 0 ? EXIT_REFUSED : EXIT_DONE;
}

}  // namespace

void AddCheckCommand(OptionParser& parser) {
  Subcommand command = parser.Add("check", "Tell what strict programs find wrong with a drawing");
  const auto options = std::make_shared<CheckOptions>();
  command.Argument("FILE", options->file, "the drawing").Required();
  AddClearanceOption(command, options->clearance);
  AddLengthsOption(command, options->lengths);
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "Each finding comes with its line in the file (in a binary drawing the offset of its byte), a name of\n"
      "its kind and the handle of its object. An error is what makes a strict program refuse or repair the\n"
      "drawing, or a roof window in it impossible to change; a warning is doubtful, though programs are "
      "known\n"
      "to take it. Of one kind the first 1000 findings are listed and all are counted. A damaged drawing is\n"
      "checked as far as it can be read.\n"
      "Exit status: 0 no errors, perhaps warnings; 1 errors; 2 wrong usage.\n"
      "Examples:\n"
      "  teskarlt check house.dxf\n"
      "  teskarlt check house.dxf --clearance 0.2");
  command.RunWithStatus([options] { return RunCheck(*options); });
}

}  // namespace teskarlt
