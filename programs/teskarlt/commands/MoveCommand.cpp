// MoveCommand.cpp - the subcommand "move": moves roof windows in their roofs, or to another place.
#include <memory>

#include "teskarlt/commands/ChangeWindows.h"
#include "teskarlt/commands/SelectionOptions.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/windows/PointText.h"

namespace teskarlt {

namespace {

struct MoveOptions {
  WindowOptions window;
  SelectionOptions selection;
  std::string by;
  std::string to;
  bool isLockedToo = false;
};

void RunMove(MoveOptions& options) {
  if (options.by.empty() && options.to.empty()) throw UsageError("say where the windows go: --by or --to");
  WindowOrder order = OrderOf(options.window);
  if (!options.by.empty()) order.by = ParseSlopeMove("--by", options.by);
  if (!options.to.empty()) order.at = ParsePlanPoint("--to", options.to);
  ChangeWindows(options.window, SelectionOf(options.selection), order, options.isLockedToo);
}

}  // namespace

void AddMoveCommand(OptionParser& parser) {
  Subcommand command = parser.Add("move", "Move roof windows");
  const auto options = std::make_shared<MoveOptions>();
  options->window.target.AddFile(command);
  AddSelectionOptions(command, options->selection);
  const Option by =
      command
          .Value(
              "--by", options->by,
              "how far, in metres: along the eaves, to the right as seen from below them, and up the slope")
          .Named("ALONG,UP");
  const Option to =
      command.Value("--to", options->to, "the place in the drawing; the uppermost roof face over it is taken")
          .Named("X,Y")
          .Excludes(by);
  command
      .Value("--on", options->window.roofName,
             "the roof at that place, or one of its faces, as teskarlt roofs lists them")
      .Named("NAME")
      .NotEmpty()
      .Needs(to);
  AddResultOptions(command, options->window);
  AddLockedOption(command, options->isLockedToo);
  command.Footer(
      "With --by a window stays in its roof and is refused where it would leave it; with --to it may go "
      "onto\n"
      "another one. Its number and all its values stay. Of several windows all move, or none when one of\n"
      "them is refused.\n"
      "Examples:\n"
      "  teskarlt move house-with-window.dxf 1 --by 0.2,0\n"
      "  teskarlt move house-with-window.dxf 1 4-9 --by 0,-0.35\n"
      "  teskarlt move house-with-window.dxf 2 --to 4800,1200");
  command.Run([options] { RunMove(*options); });
}

}  // namespace teskarlt
