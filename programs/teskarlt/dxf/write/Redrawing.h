// Redrawing.h - an entity that is drawn anew in its place in the file.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/Splice.h"
#include "teskarlt/dxf/tags/TypedTag.h"
#include "teskarlt/dxf/write/Rules.h"

namespace teskarlt::dxf {

// Whether an entity that is drawn anew keeps its linetype or gets that of the tags. Another one than our own
// is a user's, and is kept all the same.
enum class LinetypeOnRedraw { Kept, Renewed };

// What an entity becomes; nothing of it is owned.
struct Redrawn {
  std::span<const TypedTag> tags;                     // checked, and of its type
  const std::vector<std::string_view>* extendedData;  // texts in place of what it had of these applications
  LinetypeOnRedraw linetype;
  std::uint64_t reactor = 0;  // handle of an object that is to hear of its changes from now on, or 0
};

// Adds what gives the entity, a line, circle, text or 3D face with that text, its new points. All else stays:
// handle, owner, layer, colour, other applications' data. The extended data must outlive the splices.
void AddRedrawSplices(const SourceText& source, const Rules& rules, std::string_view entity,
                      const Redrawn& redrawn, std::vector<Splice>& splices);

}  // namespace teskarlt::dxf
