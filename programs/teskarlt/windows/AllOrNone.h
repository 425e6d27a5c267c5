// AllOrNone.h - several edits of a drawing that belong together.
#pragma once

#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// Does the work and gives its result; when it throws, the drawing is what it was before.
template <typename Work>
auto AllOrNone(dxf::Document& drawing, Work work) {
  const dxf::EditMark before = drawing.Mark();
  try {
    return work();
  } catch (...) {
    drawing.Rollback(before);
    throw;
  }
}

}  // namespace teskarlt
