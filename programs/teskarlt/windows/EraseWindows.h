// EraseWindows.h - takes windows out of a drawing.
#pragma once

#include <cstddef>
#include <vector>

#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/windows/JobSite.h"
#include "teskarlt/windows/WindowChoice.h"

namespace teskarlt {

struct ErasedWindow {
  int number;
  std::size_t entities;  // that went with it
};

// Erases the selected windows of the site, all or none. Throws Error, with the drawing as it was, when
// ChooseWindows does, when a window cannot be told from a part of its copy, or when its layer is locked or
// frozen and `isLockedToo` is false.
std::vector<ErasedWindow> EraseWindows(JobSite& site, const WindowSelection& selection, bool isLockedToo);

// The same in a drawing of which nothing else is known: the unit counts for conditions on lengths only.
std::vector<ErasedWindow> EraseWindows(const WindowModule& module, dxf::Document& drawing,
                                       const WindowSelection& selection, const WorkingUnit& unit,
                                       bool isLockedToo);

}  // namespace teskarlt
