// EditCommand.cpp - the subcommand "edit": changes a roof window.
#include <memory>

#include <fmt/format.h>

#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/windows/WindowEditor.h"

namespace teskarlt {

namespace {

struct EditOptions {
  WindowOptions window;
  int number = 0;
  bool isLockedToo = false;
};

void RunEdit(EditOptions& options) {
  const WindowModule module;
  dxf::Document drawing = dxf::Document::Load(options.window.target.File());
  const DrawingUnit& unit = ChooseUnitAndWarn(drawing, options.window.units);
  WindowEditor editor(module, drawing, unit, options.number, options.isLockedToo);
  for (const std::string& note : editor.Reading().notes)
    TellNote(fmt::format("window {}: {}", options.number, note));
  const EditedWindow window = editor.Edit(OrderOf(options.window));
  SaveAndTell(options.window, drawing, window, editor.Reading());
}

}  // namespace

void AddEditCommand(OptionParser& parser) {
  Subcommand command = parser.Add("edit", "Change a roof window");
  const auto options = std::make_shared<EditOptions>();
  options->window.target.AddFile(command);
  command.Argument("NUMBER", options->number, "the window's number, as teskarlt list shows it").Required();
  AddWindowOptions(command, options->window);
  AddLockedOption(command, options->isLockedToo);
  command.Footer(
      "What is not given stays as it is; the window keeps its number and, without --at, its place.\n"
      "What changes is told with its old and its new value; when nothing does, nothing is written.\n"
      "teskarlt insert --fields lists the fields for --set.\n"
      "Examples:\n"
      "  teskarlt edit house-with-window.dxf 1 --set width=1.14\n"
      "  teskarlt edit house-with-window.dxf 1 --at 4800,1200");
  command.Run([options] { RunEdit(*options); });
}

}  // namespace teskarlt
