// Check.h - tells what strict programs find wrong with a drawing.
#pragma once

#include <string>

#include "teskarlt/check/Findings.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/dxf/tags/SourceText.h"

namespace teskarlt::check {

// Everything that is wrong with a drawing, roof windows included. A drawing that teskarlt otherwise refuses
// to read is checked as far as it can be read; throws Error only for a file that is no text drawing at all.
// The time is linear in the size of the file. Windows are to stand by the rules.
Verdict CheckDrawing(dxf::SourceText source, const FitRules& rules = {});

// The same without its windows. References to `elsewhere` lead to objects that were left out of the text.
Verdict CheckObjects(const dxf::SourceText& source, const dxf::HandleRange& elsewhere = {});

}  // namespace teskarlt::check
