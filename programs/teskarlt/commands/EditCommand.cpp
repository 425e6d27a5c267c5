// EditCommand.cpp - the subcommand "edit": changes roof windows.
#include <memory>

#include "teskarlt/commands/ChangeWindows.h"
#include "teskarlt/commands/SelectionOptions.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowOptions.h"

namespace teskarlt {

namespace {

struct EditOptions {
  WindowOptions window;
  SelectionOptions selection;
  bool isLockedToo = false;
};

void RunEdit(EditOptions& options) {
  const WindowOrder order = OrderOf(options.window);
  ChangeWindows(options.window, SelectionOf(options.selection, order.lengths), order, options.isLockedToo);
}

}  // namespace

void AddEditCommand(OptionParser& parser) {
  Subcommand command = parser.Add("edit", "Change roof windows");
  const auto options = std::make_shared<EditOptions>();
  options->window.target.AddFile(command);
  AddSelectionOptions(command, options->selection);
  AddWindowOptions(command, options->window);
  AddLockedOption(command, options->isLockedToo);
  command.Footer(
      "What is not given stays as it is; each window keeps its number and, without --at, its place.\n"
      "What changes is told with its old and its new value; when nothing does, nothing is written. Of "
      "several\n"
      "windows all are changed, or none when one of them is refused; --json answers a list \"windows\" "
      "unless\n"
      "a number alone names the window.\n"
      "teskarlt insert --fields lists the fields for --set and --where.\n"
      "Examples:\n"
      "  teskarlt edit house-with-window.dxf 1 --set width=1.14\n"
      "  teskarlt edit house-with-window.dxf 1 --at 4800,1200\n"
      "  teskarlt edit house-with-window.dxf 1 3 5-9 --set openingCode=B\n"
      "  teskarlt edit house-with-window.dxf --where \"width<0.8\" --set frameWidth=0.08\n"
      "  teskarlt edit house-with-window.dxf --type \"OL 78x118\" --window \"OL 94x140\"");
  command.Run([options] { RunEdit(*options); });
}

}  // namespace teskarlt
