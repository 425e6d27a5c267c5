// SaveDrawing.cpp - how every command that changes a drawing saves it.
#include "teskarlt/commands/SaveDrawing.h"

#include <string>

#include "teskarlt/check/Proof.h"
#include "teskarlt/terminal/Messages.h"
#include "teskarlt/windows/TagWindows.h"

namespace teskarlt {

void SaveDrawing(dxf::Document& drawing, ResultTarget& target) {
  const auto prove = [&] {
    if (!target.IsDryRun()) check::ProveChanges(drawing);
  };
  prove();  // before anything is kept of what is replaced
  if (LetTagsFollow(drawing)) prove();
  target.Write([&](const std::string& path) {
    drawing.Save(path);
    for (const std::string& note : drawing.Notes())
      TellNote(note);
  });
}

}  // namespace teskarlt
