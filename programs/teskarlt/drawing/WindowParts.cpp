// WindowParts.cpp - reads the parts of windows and puts them in order.
#include "teskarlt/drawing/WindowParts.h"

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

PartCorners CornersOf(const dxf::Document& drawing, const dxf::Entity& entity) {
  const dxf::TagList tags = drawing.TagLists(entity.text).front();
  return {tags.Point(dxf::CODE_FIRST_CORNER), tags.Point(dxf::CODE_SECOND_CORNER),
          tags.Point(dxf::CODE_THIRD_CORNER), tags.Point(dxf::CODE_FOURTH_CORNER)};
}

void Reorder(const PartOrder& order, std::vector<PartCorners>& corners,
             std::vector<const dxf::Entity*>& entities) {
  const std::vector<PartCorners> oldCorners = corners;
  const std::vector<const dxf::Entity*> oldEntities = entities;
  for (std::size_t i = 0; i < order.size(); ++i) {
    corners[i] = oldCorners[order[i]];
    entities[i] = oldEntities[order[i]];
  }
}

}  // namespace

WindowParts ReadParts(const dxf::Document& drawing, std::span<const dxf::Entity* const> entities) {
  WindowParts parts;
  for (const dxf::Entity* const entity : entities) {
    const bool isLine = dxf::SameName(entity->type, dxf::TYPE_LINE);
    (isLine ? parts.lines : parts.faces).push_back(CornersOf(drawing, *entity));
    (isLine ? parts.lineEntities : parts.faceEntities).push_back(entity);
  }
  return parts;
}

bool PutInOrder(bool hasSymbol, double tolerance, WindowParts& parts) {
  const bool linesAre = LinesAreInOrder(parts.lines, hasSymbol, tolerance);
  const bool facesAre = FacesAreInOrder(parts.faces, tolerance);
  const PartOrder lines = linesAre ? PartOrder() : OrderOfLines(parts.lines, hasSymbol, tolerance);
  const PartOrder faces = facesAre ? PartOrder() : OrderOfFaces(parts.faces, tolerance);
  if ((!linesAre && lines.empty()) || (!facesAre && faces.empty())) return false;
  Reorder(lines, parts.lines, parts.lineEntities);
  Reorder(faces, parts.faces, parts.faceEntities);
  return true;
}

}  // namespace teskarlt
