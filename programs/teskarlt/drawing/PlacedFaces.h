// PlacedFaces.h - the faces of all entities of a drawing, those of blocks where they are inserted.
#pragma once

#include <functional>
#include <string>

#include "teskarlt/drawing/EntityFace.h"
#include "teskarlt/drawing/UnreadEntities.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct PlacedFace {
  std::string name;    // as RoofSearch.h says
  std::string entity;  // the name without the number of the face
  std::string layer;   // UTF-8; in a block, layer 0 is that of the INSERT
  const char* type;    // as EntityFaces has it
  bool isFlatKind;     // likewise
  EntityFace face;  // in drawing coordinates; one of a scaled block need not be of its entity's kind any more
};

// Hands over the faces of the model space in the order of the file, one after the other, without those of
// roof windows, and gives what cannot be read. Each block is read once, however often it is inserted. Of more
// than 4,000,000 faces in blocks, the insertions that would go beyond are not read.
UnreadEntities ReadPlacedFaces(const dxf::Document& drawing, const std::function<void(PlacedFace)>& take);

}  // namespace teskarlt
