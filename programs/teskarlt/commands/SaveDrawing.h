// SaveDrawing.h - how every command that changes a drawing saves it.
#pragma once

#include "teskarlt/dxf/Document.h"
#include "teskarlt/terminal/ResultTarget.h"

namespace teskarlt {

// Proves the changes, lets the tags of windows follow them (LetTagsFollow, after which entities and tags of
// the drawing from before are void), writes the drawing where the target wants it, and tells what of its own
// damage the changes mend; a dry run writes and tells nothing. Throws Error, and nothing is written then.
void SaveDrawing(dxf::Document& drawing, ResultTarget& target);

}  // namespace teskarlt
