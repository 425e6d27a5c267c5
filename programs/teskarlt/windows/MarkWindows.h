// MarkWindows.h - gives the windows of a drawing their marks.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/windows/WindowChoice.h"
#include "teskarlt/windows/WindowMarks.h"

namespace teskarlt {

struct MarkOrder {
  WindowSelection selection = {};  // nothing said: all windows
  std::string mark = {};           // a pattern (MarkPattern); empty takes the marks away
  bool isOnlyUnmarked = false;     // windows that have one keep it
  bool isLockedToo = false;        // also windows on locked and frozen layers
};

// UTF-8, empty for none; equal where the window keeps what it has.
struct MarkChange {
  std::int32_t number;
  std::string from;
  std::string to;
};

// Marks the windows by their numbers; all or none. The unit counts for the names of roofs and for conditions
// on lengths only. Throws Error when ChooseWindows does, when two windows would bear one mark, when a window
// has no roof or type to be named by, and for closed layers.
std::vector<MarkChange> MarkWindows(dxf::Document& drawing, const WorkingUnit& unit, const MarkOrder& order);

}  // namespace teskarlt
