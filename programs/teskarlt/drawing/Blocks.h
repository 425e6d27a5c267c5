// Blocks.h - the blocks of a drawing: named groups of entities that others insert.
#pragma once

#include <cstddef>
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

// The copies of a block that an INSERT stands for, one for each row and column.
class InsertCopies {
 public:
  // `base` is that of the block.
  InsertCopies(const dxf::TagList& insert, const geometry::Vec3& base);

  std::size_t Count() const { return columns_ * rows_; }

  // From the block's coordinates to those around the INSERT; row by row, from 0.
  geometry::Matrix4 At(std::size_t copy) const;

 private:
  geometry::Matrix4 place_{};
  geometry::Matrix4 shape_{};
  std::size_t columns_;
  std::size_t rows_;
  double columnSpacing_;
  double rowSpacing_;
};

}  // namespace teskarlt
