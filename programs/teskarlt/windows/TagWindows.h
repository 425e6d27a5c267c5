// TagWindows.h - draws the tags of windows, and lets them follow what becomes of the windows.
#pragma once

#include <cstddef>
#include <optional>

#include "teskarlt/drawing/WindowTag.h"
#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/windows/WindowChoice.h"

namespace teskarlt {

// Height of the text of tags where nobody says another, in metres: 2 mm on a plan at 1:100.
inline constexpr double USUAL_TAG_HEIGHT = 0.2;

struct TagOrder {
  WindowSelection selection = {};      // nothing said: all windows
  std::optional<double> height = {};   // of the text, metres; none: as the tag has it, or the usual one
  std::optional<TagShape> shape = {};  // none: as the tag has it, or a circle
};

// Draws a tag with the mark of each selected window that has none, and draws those anew that are otherwise
// than ordered; all or none. A tag that somebody moved stays in its place. Gives the number of tags drawn.
// The drawing has no pending edits of windows. Throws Error when ChooseWindows does.
std::size_t TagWindows(dxf::Document& drawing, const WorkingUnit& unit, const TagOrder& order);

// Takes the tags of the selected windows out, and gives their number. Throws Error when ChooseWindows does.
std::size_t EraseTags(dxf::Document& drawing, const WorkingUnit& unit, const WindowSelection& selection);

// Takes over what was edited (Document::Settle), and lets the tags of the drawing follow: each reads as its
// window is called; one whose window was moved from it is placed anew beside it or, where somebody had moved
// the tag, gets a leader to the window's new place; one whose window is gone goes. Says whether a tag
// changed. Does nothing in a drawing without tags.
bool LetTagsFollow(dxf::Document& drawing);

}  // namespace teskarlt
