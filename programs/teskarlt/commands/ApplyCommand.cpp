// ApplyCommand.cpp - the subcommand "apply": does the jobs of a file.
#include <memory>

#include "teskarlt/commands/JobsRun.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowOptions.h"

namespace teskarlt {

namespace {

struct ApplyOptions {
  WindowOptions window;  // no more than those of the result
  JobsOptions jobs;
};

}  // namespace

void AddApplyCommand(OptionParser& parser) {
  Subcommand command = parser.Add("apply", "Insert, edit, move and erase roof windows by the jobs of a file");
  const auto options = std::make_shared<ApplyOptions>();
  options->window.target.AddFile(command);
  command.Argument("JOBS", options->jobs.file, "a JSON object a line; - reads standard input")
      .Required()
      .NotEmpty();
  AddResultOptions(command, options->window);
  command.Flag("--keep-going", options->jobs.keepGoing, "write the others when some jobs are refused");
  command.Footer(
      "A job has members with the names of the options. \"do\" says what it does: insert (without it), "
      "edit,\n"
      "move or erase; \"windows\", \"where\" and \"type\" on which windows, \"locked\": true also on locked "
      "layers.\n"
      "Each job sees what those before it did. All are done, or none when one of them is refused.\n"
      "Lines of JOBS:\n"
      "  {\"at\": [3000, 2000], \"set\": {\"width\": 0.78, \"openingCode\": \"D\"}}\n"
      "  {\"on\": \"R1\", \"row\": 3, \"gap\": 0.1, \"from-eaves\": 1.2, \"centre\": true}\n"
      "  {\"do\": \"edit\", \"windows\": [1, 3, \"5-9\"], \"set\": {\"width\": 1.14}}\n"
      "  {\"do\": \"move\", \"windows\": 2, \"by\": [0.2, 0]}\n"
      "  {\"do\": \"move\", \"windows\": 4, \"to\": [4800, 1200]}\n"
      "  {\"do\": \"erase\", \"where\": \"width<0.8\", \"type\": \"OL 78x118\"}\n"
      "Examples:\n"
      "  teskarlt apply house.dxf jobs.jsonl --dry-run\n"
      "  teskarlt apply house.dxf jobs.jsonl -o out.dxf --strict");
  command.Run([options] { RunJobs(options->window, options->jobs); });
}

}  // namespace teskarlt
