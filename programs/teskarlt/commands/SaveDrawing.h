// SaveDrawing.h - how every command that changes a drawing saves it.
#pragma once

#include "teskarlt/dxf/Document.h"
#include "teskarlt/terminal/ResultTarget.h"

namespace teskarlt {

// Proves the changes, writes the drawing where the target wants it, and tells what of its own damage they
// mend; nothing in a dry run. Throws Error, and nothing is written then.
void SaveDrawing(const dxf::Document& drawing, ResultTarget& target);

}  // namespace teskarlt
