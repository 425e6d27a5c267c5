// UndoCommand.cpp - the subcommand "undo": goes back to the drawing that --backup kept.
#include <memory>

#include <fmt/format.h>

#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/terminal/Backup.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/terminal/ResultTarget.h"

namespace teskarlt {

namespace {

struct UndoOptions {
  ResultTarget target;
  bool asJson = false;
};

void RunUndo(UndoOptions& options) {
  CheckUndo(options.target.File());
  options.target.Write(RestoreBackup);
  if (options.asJson) {
    Json json = Json::Object({{"version", JSON_VERSION}});
    options.target.AddTo(json);
    PrintJson(json);
  } else {
    fmt::print("The drawing as it was before {}.\n",
               options.target.Ending("brought back", "be brought back"));
  }
}

}  // namespace

void AddUndoCommand(OptionParser& parser) {
  Subcommand command = parser.Add("undo", "Go back to the drawing that --backup kept");
  const auto options = std::make_shared<UndoOptions>();
  options->target.AddFile(command);
  options->target.AddDryRun(command);
  command.Flag("--json", options->asJson, JSON_HELP);
  command.Footer(
      "FILE becomes what FILE.bak holds, which the last command with --backup kept, and FILE.bak goes. "
      "Where\n"
      "anything else changed FILE or FILE.bak since, as FILE.undo tells, nothing is done.\n"
      "Examples:\n"
      "  teskarlt edit house.dxf 1 --set width=1.14 --backup\n"
      "  teskarlt undo house.dxf");
  command.Run([options] { RunUndo(*options); });
}

}  // namespace teskarlt
