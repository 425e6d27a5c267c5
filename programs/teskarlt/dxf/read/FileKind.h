// FileKind.h - tells files that are no text drawings from those that are.
#pragma once

#include "teskarlt/dxf/tags/SourceText.h"

namespace teskarlt::dxf {

// Throws Error, which says what the file is instead, unless it starts as a text drawing does.
void RefuseOtherFiles(const SourceText& source);

}  // namespace teskarlt::dxf
