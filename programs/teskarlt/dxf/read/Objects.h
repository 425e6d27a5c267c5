// Objects.h - the objects of a drawing that are no entities: dictionaries, groups, sort tables and the like.
#pragma once

#include <string_view>
#include <vector>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/SourceText.h"

namespace teskarlt::dxf {

// An object of the file. The views lie in the source's text.
struct ObjectText {
  std::string_view type;  // "DICTIONARY"
  std::string_view text;  // all its tags
};

// The objects of the section OBJECTS, in one pass over it; none when it is missing. Throws Error with the
// line for a tag that cannot be read.
std::vector<ObjectText> ReadObjects(const SourceText& source, const Index& index);

}  // namespace teskarlt::dxf
