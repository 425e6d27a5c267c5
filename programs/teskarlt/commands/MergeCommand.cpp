// MergeCommand.cpp - the subcommand "merge": merges one window catalogue into another.
#include <memory>
#include <optional>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "teskarlt/catalogue/CatalogueMerge.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

struct MergeOptions {
  std::string source;
  std::string target;
  std::string encoding;
  bool hasTarget = false;  // an empty name is no way to ask for the data folder
  bool recover = false;
  bool asJson = false;
};

std::optional<std::string> Given(const std::string& path) {
  return path.empty() ? std::nullopt : std::optional(path);
}

void PrintReport(const MergeReport& report) {
  Json json;
  json["version"] = JSON_VERSION;
  json["target"] = report.target;
  json["newSections"] = report.newSections;
  json["taken"] = report.taken;
  json["alreadyThere"] = report.alreadyThere;
  json["total"] = report.total;
  json["warnings"] = report.warnings;
  PrintJson(json);
}

void PrintRecovery(const Recovery& recovery) {
  fmt::print("{} is what it was before the interrupted merge.\n", recovery.target);
  if (!recovery.setAside.empty()) fmt::print("What stood there lies in {} now.\n", recovery.setAside);
}

void RunMerge(const MergeOptions& options) {
  if (options.recover) {
    if (!options.target.empty()) throw UsageError("--recover takes one catalogue");
    PrintRecovery(RecoverCatalogue(Given(options.source)));
    return;
  }
  if (options.source.empty()) throw UsageError("SOURCE is required");
  if (options.hasTarget && options.target.empty()) throw UsageError("the name of TARGET is empty");
  const WindowModule module;
  const MergeReport report = MergeCatalogues(module, options.source, Given(options.target), options.encoding);
  if (report.taken > 0) platform::NoteWrittenFile();
  for (const std::string& warning : report.warnings)
    TellWarning(warning);
  if (options.asJson) {
    PrintReport(report);
    return;
  }
  fmt::print("{} windows taken, {} already there, {} new sections; {} now holds {} windows.\n", report.taken,
             report.alreadyThere, report.newSections, report.target, report.total);
}

}  // namespace

void AddMergeCommand(OptionParser& parser) {
  Subcommand command = parser.Add("merge", "Merge a window catalogue into another");
  const auto options = std::make_shared<MergeOptions>();
  command.Argument("SOURCE", options->source, "the catalogue whose windows are added, or its folder");
  const Option target =
      command.Argument("TARGET", options->target,
                       "the catalogue that takes them, or its folder; without it the one in the data folder");
  command.Flag("--recover", options->recover,
               "bring back what an interrupted merge left of the catalogue SOURCE, or of the data folder's");
  command
      .Value(
          "--encoding", options->encoding,
          "the encoding of SOURCE, utf-8 or a code page; without it UTF-8 where SOURCE is that, else cp1250")
      .Named("NAME")
      .NotEmpty();
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "A window that the target has already stays as the target has it. Windows of a source in another\n"
      "encoding are taken over in that of the target, or refused where it lacks one of their characters.\n"
      "The data folder is $TESKAR_DATA, else \"teskar\" in the user's data folder.\n"
      "Examples:\n"
      "  teskarlt merge update.LIB\n"
      "  teskarlt merge update.LIB catalogues/BREVANTA.LIB\n"
      "  teskarlt merge western.LIB --encoding cp1252\n"
      "  teskarlt merge --recover catalogues/BREVANTA.LIB");
  command.Run([options, target] {
    options->hasTarget = target.IsGiven();
    RunMerge(*options);
  });
}

}  // namespace teskarlt
