// Excerpts.h - what a save changes in a drawing, as small drawings for whoever wants to look at it.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/Splice.h"

namespace teskarlt::dxf {

// Header and tables, and of the other sections no more than the objects that are touched, removed or added:
// as they were loaded, and with the edits. Text drawings, also where the drawing is a binary one. So whatever
// is wrong with `edited` and not with `loaded` is the edits' doing.
struct Excerpts {
  std::string loaded;
  std::string edited;
};

// The splices are those of a whole save, in order. Extended data that new entities share stand at the first
// of them alone, and removed entities are without theirs: that is most of the text.
Excerpts MakeExcerpts(const SourceText& source, const Index& index, const std::vector<Splice>& splices);

}  // namespace teskarlt::dxf
