// Excerpts.h - what a save changes in a drawing, as small drawings for whoever wants to look at it.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/Splice.h"

namespace teskarlt::dxf {

// From `first` on, `end` not among them.
struct HandleRange {
  std::uint64_t first = 0;
  std::uint64_t end = 0;

  bool Holds(std::uint64_t handle) const { return handle >= first && handle < end; }
};

// Header and tables, and of the other sections no more than the objects that are touched, removed or added:
// as they were loaded, and with the edits. Text drawings, also where the drawing is a binary one. So whatever
// is wrong with `edited` and not with `loaded` is the edits' doing.
struct Excerpts {
  std::string loaded;
  std::string edited;
  HandleRange newHandles;  // of all new objects, also of entities that others stand for
};

// The splices are those of a whole save, in order, and `entities` the texts of new entities that stand for
// all of them. Removed entities are without their extended data.
Excerpts MakeExcerpts(const SourceText& source, const Index& index, const std::vector<Splice>& splices,
                      std::span<const std::string_view> entities);

}  // namespace teskarlt::dxf
