// Blocks.cpp - reads blocks and places their insertions.
#include "teskarlt/drawing/Blocks.h"

#include <algorithm>

#include "teskarlt/drawing/Curves.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt {

namespace {

using geometry::Matrix4;
using geometry::Vec3;

constexpr std::int64_t MOST_ROWS = 1'000'000'000;  // more than anyone draws; their product is still a number

std::string_view Between(const char* begin, const char* end) {
  return {begin, static_cast<std::size_t>(end - begin)};
}

Matrix4 Product(const Matrix4& a, const Matrix4& b) {
  Matrix4 product{};
  geometry::MatMultiply(a, b, product);
  return product;
}

Matrix4 Moved(const Vec3& by) {
  Matrix4 matrix{};
  geometry::MatTranslation(by, matrix);
  return matrix;
}

// How many rows or columns the INSERT has.
std::size_t CopiesIn(const dxf::TagList& insert, int code) {
  return static_cast<std::size_t>(std::clamp<std::int64_t>(insert.Integer(code, 1), 1, MOST_ROWS));
}

}  // namespace

Blocks ReadBlocks(const dxf::Document& drawing) {
  Blocks blocks;
  Block* block = nullptr;
  dxf::Entity entity{};
  const char* begin = nullptr;
  dxf::TagReader reader(drawing.Source(), drawing.SectionText(dxf::SECTION_BLOCKS));
  const auto close = [&] {
    if (block != nullptr && !entity.type.empty()) {
      entity.text = Between(begin, reader.TagBegin());
      block->entities.push_back(entity);
    }
    entity = {};
  };
  bool isInPart = false;
  for (dxf::Tag tag; reader.Next(tag);) {
    if (tag.code == dxf::CODE_HANDLE && !isInPart && entity.handle == 0)
      entity.handle = dxf::ParseHandle(tag.value).value_or(0);
    if (tag.code != dxf::CODE_TYPE) continue;
    const std::string_view type = dxf::Trimmed(tag.value);
    isInPart = dxf::IsPartType(type);
    if (isInPart) continue;
    if (entity.type == dxf::TYPE_BLOCK) {
      const dxf::TagList head = drawing.TagLists(Between(begin, reader.TagBegin())).front();
      block = &blocks[dxf::FoldedName(head.Text(dxf::CODE_NAME))];
      block->base = head.Point(dxf::CODE_BLOCK_BASE);
      block->isAttached = (head.Integer(dxf::CODE_BLOCK_FLAGS) & dxf::BLOCK_ATTACHED) != 0;
      entity = {};
    } else {
      close();
    }
    begin = reader.TagBegin();
    if (type == dxf::TYPE_BLOCK_END) block = nullptr;
    if (type == dxf::TYPE_BLOCK || block != nullptr) entity = {{}, type, 0};
  }
  return blocks;
}

InsertCopies::InsertCopies(const dxf::TagList& insert, const Vec3& base)
    : columns_(CopiesIn(insert, dxf::CODE_INSERT_COLUMNS)),
      rows_(CopiesIn(insert, dxf::CODE_INSERT_ROWS)),
      columnSpacing_(insert.Real(dxf::CODE_INSERT_COLUMN_SPACING)),
      rowSpacing_(insert.Real(dxf::CODE_INSERT_ROW_SPACING)) {
  Matrix4 turn{};
  geometry::MatRotationZ(geometry::DegToRad(insert.Real(dxf::CODE_INSERT_ROTATION)), turn);
  Matrix4 scale{};
  geometry::MatIdentity(scale);
  for (int axis = 0; axis < 3; ++axis)
    scale.m[axis][axis] = insert.Real(dxf::CODE_INSERT_SCALE_X + axis, 1.0);
  place_ = Product(ObjectToDrawing(insert.Point(dxf::CODE_EXTRUSION, UPWARDS)),
                   Product(Moved(insert.Point(dxf::CODE_INSERT_POINT)), turn));
  shape_ = Product(scale, Moved({-base.x, -base.y, -base.z}));
}

Matrix4 InsertCopies::At(std::size_t copy) const {
  const std::size_t row = copy / columns_;
  const std::size_t column = copy % columns_;
  const Vec3 step = {static_cast<double>(column) * columnSpacing_, static_cast<double>(row) * rowSpacing_, 0};
  return Product(place_, Product(Moved(step), shape_));
}

}  // namespace teskarlt
