// RenumberCopies.h - gives copies of roof windows numbers of their own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "inc/WindowParams.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct Renumbered {
  std::int32_t from;
  std::int32_t to;
  brevanta::RecordPoint place;  // of the window, in drawing units
  std::size_t entities;
};

// Gives each whole window whose number a window before it bears a new one, and takes the mark of its model
// from it; a tag that was copied with it becomes its own. Parts of windows keep theirs, so that they can be
// put back to the rest.
std::vector<Renumbered> RenumberCopies(dxf::Document& drawing);

}  // namespace teskarlt
