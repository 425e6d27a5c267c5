// ChangeWindows.cpp - how every command that changes selected windows does it.
#include "teskarlt/commands/ChangeWindows.h"

#include <vector>

#include <fmt/format.h>

#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/windows/WindowEditor.h"

namespace teskarlt {

void ChangeWindows(WindowOptions& options, const WindowSelection& selection, const WindowOrder& order,
                   bool isLockedToo) {
  const WindowModule module;
  dxf::Document drawing = dxf::Document::Load(options.target.File());
  const DrawingUnit& unit = ChooseUnitAndWarn(drawing, options.units);
  WindowEditor editor(module, drawing, unit, selection, isLockedToo);
  for (const EditableWindow& window : editor.Windows()) {
    for (const std::string& note : window.reading.notes)
      TellNote(fmt::format("window {}: {}", window.drawn->number, note));
  }
  const std::vector<EditedWindow> edited = editor.Edit(order);
  if (selection.IsOneNumber()) {
    SaveAndTell(options, drawing, edited.front(), editor.Windows().front().reading);
  } else {
    SaveAndTell(options, drawing, edited, editor.Windows());
  }
}

}  // namespace teskarlt
