// MoveCommand.cpp - the subcommand "move": moves roof windows in their roofs, or to another place.
#include <memory>
#include <string>

#include "teskarlt/commands/ChangeWindows.h"
#include "teskarlt/commands/SelectionOptions.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/windows/MoveOrder.h"
#include "teskarlt/windows/PointText.h"

namespace teskarlt {

namespace {

struct MoveOptions {
  WindowOptions window;
  SelectionOptions selection;
  std::string by;
  bool isLockedToo = false;
};

void RunMove(MoveOptions& options) {
  WindowOrder order = OrderOf(options.window);
  if (!options.by.empty()) order.by = ParseSlopeMove("--by", options.by, order.lengths);
  if (const std::string mistake = MoveMistake(order); !mistake.empty()) throw UsageError(mistake);
  ChangeWindows(options.window, SelectionOf(options.selection, order.lengths), order, options.isLockedToo);
}

}  // namespace

void AddMoveCommand(OptionParser& parser) {
  Subcommand command = parser.Add("move", "Move roof windows");
  const auto options = std::make_shared<MoveOptions>();
  options->window.target.AddFile(command);
  AddSelectionOptions(command, options->selection);
  command
      .Value("--by", options->by,
             "how far: along the eaves, to the right as seen from below them, and up the slope")
      .Named("ALONG,UP");
  options->window.pointOption = "--to";
  AddPlaceOptions(command, options->window);
  AddResultOptions(command, options->window);
  AddLockedOption(command, options->isLockedToo);
  command.Footer(
      "With --by a window stays in its roof and is refused where it would leave it; with --to or --on it "
      "may\n"
      "go onto another one. Words say the place in its roof, and what they leave open stays. Its number and\n"
      "all its values stay. Of several windows all move, or none when one of them is refused.\n"
      "Examples:\n"
      "  teskarlt move house-with-window.dxf 1 --by 0.2,0\n"
      "  teskarlt move house-with-window.dxf 1 4-9 --by 0,-0.35\n"
      "  teskarlt move house-with-window.dxf 2 --to 4800,1200\n"
      "  teskarlt move house-with-window.dxf 2 --from-eaves 1.2 --centre\n"
      "  teskarlt move house-with-window.dxf 3 5 --align 2 --edge top");
  command.Run([options] { RunMove(*options); });
}

}  // namespace teskarlt
