// SaveDrawing.cpp - how every command that changes a drawing saves it.
#include "teskarlt/commands/SaveDrawing.h"

#include <string>

#include "teskarlt/check/Proof.h"
#include "teskarlt/terminal/Messages.h"

namespace teskarlt {

void SaveDrawing(const dxf::Document& drawing, ResultTarget& target) {
  if (!target.IsDryRun()) check::ProveChanges(drawing);  // before anything is kept of what is replaced
  target.Write([&](const std::string& path) {
    drawing.Save(path);
    for (const std::string& note : drawing.Notes())
      TellNote(note);
  });
}

}  // namespace teskarlt
