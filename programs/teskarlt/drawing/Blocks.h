// Blocks.h - the blocks of a drawing: named groups of entities that others insert.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "geometry/Matrix4.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/dxf/read/TagList.h"

namespace teskarlt {

struct Block {
  geometry::Vec3 base{};    // the point that comes to lie at the insertion point
  bool isAttached = false;  // it stands for another drawing, whose entities are not here
  std::vector<dxf::Entity> entities;
};

// Blocks by their folded names (dxf::FoldedName). The drawing must outlive the result.
using Blocks = std::unordered_map<std::string, Block>;
Blocks ReadBlocks(const dxf::Document& drawing);

// From the block's coordinates to those around the INSERT: one matrix for each row and column of its array.
std::vector<geometry::Matrix4> InsertMatrices(const dxf::TagList& insert, const geometry::Vec3& base);

}  // namespace teskarlt
