// Proof.h - proves that the changes to a drawing leave it as sound as it was.
#pragma once

#include "teskarlt/dxf/Document.h"

namespace teskarlt::check {

// Puts every object that a save would add to the drawing, touch in it or remove from it through the checks of
// drawings, and throws Error when a change brings an error into it. That is then a fault of this program, and
// the sentence says what to report. Takes a small part of the time of a save.
void ProveChanges(const dxf::Document& drawing);

}  // namespace teskarlt::check
